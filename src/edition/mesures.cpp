#include "edition/mesures.h"

#include "base/nombres.h"
#include "edition/formes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

double longueur_de(const Fiche& f) {
    return std::hypot(f.v[2] - f.v[0], f.v[3] - f.v[1]);
}

std::size_t rang(Grandeur g) {
    return static_cast<std::size_t>(g) % 4; // x1, y1, x2, y2; x, y and the sizes behind them
}

void changer(Fiche& f, Grandeur g, double valeur) {
    const auto v = static_cast<float>(valeur);
    const bool boite = !formes::circulaire(f);
    if (boite && (g == Grandeur::x || g == Grandeur::y))
        f.v[rang(g) + 2] += v - f.v[rang(g)]; // moved, its size kept
    if (g == Grandeur::largeur || g == Grandeur::hauteur)
        f.v[rang(g)] = f.v[rang(g) - 2] + v;
    else
        f.v[g == Grandeur::rayon ? 2 : rang(g)] = v;
}

} // namespace

std::vector<Grandeur> grandeurs(const Fiche& f, bool coins) {
    using G = Grandeur;
    if (f.cle == "M")
        return {};
    if (f.cle == "LN")
        return {G::x1, G::y1, G::x2, G::y2, G::incidence};
    if (formes::circulaire(f))
        return {G::x, G::y, G::rayon};
    if (coins || f.cle == "R")
        return {G::x1, G::y1, G::x2, G::y2};
    return {G::x, G::y, G::largeur, G::hauteur};
}

std::vector<Grandeur> grandeurs(const Document& document, const Choix& choix, bool coins) {
    std::optional<std::vector<Grandeur>> communes;
    for (const std::size_t i : choix) {
        if (document[i].cle == "M")
            continue;
        const std::vector<Grandeur> siennes = grandeurs(document[i], coins);
        if (!communes)
            communes = siennes;
        std::erase_if(*communes, [&](Grandeur g) { return !std::ranges::count(siennes, g); });
    }
    return communes.value_or(std::vector<Grandeur>{});
}

double valeur(const Fiche& f, Grandeur g) {
    switch (g) {
    case Grandeur::largeur:
    case Grandeur::hauteur:
        return f.v[rang(g)] - f.v[rang(g) - 2];
    case Grandeur::rayon:
        return f.v[2];
    case Grandeur::incidence:
        return incidence(f);
    default:
        return f.v[rang(g)];
    }
}

std::optional<double> valeur(const Document& document, const Choix& choix, Grandeur g) {
    std::optional<double> commune;
    for (const std::size_t i : choix) {
        if (document[i].cle == "M")
            continue;
        const double v = valeur(document[i], g);
        if (commune && *commune != v)
            return std::nullopt;
        commune = v;
    }
    return commune;
}

Mesures mesures_de(const DocumentTable& table, std::size_t i, const std::optional<Mesures>& avant) {
    if (avant && avant->indice == i && avant->prises == table[i])
        return *avant;
    return {i, table[i], table[i], longueur_de(table[i])};
}

bool taper(Mesures& mesures, Grandeur g, double valeur) {
    Fiche& f = mesures.typees;
    if (g == Grandeur::incidence) {
        f = formes::tournee(f, mesures.longueur, valeur);
        return DocumentTable::normaliser(f) == f;
    }
    changer(f, g, valeur);
    mesures.longueur = longueur_de(f);
    const bool par_les_coins = g <= Grandeur::y2; // in any order
    return par_les_coins || formes::sans_etendue(f) || DocumentTable::normaliser(f) == f;
}

bool taper(DocumentTable& table, const Choix& choix, Grandeur g, double valeur) {
    DocumentTable essai = table;
    for (const std::size_t i : choix) {
        if (essai[i].cle == "M")
            continue;
        Mesures m = mesures_de(essai, i, {});
        if (!taper(m, g, valeur) || en_attente(m))
            return false;
        prendre(essai, m);
    }
    table = std::move(essai);
    return true;
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
