#pragma once

#include "codegen/programme.h"

#include <string>
#include <string_view>
#include <vector>

/// What the program gains when a subroutine is registered in its LCD menu.
struct PassageMenu {
    std::vector<Modification> modifications;
    std::string ancre_manquante; ///< the line that was looked for in vain; empty: all were found
    std::size_t constantes = 0;  ///< how many lines with the menu's constant were raised by one
    std::size_t entrees = 0;     ///< how many of the two entries were inserted
    std::size_t deja = 0;        ///< first line that shows the subroutine already; 0: none
};

/// Raises the constant NUM_MENU_MAX by one to N and inserts an entry of number N after that of
/// N - 1 in the menu's action and in its display. From the first missing anchor on, the program
/// stays as it is.
/// @param fichier  named in errors
/// @param fin      ends the inserted lines
/// @throws ErreurExecution when the constant's line holds no 16-bit number or 32767
PassageMenu integrer_au_menu(const Programme& programme, const std::filesystem::path& fichier,
                             std::string_view fonction, std::string_view fin);
