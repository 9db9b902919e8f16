#include "edition/mesures.h"

#include "base/nombres.h"
#include "edition/formes.h"

#include <cmath>

namespace {

double longueur_de(const Fiche& f) {
    return std::hypot(f.v[2] - f.v[0], f.v[3] - f.v[1]);
}

} // namespace

Mesures mesures_de(const DocumentTable& table, std::size_t i, const std::optional<Mesures>& avant) {
    if (avant && avant->indice == i && avant->prises == table[i])
        return *avant;
    return {i, table[i], table[i], longueur_de(table[i])};
}

bool taper(Mesures& mesures, std::size_t champ, double valeur) {
    Fiche& f = mesures.typees;
    if (champ < nombre_de_champs(f.cle)) {
        f.v[champ] = static_cast<float>(valeur);
        mesures.longueur = longueur_de(f);
        return true;
    }
    f = formes::tournee(f, mesures.longueur, valeur);
    return DocumentTable::normaliser(f) == f;
}

bool en_attente(const Mesures& mesures) {
    return formes::sans_etendue(mesures.typees) && !formes::sans_etendue(mesures.prises);
}

bool prendre(DocumentTable& table, Mesures& mesures) {
    mesures.prises = DocumentTable::normaliser(mesures.typees);
    if (mesures.prises == table[mesures.indice])
        return false;
    table.remplacer(mesures.indice, mesures.prises);
    return true;
}

double incidence(const Fiche& ligne) {
    return std::atan2(ligne.v[3] - ligne.v[1], ligne.v[2] - ligne.v[0]) * 180 / Pi;
}
