#include "config/lecteur_general.h"

#include "config/ligne.h"
#include "config/nom_projet.h"

namespace {

// Refused here, where the line is known.
std::string_view nom_de_projet(std::string_view nom) {
    exiger_projet_possible(nom);
    return nom;
}

} // namespace

void lire_general(std::string_view texte, Etat& e, Entier16& NoLigne) {
    pour_chaque_ligne(texte, NoLigne, [&](std::string_view ligne) {
        Champs champs(ligne);
        const Cle cle = champs.cle();
        if (cle.vue() == "DÉFAUT")
            e.NomProjet = nom_de_projet(rogner(champs.reste()));
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
