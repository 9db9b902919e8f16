#include "analyse/lecture.h"

#include "analyse/analyse.h"
#include "base/texte.h"

Constat constat_de(const ErreurDeLecture& erreur, const std::filesystem::path& dossier) {
    const std::string_view raison = rogner(erreur.raison); // without the key's padding
    Constat c{.genre = Genre::lecture,
              .fichier = erreur.fichier.lexically_relative(dossier).string(),
              .texte = "lecture impossible : " + std::string(raison) +
                       ". Le match est joué sans la suite de ce fichier, avec des données de "
                       "secours : corrigez-le d'abord."};
    if (erreur.robot > 0)
        c.robot = erreur.robot;
    if (erreur.ligne > 0)
        c.ligne = erreur.ligne;
    return c;
}

Provenance provenance_de(const Projet& projet) {
    Provenance p;
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        p.fichier(n) =
            projet.chemin_trajet(n).lexically_relative(projet.dossier_application()).string();
        p.lignes(n) = projet.lignes_trajet(n);
    }
    p.code = code_du_projet(projet);
    return p;
}

std::vector<Constat> constats_de_lecture(const Projet& projet) {
    std::vector<Constat> constats;
    for (const ErreurDeLecture& erreur : projet.erreurs())
        constats.push_back(constat_de(erreur, projet.dossier_application()));
    return constats;
}
