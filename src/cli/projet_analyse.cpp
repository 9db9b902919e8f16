#include "cli/projet_analyse.h"

#include "config/dossier.h"
#include "sim/damier.h"

#include <iostream>
#include <utility>

ProjetAnalyse::ProjetAnalyse(const ChoixDeLigne& choix)
    : etat_(std::make_unique<Etat>()),
      fenetres_(*etat_, std::cerr),
      projet_(*etat_, fenetres_, dossier_application(choix.dossier)) {
    if (choix.projet)
        projet_.imposer_projet(*choix.projet);
    projet_.verifier();
    initDamier(*etat_);
    std::vector<Constat> constats = constats_de_lecture(projet_);
    try {
        disposer(*etat_);
        if (appliquer_reglages(*etat_, choix))
            disposer(*etat_);
    } catch (const ErreurExecution& erreur) {
        const std::string texte = texte_erreur_execution(erreur.what());
        fenetres_.message(texte);
        constats.push_back({.genre = Genre::arret, .texte = texte});
    }
    analyse_ = analyser(*etat_, provenance_de(projet_), std::move(constats));
}
