#include "analyse/lecture.h"

#include "base/texte.h"

Constat constat_de(const ErreurDeLecture& erreur, const std::filesystem::path& dossier) {
    const std::string_view raison = rogner(erreur.raison); // without the key's padding
    Constat c{.genre = Genre::lecture,
              .fichier = erreur.fichier.lexically_relative(dossier),
              .texte = "lecture impossible : " + std::string(raison) +
                       ". Le match est joué sans la suite de ce fichier, avec des données de "
                       "secours : corrigez-le d'abord."};
    if (erreur.robot > 0)
        c.robot = erreur.robot;
    if (erreur.ligne > 0)
        c.ligne = erreur.ligne;
    return c;
}
