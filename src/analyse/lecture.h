#pragma once

#include "analyse/code.h"
#include "analyse/constat.h"
#include "config/erreur_lecture.h"
#include "config/projet.h"

/// The finding that a file of the project could not be read to its end.
/// @param dossier  the application directory, which the file is named from
Constat constat_de(const ErreurDeLecture& erreur, const std::filesystem::path& dossier);
/// The generation input of a project, read back; nothing when there is none that can be read.
std::optional<CodeDuRobot> code_du_projet(const Projet& projet);
