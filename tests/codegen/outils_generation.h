#pragma once

#include "base/texte.h"
#include "codegen/generateur.h"
#include "outils/dossier_temporaire.h"
#include "outils/textes.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <string>
#include <vector>

/// Answers from a queue ("Non" when empty) and keeps the questions.
class Repondeur {
public:
    std::vector<std::string> questions;
    std::deque<bool> reponses;

    Repondre repondre() {
        return [this](std::string_view question) {
            questions.emplace_back(question);
            const bool reponse = !reponses.empty() && reponses.front();
            if (!reponses.empty())
                reponses.pop_front();
            return reponse;
        };
    }
};

inline Repondre toujours(bool reponse) {
    return [reponse](std::string_view) { return reponse; };
}

/// A folder with a starting file and a generation input file, and the demand for them.
struct Atelier {
    DossierTemporaire dossier;
    Demande demande;

    Atelier(std::string_view depart, std::string_view entree) {
        demande.depart = dossier.ecrire("depart.bas", depart);
        demande.entree = dossier.ecrire("entree.ini", entree);
        demande.cible = (dossier / "cible.bas").string();
        demande.fonction = "TRAJECTOIRE";
    }

    std::filesystem::path sauvegardes() const { return dossier / "Configuration/Sauvegardes"; }
    Generation generer(const Repondre& repondre) const {
        return ::generer(demande, sauvegardes(), repondre);
    }
    /// Names of the dated copies that begin with `debut`, sorted.
    std::vector<std::string> copies(std::string_view debut) const {
        std::vector<std::string> noms;
        std::error_code erreur;
        for (const auto& e : std::filesystem::directory_iterator(sauvegardes(), erreur)) {
            if (e.path().filename().string().starts_with(debut))
                noms.push_back(e.path().filename().string());
        }
        std::sort(noms.begin(), noms.end());
        return noms;
    }
};
