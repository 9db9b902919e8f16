#pragma once

#include "draw/surface.h"

#include <QColor>
#include <QLineF>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

class QPainter;

QColor couleur_qt(Couleur couleur);

/// Affine map from table coordinates (cm, y upwards) to the logical pixels of a picture.
class Repere {
public:
    /// @param taille  logical pixels  @param gauche...  table coordinates of the picture's edges
    void regler(QSizeF taille, double gauche, double haut, double droite, double bas);
    QPointF point(double x, double y) const { return {(x - x0_) * ax_, (y - y0_) * ay_}; }
    PointTable lieu(QPointF pixel) const { return {x0_ + pixel.x() / ax_, y0_ + pixel.y() / ay_}; }
    /// The box between two corners, in any order.
    QRectF boite(double x1, double y1, double x2, double y2) const;
    /// The box around points; empty where one is no number.
    QRectF boite(std::span<const PointTable> points) const;
    double pixels_x(double cm) const { return cm * ax_; }
    double pixels_y(double cm) const { return -cm * ay_; }

private:
    double x0_ = 0, y0_ = 0, ax_ = 1, ay_ = -1;
};

/// Paints with a QPainter whose unit is the logical pixel; pen widths are logical pixels too, so
/// that the picture has the same look at 100, 150 and 200 %. Upright edges lie on whole pixels of
/// the device, everything else is smoothed. What is not a finite number is left out.
class SurfaceQt final : public Surface {
public:
    /// @param taille  logical pixels of the picture
    SurfaceQt(QPainter& peintre, QSizeF taille);

    void coordonnees(double gauche, double haut, double droite, double bas) override;
    void couleur_trait(Couleur couleur) override { trait_ = couleur; }
    void couleur_fond(Couleur couleur) override { fond_ = couleur; }
    void fond_plein(bool plein) override { plein_ = plein; }
    void trait_pointille(bool pointille) override;
    void epaisseur(Entier16 pixels) override;

    void boite_pleine(double x1, double y1, double x2, double y2) override;
    void boite(double x1, double y1, double x2, double y2, Couleur couleur) override;
    void ligne(double x1, double y1, double x2, double y2, Couleur couleur) override;
    void cercle(double x, double y, double rayon, Couleur couleur) override;
    void arc(double x, double y, double rayon, Couleur couleur, double debut, double fin,
             double aspect) override;
    void opacite(double part) override;
    void chemin(std::span<const PointTable> points, Couleur couleur) override;
    void polygone(std::span<const PointTable> points, Couleur couleur) override;
    void reunion(std::span<const Forme> formes, Couleur couleur) override;
    /// The tool tip is left out: a painter has none.
    void repere(PointTable centre, double rayon, Couleur couleur, std::string_view bulle) override;
    void texte(PointTable milieu, double hauteur, Couleur couleur, std::string_view texte) override;
    /// Lines of one colour: several times faster than one after the other.
    void lignes(std::span<const Trait> traits, Couleur couleur);
    double cm_par_pixel() const override { return 1 / repere_.pixels_x(1); }

private:
    QRectF sur_les_pixels(QRectF r) const;
    double au_milieu_du_pixel(double valeur) const;
    void choisir_trait(Couleur couleur);
    void choisir_fond();
    void choisir_plein(Couleur couleur);
    QPolygonF en_pixels(std::span<const PointTable> points) const;
    QLineF en_pixels(const Trait& trait) const;
    void lisser(bool oui);

    QPainter& peintre_;
    std::vector<QLineF> lignes_; ///< of one call, kept for its memory
    QSizeF taille_;
    Repere repere_;
    double densite_; ///< device pixels per logical pixel
    Couleur trait_, fond_;
    Couleur trait_du_peintre_;
    bool trait_a_jour_ = false;
    bool lisse_ = true;
    bool plein_ = true;
    bool pointille_ = false;
    int epaisseur_ = 1;
};
