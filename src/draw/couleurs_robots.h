#pragma once

#include "draw/surface.h"
#include "sim/etat.h"

#include <array>

/// One colour a robot, told apart by colour-blind eyes too, the first ones best: they differ in
/// lightness or along blue and yellow, and stand out from the table's green.
inline constexpr std::array<Couleur, robots_des_fichiers> couleurs_robots{{{0, 255, 255},
                                                                           {255, 48, 144},
                                                                           {255, 255, 0},
                                                                           {192, 0, 255},
                                                                           {48, 192, 255},
                                                                           {192, 224, 192},
                                                                           {255, 224, 96},
                                                                           {255, 0, 192},
                                                                           {224, 224, 144}}};

/// @param i  robot, 1..9
constexpr Couleur couleur_robot(int i) {
    return couleurs_robots.at(static_cast<std::size_t>(i - 1));
}

/// Black or white, what is read better on a colour.
constexpr Couleur couleur_lisible_sur(Couleur fond) {
    const int clarte = 299 * fond.rouge + 587 * fond.vert + 114 * fond.bleu;
    return clarte > 110'000 ? couleurs::noir : couleurs::blanc;
}
