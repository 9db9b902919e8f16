#pragma once

#include "config/projet.h"

#include "outils/dossier_temporaire.h"
#include "outils/fausses_fenetres.h"
#include "outils/textes.h"

#include <gtest/gtest.h>

/// An application directory that is the current one, as at start-up, and a project in it.
class BancProjet : public testing::Test {
protected:
    BancProjet() { std::filesystem::current_path(d.chemin()); }
    ~BancProjet() override { std::filesystem::current_path(depart_); }

    /// The message of a failed reading.
    std::string message(std::string_view nom, int ligne) const {
        return "Erreur lors de la lecture du fichier " + (d / "Configuration").string() + "/" +
               std::string(nom) + " Ligne " + std::to_string(ligne);
    }
    std::filesystem::path ecrire(std::string_view nom, std::string_view octets) const {
        return d.ecrire("Configuration/" + std::string(nom), octets);
    }
    int fichiers() const {
        return static_cast<int>(
            std::distance(std::filesystem::directory_iterator(d / "Configuration"), {}));
    }

    DossierTemporaire d;
    Etat e;
    FaussesFenetres f;
    Projet projet{e, f, d.chemin()};

private:
    std::filesystem::path depart_ = std::filesystem::current_path();
};
