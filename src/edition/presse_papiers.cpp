#include "edition/presse_papiers.h"

#include "base/texte_brut.h"
#include "config/ligne.h"

#include <string>

std::vector<Fiche> lire_fiches(std::string_view lignes, const Grammaire& grammaire) {
    std::vector<Fiche> fiches;
    const TexteBrut brut{std::string(lignes)};
    LignesBrutes restantes = brut.lignes();
    int numero = 0;
    while (const auto ligne = restantes.suivante()) {
        ++numero;
        const std::string_view utile = sans_commentaire(ligne->texte);
        if (!contient_capitale_ou_chiffre(utile))
            continue;
        FicheLue lue = grammaire(utile);
        if (!lue.refus.empty())
            throw LigneRefusee(numero, lue.refus);
        fiches.push_back(std::move(lue.fiche));
    }
    return fiches;
}
