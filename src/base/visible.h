#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Length of the valid UTF-8 sequence at the start of a text that is not empty, 0 if there is none.
std::size_t longueur_sequence(std::string_view s);

/// The text as a terminal may show it: a control character, a character that reorders the text
/// around it and a byte that is no UTF-8 become "\x1B", "\u202E", "\xFF". What came from a file or
/// a file's name cannot move the cursor, change colours or pass for another line.
/// @param gardes  control characters that stay as they are
std::string visible(std::string_view texte, std::string_view gardes = "\t");

/// The first 80 bytes, at most, with "…" behind when something was cut.
std::string abrege(std::string_view texte);
