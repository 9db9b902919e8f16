#pragma once

#include "analyse/constat.h"
#include "config/erreur_lecture.h"

/// The finding that a file of the project could not be read to its end.
/// @param dossier  the application directory, which the file is named from
Constat constat_de(const ErreurDeLecture& erreur, const std::filesystem::path& dossier);
