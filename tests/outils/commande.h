#pragma once

#include "cli/ligne_de_commande.h"
#include "outils/dossier_temporaire.h"
#include "outils/textes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <iostream>
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

/// The same with a file on standard input.
inline Resultat lancer_depuis(const std::filesystem::path& entree,
                              std::vector<std::string> arguments) {
    EXPECT_NE(std::freopen(entree.c_str(), "r", stdin), nullptr);
    std::cin.clear();
    return lancer(std::move(arguments));
}

/// The same with a text; `d` keeps it meanwhile.
inline Resultat lancer_avec_entree(const DossierTemporaire& d, std::vector<std::string> arguments,
                                   std::string_view entree) {
    return lancer_depuis(d.ecrire("entree.txt", entree), std::move(arguments));
}
