#include "config/lecteur_table.h"

#include "config/fiche_table.h"
#include "config/ligne.h"

#include <algorithm>
#include <string>

namespace {

// The count grows only once the slot is there: a refused record leaves it at the capacity.
template <typename T, int Dernier>
void ajouter(Tableau<T, Dernier>& table, Entier16& nombre, const T& valeur) {
    const Entier16 suivant = nombre + 1;
    table(suivant) = valeur;
    nombre = suivant;
}

void ajouter_pion(AireDeJeu& e, const Fiche& f) {
    ajouter(e.Pions, e.NbPions, Pion{f.entier(0), f.entier(1), f.entier(2), f.cle});
    const PointBalise balise{f.v[0], f.v[1], f.v[2]};
    if (f.cle == "X")
        e.PointX = balise;
    else if (f.cle == "Y")
        e.PointY = balise;
}

std::string legende(const Fiche& f) {
    std::string nom(RetourLigne);
    for (const char c : f.texte) {
        if (c == '\n')
            nom += RetourLigne;
        else
            nom += c;
    }
    return nom;
}

} // namespace

void vider_table(AireDeJeu& e) {
    e.NbZones = e.NbPions = e.NbLignes = e.NbBlocs = e.NbEllipses = 0;
    e.XMax = e.YMax = 0;
    ++e.version_table;
}

void etendre_la_table(const Fiche& f, AireDeJeu& e) {
    const FormeTable forme = forme_table(f.cle);
    if (forme == FormeTable::pion || forme == FormeTable::aucune)
        return;
    const std::size_t coordonnees = forme == FormeTable::disque ? 2 : 4;
    for (std::size_t i = 0; i < coordonnees; i += 2) {
        e.XMax = std::max<int>(e.XMax, f.entier(i));
        e.YMax = std::max<int>(e.YMax, f.entier(i + 1));
    }
}

void ajouter_a_la_table(const Fiche& f, AireDeJeu& e) {
    etendre_la_table(f, e);
    const Quatre q{f.entier(0), f.entier(1), f.entier(2), f.entier(3)};
    switch (forme_table(f.cle)) {
    case FormeTable::aucune:
        return;
    case FormeTable::pion:
        return ajouter_pion(e, f);
    case FormeTable::disque:
        return ajouter(e.Blocs, e.NbBlocs, Quatre{q.X1, q.Y1, q.X2, marque_disque});
    case FormeTable::ligne:
        return ajouter(e.Lignes, e.NbLignes, q);
    case FormeTable::boite:
        break;
    }
    if (f.cle == "DC")
        ajouter(e.Blocs, e.NbBlocs, q);
    else if (f.cle == "LE")
        ajouter(e.Ellipses, e.NbEllipses, q);
    else
        ajouter(e.Zones, e.NbZones, Zone{f.cle.front(), q.X1, q.Y1, q.X2, q.Y2});
}

void lire_table(std::string_view texte, AireDeJeu& e,
                const std::function<void(std::string_view)>& nommer, Entier16& NoLigne) {
    ++e.version_table;
    GrammaireTable grammaire;
    pour_chaque_ligne(texte, NoLigne, [&](std::string_view ligne) {
        const Fiche f = exiger(grammaire.lire(ligne));
        if (f.cle == "M")
            nommer(legende(f));
        ajouter_a_la_table(f, e);
    });
    if (e.XMax < 1 || e.YMax < 1)
        throw ErreurLecture("la table n'a pas d'étendue");
}
