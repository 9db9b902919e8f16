#pragma once

#include "sim/fenetres.h"

#include <deque>
#include <string>
#include <vector>

/// Writes every call into a list, in order, and answers questions from a queue ("Non" when empty).
class FaussesFenetres : public Fenetres {
public:
    virtual ~FaussesFenetres() = default;

    std::vector<std::string> appels;
    std::vector<std::string> messages;
    std::vector<std::string> explications; ///< one for each message and question
    std::deque<bool> reponses;
    std::string Mess, Info, LNom, nbre_carreaux;
    int intervalle = 0;
    bool terminee = false;

    void message(std::string_view texte, std::string_view explication = {}) override {
        explications.emplace_back(explication);
        messages.emplace_back(texte);
        noter("message", texte);
    }
    void information(std::string_view texte) override { noter("information", texte); }
    bool question(std::string_view texte, std::string_view explication = {}) override {
        explications.emplace_back(explication);
        noter("question", texte);
        if (reponses.empty())
            return false;
        const bool reponse = reponses.front();
        reponses.pop_front();
        return reponse;
    }
    void regler_Timer(Entier16 ms) override {
        intervalle = ms;
        noter("Timer", std::to_string(ms));
    }
    void ecrire_Mess(const LigneMess& mess) override {
        Mess = mess.texte();
        appels.emplace_back("Mess");
    }
    void ecrire_texte_Mess(std::string_view texte) override {
        Mess = texte;
        noter("Mess", texte);
    }
    void ecrire_Info(const LigneInfo& info) override { Info = info.texte(); }
    void ecrire_LNom(std::string_view texte) override { LNom = texte; }
    void ecrire_nbre_carreaux(std::string_view texte) override {
        nbre_carreaux = texte;
        noter("nbre_carreaux", texte);
    }
    void Active_Desactive(bool Status) override { noter("Active_Desactive", Status ? "1" : "0"); }
    void Dessine_Table() override { appels.emplace_back("Dessine_Table"); }
    void Dessine_Robot() override { appels.emplace_back("Dessine_Robot"); }
    void apres_actions() override {}
    void montrer_course(bool en_cours) override { noter("course", en_cours ? "1" : "0"); }
    void montrer_logo(bool visible) override { noter("logo", visible ? "1" : "0"); }
    void fin_du_programme() override {
        terminee = true;
        appels.emplace_back("fin_du_programme");
    }

private:
    void noter(std::string_view nom, std::string_view valeur) {
        appels.push_back(std::string(nom) + " " + std::string(valeur));
    }
};
