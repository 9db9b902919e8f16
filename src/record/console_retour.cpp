// What the console does to a path that stands: takes back, cuts short, goes on at its end.
#include "record/console.h"

#include "record/lignes_du_trajet.h"
#include "record/rejeu.h"
#include "sim/actions.h"

#include <cmath>
#include <utility>

namespace {

// What was driven of the action, in whole units with the parameter's sign; 0 when nothing of it can
// stay in the path.
Entier16 unites_parcourues(const Etat& e, Entier16 robot, const Etape& etape) {
    const actions::Action* const action = actions::trouver_legende(etape.nom);
    if (action == nullptr || action->nb_parametres() == 0)
        return 0;
    // A pause is done once its duration is exceeded.
    const int un_de_moins = action->genre == actions::Genre::pause ? 1 : 0;
    const int n = static_cast<int>(std::fabs(e.Progression(robot))) - un_de_moins;
    return n <= 0 ? 0 : etape.p1 < 0 ? -n : n;
}

} // namespace

bool Console::annulation_possible() const {
    const bool course_sans_console = etat_.en_course && etat_.RobotTele == 0;
    if (joue_ || course_sans_console)
        return false;
    if (etapes_.empty())
        return !precedents_.empty();
    return phase_ == Phase::repos && etapes_.back().annulable;
}

void Console::annuler() {
    if (!annulation_possible())
        return;
    fenetres_.regler_Timer(0);
    if (!etapes_.empty()) {
        const Etape derniere = std::move(etapes_.back());
        etapes_.pop_back();
        derniere.avant.retablir(etat_, moteur_, fenetres_);
        debut_sans_action_ = etapes_.empty();
    } else {
        Precedent precedent = std::move(precedents_.back());
        precedents_.pop_back();
        phase_ = Phase::arret;
        debut_sans_action_ = false;
        precedent.avant.retablir(etat_, moteur_, fenetres_);
        etapes_ = std::move(precedent.etapes);
        etat_.RobotTele = precedent.RobotTele;
        if (etat_.RobotTele == 0 && etat_.en_course)
            moteur_.Fin_Jeu(); // the run that the recording had interrupted does not go on
    }
    Set_Sauv_Robot(etat_, robot_);
    ecrire_reprise();
}

bool Console::arreter_action() {
    if (!std::exchange(joue_, false))
        return false;
    fenetres_.regler_Timer(0);
    if (phase_ == Phase::action)
        phase_ = Phase::repos;
    const Etape arretee = std::move(etapes_.back());
    etapes_.pop_back();
    const Entier16 robot = arretee.avant.robot();
    const Entier16 parcouru = unites_parcourues(etat_, robot, arretee);
    arretee.avant.retablir(etat_, moteur_, fenetres_);
    std::string reste = "retirée du trajet : " + ligne_de_liste(arretee).action;
    if (parcouru != 0) {
        rejouer(robot, {arretee.nom, parcouru, arretee.p2});
        reste = "le trajet en garde : " + ligne_de_liste(etapes_.back()).action;
    }
    ecrire_reprise();
    fenetres_.Dessine_Table();
    fenetres_.Dessine_Robot();
    fenetres_.ecrire_texte_Mess("Action arrêtée, " + reste);
    return true;
}

bool Console::continuation_possible(Entier16 numero) const {
    return phase_ == Phase::arret && !joue_ && numero >= 1 && numero <= etat_.NbRobot &&
           lignes_du_trajet(etat_, numero).au_bout_du_tableau;
}

void Console::continuer(Entier16 numero) {
    if (phase_ != Phase::arret)
        return;
    robot_ = numero;
    exiger_robot_sur_la_table();
    oublier();
    const LignesDuTrajet lignes = lignes_du_trajet(etat_, robot_);
    const Entier16 nb_a_generer = etat_.nb_a_generer;
    const Entier16 TrajNbActions = etat_.TrajNbActions(robot_);
    etat_.RobotTele = robot_;
    moteur_.Run_Jeu();
    fenetres_.regler_Timer(0);
    try {
        rejouer_le_trajet(lignes);
        phase_ = Phase::repos;
    } catch (const ErreurExecution&) {
        oublier();
        moteur_.Fin_Jeu();
        etat_.nb_a_generer = nb_a_generer;
        etat_.TrajNbActions(robot_) = TrajNbActions;
        throw;
    }
    etat_.nb_a_generer = nb_a_generer;
    Set_Sauv_Robot(etat_, robot_);
    etat_.ZoneRedessin = {0, etat_.XMax, 0, etat_.YMax};
    fenetres_.Dessine_Table();
    fenetres_.Dessine_Robot();
    fenetres_.ecrire_nbre_carreaux(texte_entier(etat_.NbreCarreaux));
}

void Console::rejouer_le_trajet(const LignesDuTrajet& lignes) {
    const int n = static_cast<int>(lignes.actions.size());
    Rejeu rejeu(etat_);
    bool finie = rejeu.finir_action(); // the tick that finds the robot idle
    for (int k = 1; k <= n; ++k) {
        const LignesDuTrajet::Action& ligne = lignes.actions.at(static_cast<std::size_t>(k - 1));
        const actions::Action* const action = actions::trouver_bouton(etat_.TrajAction(robot_, k));
        if (!finie || action == nullptr)
            throw ErreurExecution("le trajet du robot " + std::to_string(robot_) +
                                  " ne peut pas être joué jusqu'à son action " + std::to_string(k) +
                                  " ; il reste à sauvegarder");
        etat_.nb_a_generer =
            ligne.debut; // as they were before the action: its undoing goes back there
        etat_.TrajNbActions(robot_) = k - 1;
        memoriser(robot_, majuscules(action->legende), etat_.TrajParam1(robot_, k),
                  etat_.TrajParam2(robot_, k));
        etapes_.back().annulable = ligne.connue;
        etapes_.back().sans_code = ligne.sans_code;
        etat_.NumAction(robot_) = etat_.TrajNbActions(robot_) = k;
        etat_.ActionEnCours(robot_) = etat_.TrajAction(robot_, k);
        etat_.ParamEnCours(robot_) = etat_.TrajParam1(robot_, k);
        etat_.Param2EnCours(robot_) = etat_.TrajParam2(robot_, k);
        etat_.Progression(robot_) = 0;
        if (ligne.carreaux)
            rejeu.predire_carreaux(robot_);
        finie = rejeu.finir_action();
        etapes_.back().fin = etat_.TempsEcoule;
    }
    if (!finie) // the match ended in the last action, as it did when it was recorded
        moteur_.Fin_Jeu();
}
