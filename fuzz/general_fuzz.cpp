#include "config/lecteur_general.h"
#include "outils.h"

#include <memory>

CIBLE(general) {
    static const auto e = std::make_unique<Etat>();
    Entier16 NoLigne;
    tenter([&] { lire_general(texte_lu(octets, taille), *e, NoLigne); });
    return 0;
}
