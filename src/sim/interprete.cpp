#include "sim/actions.h"
#include "sim/moteur.h"

#include <array>
#include <string>
#include <utility>

Moteur::Code Moteur::Decodee::code_de(const Nom10& action) {
    if (action == nom)
        return code;
    constexpr std::array<std::pair<Nom10, Code>, 15> codes{{
        {actions::FIN, Code::FIN},
        {actions::PAUSE, Code::PAUSE},
        {actions::AVANCE, Code::AVANCE},
        {actions::RECULE, Code::RECULE},
        {actions::DROITE, Code::DROITE},
        {actions::GAUCHE, Code::GAUCHE},
        {actions::VIRAVDR, Code::VIRAVDR},
        {actions::VIRAVGA, Code::VIRAVGA},
        {actions::VIRARDR, Code::VIRARDR},
        {actions::VIRARGA, Code::VIRARGA},
        {actions::BALISE_DRO, Code::BALISE_DROITE},
        {actions::BALISE_GAU, Code::BALISE_GAUCHE},
        {actions::BD, Code::BALISE_DROITE},
        {actions::BG, Code::BALISE_GAUCHE},
        {actions::AUCUNE, Code::AUCUNE},
    }};
    nom = action;
    code = Code::INCONNUE;
    for (const auto& [connu, son_code] : codes) {
        if (connu == action)
            code = son_code;
    }
    return code;
}

bool Moteur::Executer_Actions() {
    int i = 1;
    try {
        for (; i <= e.NbRobot; ++i)
            executer(i);
        return true;
    } catch (const ErreurExecution&) {
        robot_en_cause_ = i;
        return erreur_majeure(
            "Erreur majeure d'exécution : Vérifier le fichier de configuration Trajet.ini.");
    }
}

void Moteur::executer(Entier16 i) {
    const Entier16 p = e.ParamEnCours(i);
    switch (decodees_(i).code_de(e.ActionEnCours(i))) {
    case Code::FIN:
        return;
    case Code::PAUSE:
        return Action_Pause(p, i);
    case Code::AVANCE:
        return Action_Avance(p, i);
    case Code::RECULE:
        return Action_Avance(-p, i);
    case Code::DROITE:
        return Action_Tourne(-p, i);
    case Code::GAUCHE:
        return Action_Tourne(p, i);
    case Code::VIRAVDR:
        return Action_Virage(-p, e.Param2EnCours(i), 90, i);
    case Code::VIRAVGA:
        return Action_Virage(p, e.Param2EnCours(i), -90, i);
    case Code::VIRARDR:
        return Action_Virage(-p, e.Param2EnCours(i), -90, i);
    case Code::VIRARGA:
        return Action_Virage(p, e.Param2EnCours(i), 90, i);
    case Code::BALISE_DROITE:
        return Chercher_Balise(balise_droite, i);
    case Code::BALISE_GAUCHE:
        return Chercher_Balise(balise_gauche, i);
    case Code::AUCUNE:
        return charger_action_suivante(i);
    case Code::INCONNUE:
        break;
    }
    signaler_action_inconnue(i);
}

void Moteur::signaler_action_inconnue(Entier16 i) {
    robot_en_cause_ = i;
    f.message("Erreur : L'action " + std::to_string(e.NumAction(i)) + " " +
              std::string(e.ActionEnCours(i).vue()) + " du robot " + std::to_string(i) +
              " est inconnue !");
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
            abandons_(i) += predire_carreaux(i) ? 1 : 0;
        } else {
            e.NumAction(i) = e.TrajNbActions(i);
            e.ActionEnCours(i) = actions::FIN;
        }
    }
    e.Progression(i) = 0;
}
