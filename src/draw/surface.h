#pragma once

#include "base/nombres.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

/// 24-bit colour.
struct Couleur {
    std::uint8_t rouge = 0, vert = 0, bleu = 0;
    bool operator==(const Couleur&) const = default;
};

namespace couleurs {
inline constexpr Couleur noir{0, 0, 0};
inline constexpr Couleur blanc{255, 255, 255};
inline constexpr Couleur rouge{255, 0, 0};
inline constexpr Couleur vert{0, 128, 0};
inline constexpr Couleur bleu{0, 0, 255};
inline constexpr Couleur jaune{255, 255, 0};
inline constexpr Couleur cyan{0, 255, 255};
inline constexpr Couleur cyan_pale{176, 255, 254};
inline constexpr Couleur orange_clair{255, 192, 128};
} // namespace couleurs

/// A point in table coordinates (cm).
struct PointTable {
    double x, y;
};

/// A straight line in table coordinates (cm).
struct Trait {
    PointTable a, b;
};

using Forme = std::vector<PointTable>;

/// A drawing surface in table coordinates (cm, y upwards). One implementation paints in the window,
/// one writes SVG, one does nothing, tests record the calls.
class Surface {
public:
    /// The user coordinates of the four edges.
    virtual void coordonnees(double gauche, double haut, double droite, double bas) = 0;
    virtual void couleur_trait(Couleur couleur) = 0;
    virtual void couleur_fond(Couleur couleur) = 0;
    virtual void fond_plein(bool plein) = 0;          ///< false: transparent
    virtual void trait_pointille(bool pointille) = 0; ///< false: solid
    virtual void epaisseur(Entier16 pixels) = 0;      ///< 0: the thinnest visible line

    /// A box filled with, and in, the foreground colour.
    virtual void boite_pleine(double x1, double y1, double x2, double y2) = 0;
    /// The outline of a box, filled as the fill style says.
    virtual void boite(double x1, double y1, double x2, double y2, Couleur couleur) = 0;
    virtual void ligne(double x1, double y1, double x2, double y2, Couleur couleur) = 0;
    /// An outlined circle, filled as the fill style says.
    virtual void cercle(double x, double y, double rayon, Couleur couleur) = 0;
    /// An arc of ellipse, never filled. `rayon` is the larger semi-axis, `aspect` the vertical
    /// radius divided by the horizontal one; angles in radians, anticlockwise.
    virtual void arc(double x, double y, double rayon, Couleur couleur, double debut, double fin,
                     double aspect) = 0;

    /// How much of what is drawn from now on covers what lies beneath, 0..1; 1 at first.
    virtual void opacite(double part) = 0;
    /// A path through many points, never filled.
    virtual void chemin(std::span<const PointTable> points, Couleur couleur) = 0;
    /// A closed shape full of one colour, without an outline.
    virtual void polygone(std::span<const PointTable> points, Couleur couleur) = 0;
    /// Closed shapes as one: what several cover is covered once. All run anticlockwise.
    virtual void reunion(std::span<const Forme> formes, Couleur couleur) = 0;
    /// A dot. @param rayon  cm  @param bulle  what it says where it is pointed at
    virtual void repere(PointTable centre, double rayon, Couleur couleur,
                        std::string_view bulle) = 0;
    /// A short text about its middle. @param hauteur  of the letters, pixels
    virtual void texte(PointTable milieu, double hauteur, Couleur couleur,
                       std::string_view texte) = 0;
    /// For what keeps its size in pixels at any scale.
    virtual double cm_par_pixel() const = 0;

protected:
    ~Surface() = default;
};
