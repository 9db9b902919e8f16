#include "cli/verifier_match.h"

#include "analyse/verdict.h"
#include "cli/projet_analyse.h"
#include "cli/sortie.h"

#include <iostream>

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
    ProjetAnalyse projet(choix);
    Analyse& a = projet.analyse();
    if (json) {
        std::cout << en_json(a) << std::flush;
    } else {
        mesurer_ecarts(projet.etat(), a);
        montrer(a);
    }
    return a.constats.empty() ? 0 : 1;
}
