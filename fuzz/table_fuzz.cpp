#include "config/lecteur_table.h"
#include "outils.h"

#include <memory>

CIBLE(table) {
    static const auto e = std::make_unique<Etat>();
    const std::string texte = texte_lu(octets, taille);
    Entier16 NoLigne;
    vider_table(*e);
    // A caption at most doubles its line.
    const auto nommer = [&](std::string_view nom) { exiger(nom.size() <= 2 * texte.size()); };
    tenter([&] { lire_table(texte, *e, nommer, NoLigne); });
    exiger(e->NbZones <= 100 && e->NbPions <= 100 && e->NbBlocs <= 10);
    return 0;
}
