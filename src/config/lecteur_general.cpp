#include "config/lecteur_general.h"

#include "config/ligne.h"

void lire_general(std::string_view texte, Etat& e, Entier16& NoLigne) {
    pour_chaque_ligne(texte, NoLigne, [&](std::string_view ligne) {
        Champs champs(ligne);
        const Cle cle = champs.cle();
        if (cle.vue() == "DÉFAUT")
            e.NomProjet = rogner(champs.reste());
        else if (cle.vue() == "RAPIDE")
            e.Options(1) = champs.dernier_entier();
        else if (cle.vue() == "ALLEGE")
            e.Options(2) = champs.dernier_entier();
        else if (cle.vue() == "NBROBOT")
            e.Options(3) = champs.dernier_entier();
        else if (cle.vue() == "HORIZONTALE")
            e.Options(4) = champs.dernier_entier();
        else
            refuser_cle(cle.vue());
    });
}
