#pragma once

#include "config/projet.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

/// Does to the project just read what the program does with it: layout and first drawing, upright
/// and turned, the quarter turns back and forth, the start poses of all nine robots, and whole
/// matches. What would end the program comes out as a message that names file and robot, its reason
/// as the explanation. `lu` is not changed.
void essayer_le_projet(const Etat& lu, const Projet& projet, Fenetres& fenetres);
