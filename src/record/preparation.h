#pragma once

#include "config/document_trajet.h"
#include "sim/etat.h"

#include <string>
#include <string_view>

/// What a project's generation input is called, behind the project's name.
inline constexpr std::string_view suite_de_l_entree = " PourGenerer10.ini";

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

/// The same from the state of a session, which stays as it is: as the console would record it on
/// the table as it is shown, the trajectory in the place of the robot's own.
GenerationPreparee preparer_entree(const Etat& etat, int robot, const DocumentTrajet& trajet);
