#include "outils.h"
#include "record/enregistrement.h"

#include <memory>

// The recovery file's reader takes any bytes; what it takes can be put back and written again.
CIBLE(reprise) {
    tenter([&] {
        int ligne = 0;
        const Enregistrement lu = lire_enregistrement(texte_lu(octets, taille), ligne);
        const auto etat = std::make_unique<Etat>();
        etat->XMax = 200;
        etat->YMax = 320;
        restaurer_enregistrement(*etat, lu);
        const std::string ecrit = texte_enregistrement(lu);
        exiger(texte_enregistrement(lire_enregistrement(ecrit, ligne)) == ecrit);
    });
    return 0;
}
