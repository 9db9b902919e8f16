#pragma once

#include "codegen/demande.h"
#include "codegen/retrait.h"

#include <filesystem>
#include <vector>

/// Asked once the target is written.
inline constexpr std::string_view question_voir = "Voulez-vous voir le fichier généré?";

/// What a generation did besides writing the target.
struct Generation {
    bool depart_reecrit = false;                    ///< the starting file changed
    std::vector<std::filesystem::path> sauvegardes; ///< dated copies of the files replaced
};

/// Generates: reads both files, asks, then replaces the starting file (only if it changes) and the
/// target, each as a whole and after a dated copy of it. They may be the same file. The demand has
/// passed verifier().
/// @param sauvegardes  directory of the dated copies
/// @throws ErreurFichier with nothing written when a file cannot be read or copied; ErreurExecution
///         for a bad value: the target then ends before that value's statements
Generation generer(const Demande& demande, const std::filesystem::path& sauvegardes,
                   const Repondre& repondre);
