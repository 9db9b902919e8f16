#pragma once

#include "config/projet.h"
#include "draw/a_vide.h"
#include "outils/dossier_temporaire.h"
#include "sim/damier.h"
#include "sim/fenetres_muettes.h"
#include "sim/moteur.h"

#include <cstdio>
#include <memory>

/// Headless as the command line runs it: the drawing's arithmetic, no text.
class FenetresBanc : public FenetresMuettes {
public:
    explicit FenetresBanc(Etat& etat) : e(etat) {}
    void message(std::string_view texte, std::string_view) override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(texte.size()), texte.data());
    }
    void regler_Timer(Entier16 ms) override { intervalle = ms; }
    void Dessine_Table() override { dessin.table(e, *this); }
    void Dessine_Robot() override { dessin.robots(e, *this); }
    void montrer_course(bool en_cours) override {
        if (en_cours)
            dessin.oublier();
    }

    Etat& e;
    DessinAVide dessin;
    Entier16 intervalle;
};

/// An engine with its state and outlet, ready for whole matches.
template <typename F = FenetresBanc>
struct Banc {
    std::unique_ptr<Etat> etat = std::make_unique<Etat>();
    Etat& e = *etat;
    F f{*etat};
    Moteur m{*etat, f};

    void jouer() {
        m.Run_Jeu();
        while (f.intervalle > 0 && m.Timer_Timer()) {
        }
    }
};

template <typename F>
void charger_defaut(Banc<F>& b, int robots) {
    const DossierTemporaire dossier;
    const auto ici = std::filesystem::current_path();
    std::filesystem::current_path(dossier.chemin());
    Projet projet(b.e, b.f, dossier.chemin());
    projet.Installe();
    projet.LoadTable();
    projet.Init_Robot();
    projet.Init_Jeu();
    std::filesystem::current_path(ici);
    initDamier(b.e);
    b.e.NbRobot = robots;
}
