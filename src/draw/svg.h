#pragma once

#include "draw/surface.h"

#include <string>
#include <string_view>

/// "#ff00a0"
std::string couleur_svg(Couleur c);
/// A text between two tags.
std::string echapper_svg(std::string_view texte);

/// Writes the drawing as an SVG picture: user units are centimetres of the table, pens keep their
/// width in pixels at any size.
class SurfaceSvg final : public Surface {
public:
    /// @param largeur, hauteur  size of the picture in pixels
    SurfaceSvg(double largeur, double hauteur) : largeur_(largeur), hauteur_(hauteur) {}

    void coordonnees(double gauche, double haut, double droite, double bas) override;
    void couleur_trait(Couleur couleur) override { trait_ = couleur; }
    void couleur_fond(Couleur couleur) override { fond_ = couleur; }
    void fond_plein(bool plein) override { plein_ = plein; }
    void trait_pointille(bool pointille) override { pointille_ = pointille; }
    void epaisseur(Entier16 pixels) override { epaisseur_ = pixels; }
    void boite_pleine(double x1, double y1, double x2, double y2) override;
    void boite(double x1, double y1, double x2, double y2, Couleur couleur) override;
    void ligne(double x1, double y1, double x2, double y2, Couleur couleur) override;
    void cercle(double x, double y, double rayon, Couleur couleur) override;
    void arc(double x, double y, double rayon, Couleur couleur, double debut, double fin,
             double aspect) override;

    void opacite(double part) override { opacite_ = part; }
    void chemin(std::span<const PointTable> points, Couleur couleur) override;
    void polygone(std::span<const PointTable> points, Couleur couleur) override;
    void reunion(std::span<const Forme> formes, Couleur couleur) override;
    void repere(PointTable centre, double rayon, Couleur couleur, std::string_view bulle) override;
    void texte(PointTable milieu, double hauteur, Couleur couleur, std::string_view texte) override;
    double cm_par_pixel() const override { return (droite_ - gauche_) / largeur_; }

    /// The whole picture. @param titre  shown by viewers
    std::string document(std::string_view titre) const;

private:
    void nombre(std::string_view attribut, double valeur);
    void rectangle(double x1, double y1, double x2, double y2);
    void points(std::span<const PointTable> points);
    void contour(Couleur couleur, bool rempli);
    void plein(Couleur couleur);

    double largeur_, hauteur_;
    double gauche_ = 0, haut_ = 0, droite_ = 0, bas_ = 0;
    Couleur trait_, fond_;
    bool plein_ = true;
    bool pointille_ = false;
    int epaisseur_ = 1;
    double opacite_ = 1;
    std::string corps_;
};
