#pragma once

#include "ui/commun/graduations.h"

#include <QRect>
#include <QSize>

#include <algorithm>

/// Where things lie in the timeline, logical pixels: the time axis above, a lane a robot, the
/// legend below, the robots' names on the left.
struct DispositionFrise {
    static constexpr int largeur_noms = 76;
    static constexpr int hauteur_legende = 20;
    static constexpr int piste_min = 20;
    static constexpr int piste_usuelle = 26;
    static constexpr int piste_max = 34;

    QSize taille;
    int robots = 1;

    static int hauteur(int robots, int piste) {
        return epaisseur_regle + robots * piste + hauteur_legende;
    }
    int hauteur_piste() const {
        const int place = taille.height() - epaisseur_regle - hauteur_legende;
        return std::clamp(place / std::max(1, robots), piste_min, piste_max);
    }
    /// The whole lane of a robot, its name included.
    QRect piste(int robot) const {
        const int h = hauteur_piste();
        return {0, epaisseur_regle + (robot - 1) * h, taille.width(), h};
    }
    /// The part of the lanes where times lie, and the axis above it.
    QRect temps() const {
        return {largeur_noms, 0, taille.width() - largeur_noms, piste(robots).bottom() + 1};
    }
    QRect legende() const {
        return {largeur_noms, temps().bottom() + 1, temps().width(), hauteur_legende};
    }
    /// The robot whose lane is at a height; 0 beside the lanes.
    int robot_en(double y) const {
        const int rang = (static_cast<int>(y) - epaisseur_regle) / hauteur_piste() + 1;
        return y >= epaisseur_regle && rang <= robots ? rang : 0;
    }
};
