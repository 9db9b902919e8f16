#pragma once

#include "base/texte.h"

#include <cstdint>

/// The action names as the trajectory stores them.
namespace actions {
inline constexpr Nom10 AUCUNE{};
inline constexpr Nom10 FIN{"FIN"};
inline constexpr Nom10 PAUSE{"PAUSE"};
inline constexpr Nom10 AVANCE{"AVANCE"};
inline constexpr Nom10 RECULE{"RECULE"};
inline constexpr Nom10 DROITE{"DROITE"};
inline constexpr Nom10 GAUCHE{"GAUCHE"};
inline constexpr Nom10 VIRAVDR{"VIRAVDR"};
inline constexpr Nom10 VIRAVGA{"VIRAVGA"};
inline constexpr Nom10 VIRARDR{"VIRARDR"};
inline constexpr Nom10 VIRARGA{"VIRARGA"};
inline constexpr Nom10 BALISE_DRO{"BALISE DRO"};
inline constexpr Nom10 BALISE_GAU{"BALISE GAU"};
inline constexpr Nom10 BD{"BD"};
inline constexpr Nom10 BG{"BG"};
inline constexpr Nom10 INIT{"INIT"};

/// One of the four arcs, which alone have a second parameter.
constexpr bool est_virage(const Nom10& a) {
    return a == VIRAVDR || a == VIRAVGA || a == VIRARDR || a == VIRARGA;
}
/// A beacon search, under its long or its short name.
constexpr bool est_balise(const Nom10& a) {
    return a == BALISE_DRO || a == BALISE_GAU || a == BD || a == BG;
}
} // namespace actions

/// The side that a beacon search turns to.
inline constexpr std::uint8_t balise_droite = 1;
inline constexpr std::uint8_t balise_gauche = 2;
