#pragma once

#include "sim/fenetres.h"

#include <exception>
#include <string>
#include <utility>

/// Runs one handler. No exception may cross the event loop: what the handler did not catch itself
/// is shown in a message box, the handler stops there, and the program goes on.
template <typename Procedure>
void garde(Fenetres& f, Procedure&& procedure) {
    try {
        std::forward<Procedure>(procedure)();
    } catch (const std::exception& erreur) {
        f.message(std::string("Erreur d'exécution : ") + erreur.what());
    }
}
