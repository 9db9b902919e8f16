#include "sim/moteur.h"

#include "sim/actions.h"

void Moteur::Run_Jeu() {
    fenetres_.ecrire_nbre_carreaux("0");
    etat_.NbreCarreaux = 0;
    fenetres_.montrer_course(true);
    if (!etat_.AffichageLent) {
        fenetres_.Dessine_Table();
        etat_.persistant = false;
    }
    etat_.en_course = true;
    fenetres_.montrer_logo(false);
    etat_.TempsEcoule = 0;
    abandons_.remplir(0);
    robot_en_cause_ = 0;
    for (int i = 1; i <= etat_.NbRobot; ++i) {
        etat_.NumAction(i) = 0;
        etat_.ActionEnCours(i) = actions::AUCUNE;
        etat_.ParamEnCours(i) = 0;
        etat_.Param2EnCours(i) = 0;
        etat_.CapRobot(i) = etat_.CapInit(i);
        etat_.XRobot(i) = etat_.XInit(i);
        etat_.YRobot(i) = etat_.YInit(i);
        etat_.Xm(i) = etat_.XmInit(i);
        etat_.Ym(i) = etat_.YmInit(i);
        etat_.Xextr(i) = etat_.XextrInit(i);
        etat_.Yextr(i) = etat_.YextrInit(i);
        etat_.Incidence = 0;
    }
    etat_.ZoneRedessin = {0, etat_.XMax, 0, etat_.YMax};
    fenetres_.regler_Timer(etat_.PasTemps * 10);
}

void Moteur::Fin_Jeu() {
    etat_.ActionEnCours(1) = actions::FIN;
    etat_.ParamEnCours(1) = 0;
    etat_.Param2EnCours(1) = 0;
    etat_.Progression(1) = 0;
    fenetres_.regler_Timer(0);
    etat_.en_course = false;
    fenetres_.montrer_logo(true);
    if (!etat_.persistant) {
        etat_.persistant = true;
        etat_.ZoneRedessin = {0, etat_.XMax, 0, etat_.YMax};
        fenetres_.Dessine_Table();
        fenetres_.Dessine_Robot();
    }
    fenetres_.montrer_course(false);
}

bool Moteur::Timer_Timer() {
    try {
        etat_.TempsEcoule += etat_.PasTemps;
        if (!Executer_Actions())
            return false;
        fenetres_.apres_actions();
        fenetres_.Dessine_Table();
        fenetres_.Dessine_Robot();
        const Nom10 action_pour_l_unite = etat_.ActionEnCours(1);
        if (etat_.TempsEcoule > duree_du_match) {
            Fin_Jeu();
            if (etat_.RobotTele != 0)
                fenetres_.Active_Desactive(true); // the match ended a console action
        }
        mess_.TempsEcoule = etat_.TempsEcoule;
        mess_.NumAction = etat_.NumAction(1);
        mess_.TrajNbActions = etat_.TrajNbActions(1);
        mess_.ActionEnCours = etat_.ActionEnCours(1);
        mess_.action_pour_l_unite = action_pour_l_unite;
        mess_.Progression = etat_.Progression(1);
        mess_.ParamEnCours = etat_.ParamEnCours(1);
        mess_.Incidence = etat_.Incidence;
        mess_.NbreCarreaux = etat_.NbreCarreaux;
        fenetres_.ecrire_Mess(mess_);
        return true;
    } catch (const ErreurExecution&) {
        return erreur_majeure(
            "Erreur majeure d'exécution :   Vérifier le fichier de configuration Trajet.ini");
    }
}

// Called from a handler: the exception there is the reason.
bool Moteur::erreur_majeure(const char* texte) {
    fenetres_.regler_Timer(0); // no further tick while the message box is open
    try {
        throw;
    } catch (const ErreurExecution& erreur) {
        fenetres_.message(texte, std::string("Raison : ") + erreur.what());
    }
    fenetres_.fin_du_programme();
    return false;
}
