#pragma once

#include "outils/fausses_fenetres.h"
#include "outils/trajet_essai.h"
#include "sim/actions.h"
#include "sim/moteur.h"

#include <memory>
#include <string_view>

/// An engine with one robot ready to move, and the outlet that records its calls.
struct Banc {
    std::unique_ptr<Etat> etat = std::make_unique<Etat>();
    Etat& e = *etat;
    FaussesFenetres f;
    Moteur m{*etat, f};

    Banc() { preparer_essai(e); }

    void ajouter(int i, Nom10 action, int p1 = 0, int p2 = 0) {
        ajouter_action(e, i, action, p1, p2);
    }

    /// Gives robot i an action and plays it to its end. @returns the ticks it took (at most 2000)
    int jouer(int i, Nom10 action, int p1, int p2 = 0) {
        e.ActionEnCours(i) = action;
        e.ParamEnCours(i) = p1;
        e.Param2EnCours(i) = p2;
        e.Progression(i) = 0;
        int ticks = 0;
        while (e.ActionEnCours(i) != actions::AUCUNE && ticks < 2000) {
            m.Executer_Actions();
            ++ticks;
        }
        return ticks;
    }
};
