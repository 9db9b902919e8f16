#pragma once

#include "base/erreurs.h"
#include "sim/fenetres.h"

#include <exception>
#include <utility>

/// Runs a procedure that no event has called: what it did not catch itself is shown in a message
/// box, the procedure stops there, and the caller goes on. Handlers of events need none:
/// ApplicationSure does the same for all of them.
template <typename Procedure>
void garde(Fenetres& f, Procedure&& procedure) {
    try {
        std::forward<Procedure>(procedure)();
    } catch (const std::exception& erreur) {
        f.message(texte_erreur_execution(erreur.what()));
    }
}
