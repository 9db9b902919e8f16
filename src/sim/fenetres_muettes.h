#pragma once

#include "sim/fenetres.h"

/// An outlet that says nothing and answers no: for what is played without anybody looking.
class FenetresMuettes : public Fenetres {
public:
    virtual ~FenetresMuettes() = default;

    void message(std::string_view, std::string_view = {}) override {}
    void information(std::string_view) override {}
    bool question(std::string_view, std::string_view = {}) override { return false; }
    void regler_Timer(Entier16) override {}
    void ecrire_Mess(const LigneMess&) override {}
    void ecrire_texte_Mess(std::string_view) override {}
    void ecrire_Info(const LigneInfo&) override {}
    void ecrire_LNom(std::string_view) override {}
    void ecrire_nbre_carreaux(std::string_view) override {}
    void Active_Desactive(bool) override {}
    void Dessine_Table() override {}
    void Dessine_Robot() override {}
    void apres_actions() override {}
    void montrer_course(bool) override {}
    void montrer_logo(bool) override {}
    void fin_du_programme() override {}
};
