#pragma once

#include <QString>

#include <array>

/// How much faster than the match's own time its clock may go; 0 is as fast as the machine allows.
inline constexpr std::array vitesses{0.1, 0.25, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0, 0.0};

/// "×0,25", "max"
QString legende_vitesse(double vitesse);
/// The next one up or down, itself at the ends. @param sens  1 or -1
double vitesse_voisine(double vitesse, int sens);
