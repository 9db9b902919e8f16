#pragma once

#include <string>
#include <string_view>
#include <vector>

inline constexpr double mm_par_point = 25.4 / 72;

/// About how wide a text is in the sheet's font, never much less than it is.
/// @param corps  points  @returns mm
double largeur_texte(std::string_view texte, double corps, bool gras = false);
/// The lines of a text that is not to be wider (mm); a word that is stands alone.
std::vector<std::string> couper(std::string_view texte, double corps, double largeur);
