#pragma once

#include "codegen/programme.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Asks a yes/no question; true = Oui. A window, the terminal or a test stands behind it.
using Repondre = std::function<bool(std::string_view question)>;

inline constexpr std::size_t lignes_de_banniere = 7;

/// The seven lines that stand above every generated subroutine.
std::array<std::string, lignes_de_banniere> banniere();

/// What the program loses when an older subroutine is replaced.
struct Retrait {
    std::vector<Modification> modifications; ///< empty unless the last answer was Oui
    bool remplacee = false;                  ///< at least one answer was Oui
    bool sans_return = false;                ///< a removal went down to the end of the program
};

/// Looks for the label `fonction`: in any case, between blanks or TABs, and asks for each one
/// whether to overwrite it. Oui removes the label, the seven lines of the generator's own banner
/// directly above it, and everything down to the first "return" alone on its line (or the end).
Retrait retirer_fonction(const Programme& programme, std::string_view fonction,
                         const Repondre& repondre);
