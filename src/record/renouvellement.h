#pragma once

#include "config/projet.h"
#include "record/preparation.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// What a trajectory file, or a kept version of one, gives as generation input.
/// @param etat  of the project's session
/// @throws ErreurExecution as preparer_entree(), and when the file cannot be read
GenerationPreparee entree_du_fichier(const Etat& etat, int robot,
                                     const std::filesystem::path& fichier);

/// The robot whose trajectory file gives this very generation input; 0: none.
int robot_de_l_entree(std::string_view octets, const Etat& etat, const Projet& projet);

/// True if a robot's trajectory file, or a version of one that was kept, gives this very input:
/// nobody changed it by hand nor recorded anything else into it, and what replaces it loses
/// nothing.
bool se_refait(std::string_view octets, const Etat& etat, const Projet& projet);

/// The lines of `avant` that `apres` does not have, or not as often, in their order (UTF-8).
std::vector<std::string> lignes_perdues(std::string_view avant, std::string_view apres);
