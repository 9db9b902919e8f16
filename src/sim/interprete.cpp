#include "sim/actions.h"
#include "sim/moteur.h"

#include <string>

bool Moteur::Executer_Actions() {
    try {
        for (int i = 1; i <= e.NbRobot; ++i)
            executer(i);
        return true;
    } catch (const ErreurExecution&) {
        return erreur_majeure(
            "Erreur majeure d'exécution : Vérifier le fichier de configuration Trajet.ini.");
    }
}

void Moteur::executer(Entier16 i) {
    using namespace actions;
    const Nom10 action = e.ActionEnCours(i);
    const Entier16 p = e.ParamEnCours(i);
    if (action == FIN)
        return;
    if (action == PAUSE)
        return Action_Pause(p, i);
    if (action == AVANCE)
        return Action_Avance(p, i);
    if (action == RECULE)
        return Action_Avance(-p, i);
    if (action == DROITE)
        return Action_Tourne(-p, i);
    if (action == GAUCHE)
        return Action_Tourne(p, i);
    if (action == VIRAVDR)
        return Action_Virage(-p, e.Param2EnCours(i), 90, i);
    if (action == VIRAVGA)
        return Action_Virage(p, e.Param2EnCours(i), -90, i);
    if (action == VIRARDR)
        return Action_Virage(-p, e.Param2EnCours(i), -90, i);
    if (action == VIRARGA)
        return Action_Virage(p, e.Param2EnCours(i), 90, i);
    if (action == BALISE_DRO || action == BD)
        return Chercher_Balise(balise_droite, i);
    if (action == BALISE_GAU || action == BG)
        return Chercher_Balise(balise_gauche, i);
    if (action == AUCUNE)
        return charger_action_suivante(i);
    f.message("Erreur : L'action " + std::to_string(e.NumAction(i)) + " " +
              std::string(action.vue()) + " du robot " + std::to_string(i) + " est inconnue !");
    Fin_Jeu();
}

void Moteur::charger_action_suivante(Entier16 i) {
    if (i == e.RobotTele) {
        // The console plays one action at a time: this one is over.
        f.regler_Timer(0);
        f.Active_Desactive(true);
    } else {
        e.NumAction(i) = e.NumAction(i) + 1;
        if (e.NumAction(i) <= e.TrajNbActions(i)) {
            e.ActionEnCours(i) = e.TrajAction(i, e.NumAction(i));
            e.ParamEnCours(i) = e.TrajParam1(i, e.NumAction(i));
            e.Param2EnCours(i) = e.TrajParam2(i, e.NumAction(i));
            predire_carreaux(i);
        } else {
            e.NumAction(i) = e.TrajNbActions(i);
            e.ActionEnCours(i) = actions::FIN;
        }
    }
    e.Progression(i) = 0;
}
