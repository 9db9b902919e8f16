#include "config/ecriture.h"

#include "base/texte.h"

Ecrivain& Ecrivain::fin_de_ligne() {
    texte_ += RetourLigne;
    return *this;
}

Ecrivain& Ecrivain::entete(std::string_view titre) {
    return ligne("# Fichier ", titre, "réalisé par ", TAVOLMEX_CONTACT)
        .ligne("# Projet Ardanel. Equipe Brindalo")
        .ligne("# Site : ", TAVOLMEX_SITE);
}

Ecrivain& Ecrivain::description(std::string_view contenu, std::string_view notice) {
    return ligne("# ", contenu)
        .ligne("#")
        .ligne("# Description du fichier dans ", notice)
        .ligne("#");
}

std::string forme_imprimee(int valeur) {
    return (valeur < 0 ? "" : " ") + std::to_string(valeur) + " ";
}
