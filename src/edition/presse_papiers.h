#pragma once

#include "config/document.h"

#include <string_view>
#include <vector>

/// The records of lines that were copied: comments and blank lines hold none.
/// @throws LigneRefusee for a line that is no record
std::vector<Fiche> lire_fiches(std::string_view lignes, const Grammaire& grammaire);
