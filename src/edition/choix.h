#pragma once

#include <cstddef>
#include <optional>
#include <utility>
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

/// A record was put in at `nouveau`: what stood there and behind has moved, and it is chosen too.
void joindre(Choix& choix, std::size_t nouveau);

/// Adds records, all over those of their kind. @returns them @throws as creer() does
template <typename Doc, typename Fiches>
Choix creer_tous(Doc& document, Fiches fiches) {
    Choix choix;
    for (auto& f : fiches)
        joindre(choix, creer(document, std::move(f)));
    return choix;
}

/// Takes the chosen records out, with their lines.
void retirer(Document& document, const Choix& choix);
