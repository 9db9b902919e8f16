#include "config/lecteur_trajet.h"
#include "outils.h"

#include <memory>

// Two robots from one file: the parameters and the line counter are carried over.
CIBLE(trajet) {
    static const auto e = std::make_unique<Etat>();
    const std::string texte = texte_lu(octets, taille);
    LecteurTrajet lecteur(*e);
    Entier16 NoLigne;
    tenter([&] {
        for (int n = 1; n <= 2; ++n)
            lecteur.lire(texte, n, NoLigne);
    });
    return 0;
}
