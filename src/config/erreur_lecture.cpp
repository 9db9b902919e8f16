#include "config/erreur_lecture.h"

std::string annonce(const ErreurDeLecture& erreur) {
    return "Erreur lors de la lecture du fichier " + erreur.fichier.string() + " Ligne " +
           std::to_string(erreur.ligne_annoncee);
}

std::string explication(const ErreurDeLecture& erreur) {
    const bool nommer = erreur.nature == ErreurDeLecture::Nature::acces;
    std::string texte = "Raison : ";
    if (nommer)
        texte += erreur.fichier.string() + " : ";
    texte += erreur.raison;
    return erreur.consequence.empty() ? texte : texte + "\r\n" + erreur.consequence;
}
