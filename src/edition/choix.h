#pragma once

#include <cstddef>
#include <optional>
#include <vector>

class Document;

/// Records chosen in a document, by their indices in increasing order.
using Choix = std::vector<std::size_t>;

bool choisi(const Choix& choix, std::size_t i);
/// What a click leaves chosen.
/// @param sous     the record under the mouse
/// @param en_plus  it joins what is chosen, or leaves it
Choix apres_clic(const Choix& choix, std::optional<std::size_t> sous, bool en_plus);
/// What a rectangle around these leaves chosen.
Choix apres_cadre(const Choix& choix, const Choix& contenus, bool en_plus);

/// Takes the chosen records out, with their lines.
void retirer(Document& document, const Choix& choix);
