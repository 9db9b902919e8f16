#pragma once

#include "codegen/programme.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A line of a program whose last character is ":".
struct Etiquette {
    std::string texte;     ///< the whole line in upper case, blanks and TABs included
    std::size_t ligne = 0; ///< its line number, from 1
};

/// Walks over the lines that end in ":"; nothing is kept of them.
void pour_chaque_etiquette(const Programme& programme,
                           const std::function<void(const Etiquette&)>& action);

/// The lines that end in ":", comments and statements included, in the order of the file.
std::vector<Etiquette> lister_etiquettes(const Programme& programme);

/// The lines from the label down to the first one that holds "RETURN" in any case (or the end),
/// each behind a line end; of several equal labels the last one counts.
/// @param etiquette  a text of lister_etiquettes()
std::string corps_de(const Programme& programme, std::string_view etiquette);

/// Indices, in ascending order, of the labels whose corps_de() holds the text, in any case.
std::vector<std::size_t> chercher_dans_les_corps(const Programme& programme,
                                                 const std::vector<Etiquette>& etiquettes,
                                                 std::string_view texte);

/// Index in the list of the label that a user or a Gosub names: in any case, with or without ":"
/// and blanks; the first if there are several.
std::optional<std::size_t> chercher_etiquette(const std::vector<Etiquette>& etiquettes,
                                              std::string_view nom);
/// The same label without a list of all of them.
std::optional<Etiquette> chercher_etiquette(const Programme& programme, std::string_view nom);
