#pragma once

#include "draw/surface.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

/// Margin that the surface shows around the table, in cm.
inline constexpr int marge_table = 5;

/// Paints the table within ZoneRedessin: background, zones, border, blocks, lines, ellipses,
/// pieces.
/// @param Echelle  twips per table unit: the ellipses' pen follows it
/// @throws ErreurExecution: a coordinate beyond 16 bits, an ellipse of zero width...
void peindre_table(const Etat& e, Surface& s, Entier16 Echelle = 0);

/// peindre_table; an error shows a message and ends the program. @returns false after an error
bool Dessine_Table(const Etat& e, Surface& s, Fenetres& f, Entier16 Echelle = 0);

/// The colour of a zone or the fill colour of a piece, by its key.
Couleur couleur_zone(char Type);
Couleur couleur_pion(std::string_view Type);
