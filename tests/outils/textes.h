#pragma once

#include "base/erreurs.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

/// True when a text has that piece; a test that fails shows both.
inline testing::AssertionResult contient(std::string_view texte, std::string_view morceau) {
    const bool trouve = texte.find(morceau) != std::string_view::npos;
    return testing::AssertionResult(trouve) << "« " << morceau << " » in: " << texte;
}

/// What an action that fails says; "" when it does not fail.
template <typename Action>
std::string message_de(Action action) {
    try {
        action();
    } catch (const ErreurExecution& erreur) {
        return erreur.what();
    }
    return "";
}
