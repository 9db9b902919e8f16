#pragma once

#include "draw/surface.h"
#include "sim/etat.h"

#include <string>

/// How far something is from one edge of the table.
struct Distance {
    std::string bord; ///< "gauche", "droit", "bas", "haut"
    double cm = 0;
};

/// Where a robot stands at the start, as somebody with a ruler needs it.
struct Placement {
    int robot = 0;
    PointTable reference{0, 0};
    double cap = 0;                  ///< degrees, 0..360
    Distance horizontale, verticale; ///< of the reference point, to the nearer edges
    double contour_horizontal = 0;   ///< of the outline, to the same edges
    double contour_vertical = 0;
    bool avec_contour = false;

    /// "référence : 100,0 cm du bord gauche, 30,0 cm du bord bas"
    std::string texte_reference() const;
    /// "contour : 86,0 cm et 20,0 cm des mêmes bords"; "" without an outline
    std::string texte_contour() const;
    /// All in one line, the outline left out: "100,0 cm du bord gauche, 30,0 cm du bord bas, cap
    /// 90,0°"
    std::string texte_court() const;
    /// "cap 90,0°, vers le haut"
    std::string texte_cap() const;

private:
    std::string distances() const;
};

/// @param i  robot, 1..9; its start pose is taken
Placement placement_de(const Etat& e, int i);
