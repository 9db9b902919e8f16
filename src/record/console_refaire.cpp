// What the console changes in the middle of a recording: it is driven again from there, at once.
#include "record/console.h"

#include "record/rejeu.h"
#include "sim/actions.h"

#include <algorithm>

// The state is the one that driving the action would have left. @returns false when the match ended
// first
bool Console::rejouer(Entier16 robot, const ActionConduite& action) {
    const actions::Action& sorte = *actions::trouver_legende(action.nom);
    const bool angle = sorte.a_un_angle();
    saisie_.Text4 = std::to_string(angle ? action.p1 : Entier16());
    saisie_.Text1 = std::to_string(angle ? action.p2 : action.p1);
    lancer(robot, action.nom, action.p1, action.p2);
    try {
        inscrire(robot, action.nom, action.p1, action.p2);
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The list marks it.
    }
    fenetres_.regler_Timer(0);
    joue_ = false;
    const bool finie = Rejeu(etat_).finir_action();
    etapes_.back().fin = etat_.TempsEcoule;
    etat_.ZoneRedessin = {0, etat_.XMax, 0, etat_.YMax};
    fenetres_.ecrire_nbre_carreaux(texte_entier(etat_.NbreCarreaux));
    return finie;
}

bool Console::modification_possible(std::size_t rang) const {
    return phase_ == Phase::repos && !joue_ && etat_.en_course && rang < etapes_.size() &&
           std::all_of(etapes_.begin() + static_cast<std::ptrdiff_t>(rang), etapes_.end(),
                       [](const Etape& e) { return e.annulable && !e.recommence; });
}

std::vector<ActionConduite> Console::suite_depuis(std::size_t rang) const {
    std::vector<ActionConduite> suite;
    for (std::size_t k = rang; k < etapes_.size(); ++k)
        suite.push_back({etapes_[k].nom, etapes_[k].p1, etapes_[k].p2});
    return suite;
}

void Console::conduire(const std::vector<ActionConduite>& suite) {
    for (const ActionConduite& action : suite) {
        if (etat_.NumAction(robot_) >= actions_max)
            throw ErreurExecution("le trajet est plein : " + std::to_string(actions_max) +
                                  " actions au plus");
        if (!rejouer(robot_, action))
            throw ErreurExecution("l'action " + std::to_string(etapes_.size()) +
                                  " ne finirait pas avant la fin du match");
    }
}

// Taken back one by one: each knows what it has changed.
void Console::refaire(std::size_t rang, const std::vector<ActionConduite>& suite) {
    const std::vector<ActionConduite> avant = suite_depuis(rang);
    const auto reprendre_a_rang = [&] {
        while (etapes_.size() > rang) {
            etapes_.back().avant.retablir(etat_, moteur_, fenetres_);
            etapes_.pop_back();
        }
    };
    fenetres_.regler_Timer(0);
    reprendre_a_rang();
    try {
        conduire(suite);
    } catch (const ErreurExecution&) {
        reprendre_a_rang();
        conduire(avant);
        fenetres_.Dessine_Table();
        fenetres_.Dessine_Robot();
        throw;
    }
    debut_sans_action_ = etapes_.empty();
    Set_Sauv_Robot(etat_, robot_);
    ecrire_reprise();
    fenetres_.Dessine_Table();
    fenetres_.Dessine_Robot();
}

void Console::supprimer(std::size_t rang) {
    if (!modification_possible(rang))
        return;
    refaire(rang, suite_depuis(rang + 1));
}

void Console::inserer(std::size_t rang, const ActionConduite& action) {
    if (!modification_possible(rang))
        return;
    std::vector<ActionConduite> suite = suite_depuis(rang);
    suite.insert(suite.begin(), action);
    refaire(rang, suite);
}

void Console::changer(std::size_t rang, const ActionConduite& action) {
    if (!modification_possible(rang))
        return;
    std::vector<ActionConduite> suite = suite_depuis(rang);
    suite.front() = action;
    refaire(rang, suite);
}
