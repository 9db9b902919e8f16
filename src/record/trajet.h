#pragma once

#include "sim/etat.h"

#include <string>

/// The trajectory file of robot i, 0..9: initial pose, then its actions, then "FIN". Actions that
/// are not moves, pauses or beacons ("FIN" and "INIT" too) give no line.
/// @param nom_de_fichier  as its header shows it, with no blank after it
std::string texte_trajet(const Etat& e, Entier16 i, const std::string& nom_de_fichier);
