#pragma once

#include "base/systeme.h"

#include <filesystem>
#include <string>

// A file that is replaced as a whole is first written beside: the draft. It is locked while its
// program lives, so that one whose program was killed is recognised and removed.

/// Creates an empty draft in `dossier`, locked. @returns a closed descriptor with errno set when it
/// cannot be made; the lock ends with the last duplicate of the descriptor
systeme::Descripteur creer_brouillon(const std::filesystem::path& dossier, std::string& chemin);

/// Removes the drafts that killed programs left in `dossier`.
void retirer_brouillons(const std::filesystem::path& dossier);
