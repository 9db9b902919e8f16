#include "cli/verifier_match.h"

#include "analyse/verdict.h"
#include "cli/sortie.h"
#include "config/dossier.h"
#include "sim/damier.h"

#include <iostream>

namespace fs = std::filesystem;

namespace {

Provenance provenance_de(const Projet& projet) {
    Provenance p;
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        p.fichier(n) = projet.chemin_trajet(n).lexically_relative(projet.dossier_application());
        p.lignes(n) = projet.lignes_trajet(n);
    }
    return p;
}

/// The reason without the file's name, which stands elsewhere, and without the record's padding.
std::string raison_seule(const ErreurDeLecture& erreur) {
    std::string_view raison = erreur.raison;
    const std::string nom = erreur.fichier.string() + " : ";
    if (raison.starts_with(nom))
        raison.remove_prefix(nom.size());
    return std::string(rogner(raison));
}

Constat constat_de(const ErreurDeLecture& erreur, const Projet& projet) {
    Constat c{.genre = Genre::lecture,
              .fichier = erreur.fichier.lexically_relative(projet.dossier_application()),
              .texte = "lecture impossible : " + raison_seule(erreur) +
                       ". Le match est joué sans la suite de ce fichier, avec des données de "
                       "secours : corrigez-le d'abord."};
    if (erreur.robot > 0)
        c.robot = erreur.robot;
    if (erreur.ligne > 0)
        c.ligne = erreur.ligne;
    return c;
}

void montrer(const Analyse& a) {
    const SortieDeLignes sortie;
    sortie.ligne(verdict(a));
    for (const Constat& c : a.constats)
        sortie.ligne(en_ligne(c));
    for (const EcartDeRobots& e : a.ecarts)
        sortie.ligne(en_ligne(e));
}

} // namespace

int verifier_match(const ChoixDeLigne& choix, bool json) {
    const auto etat = std::make_unique<Etat>();
    FenetresTerminal fenetres(*etat, std::cerr);
    Projet projet(*etat, fenetres, dossier_application(choix.dossier));
    if (choix.projet)
        projet.imposer_projet(*choix.projet);
    projet.verifier();
    initDamier(*etat);
    std::vector<Constat> constats;
    for (const ErreurDeLecture& erreur : projet.erreurs())
        constats.push_back(constat_de(erreur, projet));
    try {
        disposer(*etat);
        if (appliquer_reglages(*etat, choix))
            disposer(*etat);
    } catch (const ErreurExecution& erreur) {
        const std::string texte = texte_erreur_execution(erreur.what());
        fenetres.message(texte);
        constats.push_back({.genre = Genre::arret, .texte = texte});
    }
    Analyse a = analyser(*etat, provenance_de(projet));
    a.constats.insert(a.constats.end(), constats.begin(), constats.end());
    ranger(a.constats);
    if (json) {
        std::cout << en_json(a) << std::flush;
    } else {
        mesurer_ecarts(*etat, a);
        montrer(a);
    }
    return a.constats.empty() ? 0 : 1;
}
