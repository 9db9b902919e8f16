#pragma once

#include "codegen/relecture.h"
#include "sim/etat.h"

#include <string_view>
#include <vector>

/// A move that the generator makes of a trajectory.
struct MouvementAttendu {
    std::string_view mot; ///< of its rule
    int valeur = 0;       ///< rounded, as in the code
    int action = 0;       ///< of the trajectory, from 1

    bool est(const MouvementRelu& relu) const {
        return relu.regle->mot == mot && (relu.regle->affectation.empty() || relu.valeur == valeur);
    }
};

/// The moves of a robot's plan in their order, tile counts left out.
std::vector<MouvementAttendu> mouvements_attendus(const Trajectoires& t, int robot);

/// What moves the robot or makes it wait: all but the tile counts.
std::vector<MouvementRelu> deplacements(const CodeRelu& code);

/// The robot whose trajectory this code was made from: the one that has the most moves in common
/// with it, in order, and at least half of its own; 0: none, or one that does not play (the other
/// side of a trajectory has all straight moves in common with it).
int robot_du_code(const Etat& e, const CodeRelu& code);
