#include "cli/fenetres_terminal.h"

#include "cli/sortie.h"

#include <string>

void FenetresTerminal::ecrire_en_une_ligne(std::string_view texte) {
    std::string ligne;
    Lignes lignes(texte);
    while (const auto suivante = lignes.suivante())
        ligne.append(ligne.empty() ? "" : " ").append(*suivante);
    ecrire_ligne(erreurs_, ligne);
}

void FenetresTerminal::message(std::string_view texte, std::string_view) {
    ecrire_en_une_ligne(texte);
    ++nb_messages_;
}

void FenetresTerminal::information(std::string_view texte) {
    ecrire_en_une_ligne(texte);
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
