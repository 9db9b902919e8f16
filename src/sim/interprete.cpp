#include "sim/actions.h"
#include "sim/moteur.h"

#include <string>

const actions::Action* Moteur::Decodee::action_de(const Nom10& action) {
    if (!(action == nom)) {
        nom = action;
        connue = actions::trouver(action);
    }
    return connue;
}

bool Moteur::Executer_Actions() {
    int i = 1;
    try {
        for (; i <= etat_.NbRobot; ++i)
            executer(i);
        return true;
    } catch (const ErreurExecution&) {
        robot_en_cause_ = i;
        return erreur_majeure(
            "Erreur majeure d'exécution : Vérifier le fichier de configuration Trajet.ini.");
    }
}

void Moteur::executer(Entier16 i) {
    using actions::Genre;
    const actions::Action* const action = decodees_(i).action_de(etat_.ActionEnCours(i));
    if (action == nullptr)
        return etat_.ActionEnCours(i) == actions::AUCUNE ? charger_action_suivante(i)
                                                         : signaler_action_inconnue(i);
    const int p = action->sens * etat_.ParamEnCours(i);
    switch (action->genre) {
    case Genre::fin:
        return;
    case Genre::pause:
        return Action_Pause(p, i);
    case Genre::droit:
        return Action_Avance(p, i);
    case Genre::rotation:
        return Action_Tourne(p, i);
    case Genre::arc:
        return Action_Virage(p, etat_.Param2EnCours(i), action->cote, i);
    case Genre::balise:
        return Chercher_Balise(action->sens < 0 ? balise_droite : balise_gauche, i);
    case Genre::depart:
        return signaler_action_inconnue(i);
    }
}

void Moteur::signaler_action_inconnue(Entier16 i) {
    robot_en_cause_ = i;
    fenetres_.message("Erreur : L'action " + std::to_string(etat_.NumAction(i)) + " " +
                      std::string(etat_.ActionEnCours(i).vue()) + " du robot " + std::to_string(i) +
                      " est inconnue !");
    Fin_Jeu();
}

void Moteur::charger_action_suivante(Entier16 i) {
    if (i == etat_.RobotTele) {
        // The console plays one action at a time: this one is over.
        fenetres_.regler_Timer(0);
        fenetres_.Active_Desactive(true);
    } else {
        etat_.NumAction(i) = etat_.NumAction(i) + 1;
        if (etat_.NumAction(i) <= etat_.TrajNbActions(i)) {
            etat_.ActionEnCours(i) = etat_.TrajAction(i, etat_.NumAction(i));
            etat_.ParamEnCours(i) = etat_.TrajParam1(i, etat_.NumAction(i));
            etat_.Param2EnCours(i) = etat_.TrajParam2(i, etat_.NumAction(i));
            abandons_(i) += predire_carreaux(i) ? 1 : 0;
        } else {
            etat_.NumAction(i) = etat_.TrajNbActions(i);
            etat_.ActionEnCours(i) = actions::FIN;
        }
    }
    etat_.Progression(i) = 0;
}
