#pragma once

#include "analyse/analyse.h"

#include <cstdint>
#include <optional>
#include <string>

/// The verdict in parts, so that a narrow place can do without some. A part may be empty.
struct TexteVerdict {
    std::string projet;   ///< "Projet Finale · 2 robots"
    std::string fin;      ///< "Fin à 42,18 s"
    std::string marge;    ///< "marge 47,82 s (+1,20 s)"
    std::string arrivee;  ///< "arrivée x = 120 cm, y = 80 cm, cap = 90°"
    std::string constats; ///< "2 constats, 1 genre masqué"

    /// All that is said of the match in one line.
    std::string entier() const;
};

/// @param changement  of the margin (hundredths of a second), if it is known
/// @param constats    shown
/// @param masques     kinds switched off
TexteVerdict texte_du_verdict(const Analyse& a, std::optional<std::int32_t> changement,
                              int constats, int masques);

/// At most one decimal: "120", "12,3".
std::string longueur(double valeur);
