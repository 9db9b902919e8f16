#include "record/renouvellement.h"

#include "base/fichiers.h"
#include "base/texte.h"

#include <set>

namespace fs = std::filesystem;

namespace {

bool donne(const fs::path& trajet, int robot, const Etat& etat, std::string_view octets) {
    try {
        return entree_du_fichier(etat, robot, trajet).texte == octets;
    } catch (const ErreurExecution&) { // this one is not where it comes from
        return false;
    }
}

std::vector<std::string> lignes_de(std::string_view octets) {
    const std::string texte = en_utf8(std::string(octets));
    std::vector<std::string> lignes;
    Lignes suite(texte);
    while (const auto ligne = suite.suivante())
        lignes.emplace_back(*ligne);
    return lignes;
}

} // namespace

GenerationPreparee entree_du_fichier(const Etat& etat, int robot, const fs::path& fichier) {
    const DocumentTrajet trajet = DocumentTrajet::depuis(lire_octets(fichier));
    // Short beacons are the recorder's own.
    if (const auto refus = trajet.refus(false); !refus.empty())
        throw LigneRefusee(refus.front().ligne, refus.front().raison);
    return preparer_entree(etat, robot, trajet);
}

int robot_de_l_entree(std::string_view octets, const Etat& etat, const Projet& projet) {
    for (int n = 1; n <= robots_des_fichiers; ++n)
        if (donne(projet.chemin_trajet(n), n, etat, octets))
            return n;
    return 0;
}

bool se_refait(std::string_view octets, const Etat& etat, const Projet& projet) {
    if (robot_de_l_entree(octets, etat, projet) != 0)
        return true;
    const fs::path dossier = projet.dossier_configuration() / "Sauvegardes";
    for (int n = 1; n <= robots_des_fichiers; ++n)
        for (const fs::path& version : versions_gardees(projet.chemin_trajet(n), dossier))
            if (donne(version, n, etat, octets))
                return true;
    return false;
}

std::vector<std::string> lignes_perdues(std::string_view avant, std::string_view apres) {
    const std::vector<std::string> nouvelles = lignes_de(apres);
    std::multiset<std::string> restent(nouvelles.begin(), nouvelles.end());
    std::vector<std::string> perdues;
    for (std::string& ligne : lignes_de(avant)) {
        if (const auto gardee = restent.find(ligne); gardee != restent.end())
            restent.erase(gardee);
        else
            perdues.push_back(std::move(ligne));
    }
    return perdues;
}
