#pragma once

#include "edition/choix.h"
#include "edition/formes.h"

#include <vector>

enum class Bord { gauche, droite, haut, bas, milieu_x, milieu_y };

/// How far each of these records is from an edge, or the middle, of the box around all of them. A
/// caption is nowhere, and stays.
/// @throws ErreurExecution, a sentence for the user, for fewer than two
std::vector<Vecteur> ecarts_au_bord(const Document& document, const Choix& choix, Bord bord);

/// Moves each there, of a table or of a robot. @throws as above
template <typename Doc>
void aligner(Doc& document, const Choix& choix, Bord bord) {
    const std::vector<Vecteur> ecarts = ecarts_au_bord(document, choix, bord);
    for (std::size_t k = 0; k < choix.size(); ++k)
        deplacer(document, {choix[k]}, ecarts[k]);
}
