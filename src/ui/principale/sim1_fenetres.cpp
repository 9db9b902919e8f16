// What the engine and the session ask of the main window.
#include "ui/console/telecommande.h"
#include "ui/principale/sim1.h"

void Sim1::message(std::string_view texte, std::string_view explication) {
    show();
    boites_.message(texte, explication);
}

void Sim1::information(std::string_view texte) {
    show();
    boites_.information(texte);
}

bool Sim1::question(std::string_view texte, std::string_view explication) {
    show();
    return boites_.question(texte, explication);
}

// The window is laid out again only where a text needs another height than the values.
void Sim1::ecrire_Mess(const LigneMess& mess) {
    const bool texte = Mess.est_texte();
    Mess.ecrire(mess);
    if (texte)
        placer();
}

void Sim1::ecrire_texte_Mess(std::string_view texte) {
    Mess.ecrire(texte);
    placer();
}

void Sim1::apres_actions() {
    if (console_)
        console_->suivre_le_temps();
}

void Sim1::ecrire_LNom(std::string_view texte) {
    LNom.setText(texte_qt(texte));
    placer_logo();
}

void Sim1::ecrire_nbre_carreaux(std::string_view texte) {
    options_.nbre_carreaux.setText(texte_qt(texte));
}

void Sim1::Dessine_Table() {
    if (!terminee_)
        Table.Dessine_Table();
}

void Sim1::Dessine_Robot() {
    if (!terminee_)
        Table.Dessine_Robot();
}

void Sim1::montrer_logo(bool visible) {
    logo.setVisible(visible);
    LNom.setVisible(visible);
}

std::filesystem::path Sim1::choisir_dossier(std::string_view titre) {
    return boites_.choisir_dossier(texte_qt(titre)).toStdString();
}

void Sim1::Active_Desactive(bool Status) {
    if (!console_)
        return;
    if (Status)
        console_->action_finie();
    else
        console_->Active_Desactive(false);
}

void Sim1::montrer_course(bool en_cours) {
    options_.montrer_course(en_cours);
    barre_.avancer(0);
    if (!en_cours)
        Table.redessiner_robots();
    if (!en_cours && console_)
        console_->action_finie();
}

// What the write after the last action could not keep may find room now.
void Sim1::fin_du_programme() {
    if (!terminee_)
        ecrire_reprises();
    terminer(3);
}
