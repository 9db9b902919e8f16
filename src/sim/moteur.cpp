#include "sim/moteur.h"

#include "sim/actions.h"

void Moteur::Run_Jeu() {
    f.ecrire_nbre_carreaux("0");
    e.NbreCarreaux = 0;
    f.montrer_course(true);
    if (!e.AffichageLent) {
        f.Dessine_Table();
        e.persistant = false;
    }
    e.en_course = true;
    f.montrer_logo(false);
    e.TempsEcoule = 0;
    abandons_.remplir(0);
    robot_en_cause_ = 0;
    for (int i = 1; i <= e.NbRobot; ++i) {
        e.NumAction(i) = 0;
        e.ActionEnCours(i) = actions::AUCUNE;
        e.ParamEnCours(i) = 0;
        e.Param2EnCours(i) = 0;
        e.CapRobot(i) = e.CapInit(i);
        e.XRobot(i) = e.XInit(i);
        e.YRobot(i) = e.YInit(i);
        e.Xm(i) = e.XmInit(i);
        e.Ym(i) = e.YmInit(i);
        e.Xextr(i) = e.XextrInit(i);
        e.Yextr(i) = e.YextrInit(i);
        e.Incidence = 0;
    }
    e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    f.regler_Timer(e.PasTemps * 10);
}

void Moteur::Fin_Jeu() {
    e.ActionEnCours(1) = actions::FIN;
    e.ParamEnCours(1) = 0;
    e.Param2EnCours(1) = 0;
    e.Progression(1) = 0;
    f.regler_Timer(0);
    e.en_course = false;
    f.montrer_logo(true);
    if (!e.persistant) {
        e.persistant = true;
        e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
        f.Dessine_Table();
        f.Dessine_Robot();
    }
    f.montrer_course(false);
}

bool Moteur::Timer_Timer() {
    try {
        e.TempsEcoule += e.PasTemps;
        if (!Executer_Actions())
            return false;
        f.apres_actions();
        f.Dessine_Table();
        f.Dessine_Robot();
        const Nom10 action_pour_l_unite = e.ActionEnCours(1);
        if (e.TempsEcoule > duree_du_match) {
            Fin_Jeu();
            if (e.RobotTele != 0)
                f.Active_Desactive(true); // the match ended a console action
        }
        mess_.TempsEcoule = e.TempsEcoule;
        mess_.NumAction = e.NumAction(1);
        mess_.TrajNbActions = e.TrajNbActions(1);
        mess_.ActionEnCours = e.ActionEnCours(1);
        mess_.action_pour_l_unite = action_pour_l_unite;
        mess_.Progression = e.Progression(1);
        mess_.ParamEnCours = e.ParamEnCours(1);
        mess_.Incidence = e.Incidence;
        mess_.NbreCarreaux = e.NbreCarreaux;
        f.ecrire_Mess(mess_);
        return true;
    } catch (const ErreurExecution&) {
        return erreur_majeure(
            "Erreur majeure d'exécution :   Vérifier le fichier de configuration Trajet.ini");
    }
}

// Called from a handler: the exception there is the reason.
bool Moteur::erreur_majeure(const char* texte) {
    f.regler_Timer(0); // no further tick while the message box is open
    try {
        throw;
    } catch (const ErreurExecution& erreur) {
        f.message(texte, std::string("Raison : ") + erreur.what());
    }
    f.fin_du_programme();
    return false;
}
