#pragma once

#include "sim/etat.h"

#include <string>
#include <vector>

/// The generation input file: everything in TableauAGenerer up to the first row of code 0, as
/// straight runs, turns, pauses, beacon searches and tile counts. A code beyond the known ones
/// gives a comment line.
/// @param nom_de_fichier  as its header shows it
std::string texte_generation(const Etat& e, const std::string& nom_de_fichier);

/// The lines that robot i's trajectory, up to its first "FIN", gives in a generation input file:
/// moves only, no tile counts.
std::vector<std::string> mouvements_du_trajet(const Etat& e, Entier16 i);
