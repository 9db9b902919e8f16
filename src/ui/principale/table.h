#pragma once

#include "draw/silhouette.h"
#include "draw/surface_vide.h"
#include "sim/etat.h"
#include "sim/fenetres.h"
#include "ui/commun/surface_qt.h"

#include <QImage>
#include <QWidget>

#include <array>
#include <functional>
#include <span>
#include <vector>

/// The robots' outlines as they were last drawn, in a list of fixed length.
class Contours final : public SurfaceVide {
public:
    static constexpr std::size_t capacite = std::size_t{robots_max} * (points_max / 2 + 1);

    void vider() { nombre_ = 0; }
    bool vide() const { return nombre_ == 0; }
    std::span<const Trait> traits() const { return std::span(traits_).first(nombre_); }

    void ligne(double x1, double y1, double x2, double y2, Couleur /*couleur*/) override {
        if (nombre_ < capacite)
            traits_[nombre_++] = {{x1, y1}, {x2, y2}};
    }

private:
    std::array<Trait, capacite> traits_{};
    std::size_t nombre_ = 0;
};

/// The drawing surface of the main window. The first painting is a straight one. From the second
/// painting or the first run on, the table is kept in a picture, painted again only when its
/// records, its size or the screen's density change: a tick repaints the rectangles that the robots
/// leave and cover, from that picture, and the robots within them.
class Table final : public QWidget {
public:
    Table(Etat& etat, Fenetres& fenetres, QWidget* parent);

    std::function<void()> au_clic;
    /// Paints over the table and the robots.
    std::function<void(QPainter&)> par_dessus;
    Entier16 Echelle; ///< twips per table unit, as Init_Table chose it

    /// Draws the table; an error shows its message and ends the program.
    void Dessine_Table();
    /// Draws the robots, likewise.
    void Dessine_Robot();
    /// Whether the robots have a fill, a number and a heading mark.
    void montrer_lisibles(bool oui);
    /// As they were drawn last, with all the looks that there is time for when nothing runs.
    void redessiner_robots();
    /// Other robot files are about to be read.
    void oublier_silhouettes() { silhouettes_a_jour_ = false; }
    /// Table coordinates (cm) to this widget's logical pixels.
    Repere repere() const;

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    /// What the picture of the table depends on.
    struct Cle {
        std::uint32_t version = 0;
        int Echelle = 0;
        QSize taille; ///< device pixels
        int XMax = 1, YMax = 1;
        bool operator==(const Cle&) const = default;
    };
    static constexpr std::size_t rectangles_max = 16;

    Cle cle() const;
    bool meme_table() const;
    bool peindre_fond();
    void noter_poses();
    struct PoseDessinee {
        int robot;
        float x, y, cap;
        QRect rectangle; ///< pixels of its looks
    };
    void peindre_silhouettes(const QRect& ici, QPainter& peintre, SurfaceQt& surface);
    void peindre_vite(const PoseDessinee& p, const Silhouette& silhouette, QPainter& peintre,
                      SurfaceQt& surface);
    void peindre_directement(QPainter& peintre);
    void montrer_fond(QPainter& peintre, const QRegion& region);
    void peindre_robots(QPainter& peintre, const QRegion& region);
    void signaler_robots();
    void calculer_rectangles();
    QRect rectangle(const PoseDessinee& p, const Repere& r) const;
    void ajouter_rectangle(QRect r);
    Repere repere_dessine() const;

    Etat& e;
    Fenetres& f;
    bool peinte_ = false; ///< the straight painting was made
    QImage fond_;         ///< the table
    Cle cle_dessinee_;    ///< of the table last drawn
    Contours contours_;
    bool lisibles_ = false;
    bool silhouettes_a_jour_ = false;
    std::vector<PoseDessinee> poses_; ///< of the outlines
    std::array<Silhouette, robots_des_fichiers + 1> silhouettes_;
    std::array<QImage, robots_des_fichiers + 1> numeros_; ///< pictures of the numbers
    std::vector<QRect> rectangles_;        ///< pixels that the robots cover, apart from each other
    std::vector<QRect> rectangles_traits_; ///< of the outlines' lines
    std::vector<Trait> ici_;               ///< the lines within one rectangle
};
