#pragma once

#include "outils/dossier_temporaire.h"
#include "outils/textes.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

/// The files below a directory by name.
using Fichiers = std::map<std::string, std::string>;

/// The user's files: not the copies, whose names carry the hour, nor what serves a recovery.
inline Fichiers fichiers_de(const DossierTemporaire& d) {
    namespace fs = std::filesystem;
    Fichiers fichiers;
    for (const auto& entree : fs::recursive_directory_iterator(d.chemin())) {
        const std::string nom = fs::relative(entree.path(), d.chemin()).string();
        if (entree.is_regular_file() && !contient(nom, "Sauvegardes") && !contient(nom, "errou") &&
            !contient(nom, ".tavolmex-") && !contient(nom, "Reprise") && !contient(nom, ".reprise"))
            fichiers[nom] = d.lire(nom);
    }
    return fichiers;
}

/// After a death on the way from one state of the files to another: each one is there, whole, as it
/// was or as it was going to be.
inline void attendre_entiers(const DossierTemporaire& d, const Fichiers& avant,
                             const Fichiers& apres) {
    const Fichiers restes = fichiers_de(d);
    for (const auto& [nom, octets] : restes) {
        const auto ancien = avant.find(nom);
        const auto nouveau = apres.find(nom);
        EXPECT_TRUE((ancien != avant.end() && octets == ancien->second) ||
                    (nouveau != apres.end() && octets == nouveau->second))
            << nom << "\n"
            << octets;
    }
    for (const auto& [nom, octets] : avant)
        EXPECT_TRUE(restes.contains(nom) || !apres.contains(nom)) << nom;
}
