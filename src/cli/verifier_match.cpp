#include "cli/verifier_match.h"

#include "analyse/verdict.h"
#include "cli/sortie.h"
#include "config/dossier.h"
#include "sim/damier.h"

#include <iostream>
#include <utility>

namespace {

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
    std::vector<Constat> constats = constats_de_lecture(projet);
    try {
        disposer(*etat);
        if (appliquer_reglages(*etat, choix))
            disposer(*etat);
    } catch (const ErreurExecution& erreur) {
        const std::string texte = texte_erreur_execution(erreur.what());
        fenetres.message(texte);
        constats.push_back({.genre = Genre::arret, .texte = texte});
    }
    Analyse a = analyser(*etat, provenance_de(projet), std::move(constats));
    if (json) {
        std::cout << en_json(a) << std::flush;
    } else {
        mesurer_ecarts(*etat, a);
        montrer(a);
    }
    return a.constats.empty() ? 0 : 1;
}
