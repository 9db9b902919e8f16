#pragma once

#include "cli/ligne_de_commande.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What a command line left behind.
struct Resultat {
    int code;
    std::string sortie, erreurs;
};

/// Runs tavolmex-cli with these words inside the test.
inline Resultat lancer(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "tavolmex-cli");
    std::vector<char*> argv;
    argv.reserve(arguments.size());
    for (std::string& a : arguments)
        argv.push_back(a.data());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int code = executer_ligne_de_commande(static_cast<int>(argv.size()), argv.data());
    return {code, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}
