#pragma once

#include "config/document_trajet.h"
#include "sim/etat.h"

#include <string>

/// The generation input that driving a trajectory on the console records.
struct GenerationPreparee {
    std::string texte;
    /// The match ends before or with an action of the trajectory: the console began anew there.
    bool hors_du_match = false;
};

/// Drives robot `robot` through the trajectory's actions from its start, on a console that nobody
/// sees. What was recorded before is not part of it.
/// @param etat  at rest, the trajectory's start pose loaded; the caller's to lose (a copy).
///              NbRobot, utiliDamier and TableHorizontale are those of the driving
/// @throws LigneRefusee for an action that the recorder or the generation table cannot hold, that
///         follows "FIN" or that cannot be played; ErreurExecution when the driving cannot begin
GenerationPreparee preparer_generation(Etat& etat, int robot, const DocumentTrajet& trajet,
                                       const std::string& nom_de_fichier);
