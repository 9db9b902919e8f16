#include "cli/fenetres_terminal.h"

#include "cli/sortie.h"

#include <string>

void FenetresTerminal::message(std::string_view texte, std::string_view) {
    std::string ligne;
    Lignes lignes(texte);
    while (const auto suivante = lignes.suivante())
        ligne.append(ligne.empty() ? "" : " ").append(*suivante);
    ecrire_ligne(erreurs_, ligne);
    ++nb_messages_;
}

bool FenetresTerminal::question(std::string_view texte, std::string_view) {
    message(texte);
    return false;
}

void FenetresTerminal::montrer_course(bool en_cours) {
    if (en_cours)
        dessin_.oublier();
}

int FenetresTerminal::code_de_sortie() const {
    if (terminee_)
        return 3;
    return nb_messages_ > 0 ? 1 : 0;
}
