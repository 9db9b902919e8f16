#pragma once

#include "base/nombres.h"

#include <cstdint>
#include <string>
#include <string_view>

/// A field of the console: how the user knows it, and what was typed.
struct Champ {
    std::string_view nom; ///< "Angle", "Distance, durée ou rayon", "X"...
    std::string_view texte;
};

inline constexpr std::string_view nom_Text1 = "Distance, durée ou rayon";
inline constexpr std::string_view nom_Text4 = "Angle";

/// A whole number of 16 bits; a decimal part is rounded, halves to even.
/// @throws ErreurExecution that names the field, what was typed and what is allowed
Entier16 lire_champ(const Champ& champ);

/// Likewise a byte, 0..255: what the generation table holds.
std::uint8_t lire_champ_octet(const Champ& champ);
