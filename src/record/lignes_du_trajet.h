#pragma once

#include "sim/etat.h"

#include <vector>

/// Which rows of the generation table belong to the actions of a trajectory.
struct LignesDuTrajet {
    struct Action {
        int debut = 0;         ///< rows in the table before the action
        bool connue = false;   ///< its rows were found, or it can have none
        bool sans_code = true; ///< the table lacks it
        bool carreaux = false; ///< a tile count follows it
    };
    std::vector<Action> actions; ///< the trajectory's, oldest first; a "FIN" at its end left out
    int trouvees = 0;            ///< actions that have rows
    /// The end of the table is the end of this trajectory: it was recorded last.
    bool au_bout_du_tableau = false;
};

/// Finds the rows from the table's end backwards, as they were appended.
LignesDuTrajet lignes_du_trajet(const Etat& e, Entier16 robot);

/// Of robots 1..NbRobot the one that was recorded last; 0 when there is none.
Entier16 robot_enregistre_en_dernier(const Etat& e);
