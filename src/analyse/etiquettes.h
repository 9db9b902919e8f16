#pragma once

#include "draw/surface.h"

#include <cstdint>
#include <optional>
#include <vector>

/// Finds places for small labels beside what they name, so that they hide neither each other nor
/// the paths: a coarse grid over the table of what is taken. Lengths in cm.
class PlacesLibres {
public:
    /// @param pixel  cm; nothing smaller than a few of them is told apart
    PlacesLibres(double XMax, double YMax, double pixel);

    void occuper(PointTable a, PointTable b); ///< a straight way
    void occuper_autour(PointTable milieu, double rayon);
    /// The middle of a label of that size about `ancre`: in the direction (degrees) asked for or,
    /// where that is taken, the freest of those around; then it is taken. Nothing where it would
    /// hide another label.
    std::optional<PointTable> placer(PointTable ancre, double direction, double largeur,
                                     double hauteur);

private:
    struct Cellules {
        int x1, y1, x2, y2;
    };
    Cellules cellules(PointTable milieu, double largeur, double hauteur) const;
    int colonne(double x) const;
    int rangee(double y) const;
    bool dedans(int x, int y) const;
    std::size_t rang(int x, int y) const;
    int gene(const Cellules& c) const;
    void occuper(const Cellules& c, std::uint8_t poids);

    double ecart_; ///< between a place and its label
    double cote_;  ///< of a cell
    int colonnes_, rangees_;
    std::vector<std::uint8_t> prises_;
};
