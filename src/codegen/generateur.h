#pragma once

#include "base/erreurs.h"
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

/// A bad value stopped a generation: the target ends before that value's statements.
class GenerationInterrompue final : public ErreurExecution {
public:
    GenerationInterrompue(const std::string& raison, Generation ce_qui_est_fait)
        : ErreurExecution(raison), faite(std::move(ce_qui_est_fait)) {}
    Generation faite; ///< what was written all the same
};

/// Generates: reads both files, asks, then replaces the starting file (only if it changes) and the
/// target, each as a whole and after a dated copy of it. They may be the same file. The demand has
/// passed verifier().
/// @param sauvegardes  directory of the dated copies
/// @throws ErreurFichier with nothing written when a file cannot be read or copied;
///         GenerationInterrompue for a bad value
Generation generer(const Demande& demande, const std::filesystem::path& sauvegardes,
                   const Repondre& repondre);
