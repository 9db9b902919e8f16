#pragma once

#include "base/nombres.h"
#include "base/texte.h"

#include <array>
#include <optional>
#include <string_view>

/// One line of a trajectory file: what the simulator's reader, the trajectory's document and
/// "piloter" make of it.
struct LigneTrajet {
    Nom10 code;                  ///< keyword in capitals: "AVANCE    ", "BALISE DRO"
    int parametres = 0;          ///< numbers that belong to it, 0..3
    std::array<Entier16, 3> v{}; ///< those numbers (cm, degrees, hundredths of a second)
};

/// A line without its comment counts if it holds an ASCII letter, of either case, or a digit.
bool compte_dans_un_trajet(std::string_view ligne);

/// The keyword of a line: its first ten characters before the comma, blanks at the start included,
/// in capitals.
Nom10 code_de_trajet(std::string_view ligne);

/// How many numbers follow a keyword: 1 or 2 for a motion or pause, 3 for "INIT", 0 for "FIN" and
/// the beacons. @returns nothing for a keyword that trajectory files do not have
std::optional<int> parametres_de_trajet(const Nom10& code);

/// Reads one line that counts, its comment cut off.
/// @throws ErreurLecture for an unknown keyword, ErreurConversion for a number that is none
LigneTrajet lire_ligne_trajet(std::string_view ligne);
