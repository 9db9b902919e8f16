#pragma once

#include "sim/etat.h"

/// The built-in table's extent: 200 x 320 cm without zones; everything else keeps its values.
void Init_Table_Old(Etat& e);

/// The built-in robot, four segments of about 20 x 40 cm, for robots `premier`..9.
void Init_Robot_Old(Etat& e, Entier16 premier = 1);

/// The built-in trajectory for robots 1..9: "FIN" alone.
void Init_Jeu_Old(Etat& e);
