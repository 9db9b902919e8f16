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
    const bool course_sans_console = e.en_course && e.RobotTele == 0;
    if (joue_ || course_sans_console)
        return false;
    if (etapes_.empty())
        return !precedents_.empty();
    return phase_ == Phase::repos && etapes_.back().annulable;
}

void Console::annuler() {
    if (!annulation_possible())
        return;
    f.regler_Timer(0);
    if (!etapes_.empty()) {
        const Etape derniere = std::move(etapes_.back());
        etapes_.pop_back();
        derniere.avant.retablir(e, moteur_, f);
        debut_sans_action_ = etapes_.empty();
    } else {
        Precedent precedent = std::move(precedents_.back());
        precedents_.pop_back();
        phase_ = Phase::arret;
        debut_sans_action_ = false;
        precedent.avant.retablir(e, moteur_, f);
        etapes_ = std::move(precedent.etapes);
        e.RobotTele = precedent.RobotTele;
        if (e.RobotTele == 0 && e.en_course)
            moteur_.Fin_Jeu(); // the run that the recording had interrupted does not go on
    }
    Set_Sauv_Robot(e, robot_);
    ecrire_reprise();
}

bool Console::arreter_action() {
    if (!std::exchange(joue_, false))
        return false;
    f.regler_Timer(0);
    if (phase_ == Phase::action)
        phase_ = Phase::repos;
    const Etape arretee = std::move(etapes_.back());
    etapes_.pop_back();
    const Entier16 robot = arretee.avant.robot();
    const Entier16 parcouru = unites_parcourues(e, robot, arretee);
    arretee.avant.retablir(e, moteur_, f);
    std::string reste = "retirée du trajet : " + ligne_de_liste(arretee).action;
    if (parcouru != 0) {
        rejouer(arretee, robot, parcouru);
        reste = "le trajet en garde : " + ligne_de_liste(etapes_.back()).action;
    }
    ecrire_reprise();
    f.Dessine_Table();
    f.Dessine_Robot();
    f.ecrire_texte_Mess("Action arrêtée, " + reste);
    return true;
}

// The action again, shorter and at once: the state is the one that driving it would have left.
void Console::rejouer(const Etape& etape, Entier16 robot, Entier16 parcouru) {
    const bool angle = actions::trouver_legende(etape.nom)->a_un_angle();
    (angle ? saisie_.Text4 : saisie_.Text1) = std::to_string(parcouru);
    lancer(robot, etape.nom, parcouru, etape.p2);
    try {
        inscrire(robot, etape.nom, parcouru, etape.p2);
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The list marks it; the message came when the action began.
    }
    f.regler_Timer(0);
    joue_ = false;
    Rejeu(e).finir_action();
    etapes_.back().fin = e.TempsEcoule;
    e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    f.ecrire_nbre_carreaux(texte_entier(e.NbreCarreaux));
}

bool Console::continuation_possible(Entier16 numero) const {
    return phase_ == Phase::arret && !joue_ && numero >= 1 && numero <= e.NbRobot &&
           lignes_du_trajet(e, numero).au_bout_du_tableau;
}

void Console::continuer(Entier16 numero) {
    if (phase_ != Phase::arret)
        return;
    robot_ = numero;
    exiger_robot_sur_la_table();
    oublier();
    const LignesDuTrajet lignes = lignes_du_trajet(e, robot_);
    const Entier16 nb_a_generer = e.nb_a_generer;
    const Entier16 TrajNbActions = e.TrajNbActions(robot_);
    e.RobotTele = robot_;
    moteur_.Run_Jeu();
    f.regler_Timer(0);
    try {
        rejouer_le_trajet(lignes);
        phase_ = Phase::repos;
    } catch (const ErreurExecution&) {
        oublier();
        moteur_.Fin_Jeu();
        e.nb_a_generer = nb_a_generer;
        e.TrajNbActions(robot_) = TrajNbActions;
        throw;
    }
    e.nb_a_generer = nb_a_generer;
    Set_Sauv_Robot(e, robot_);
    e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    f.Dessine_Table();
    f.Dessine_Robot();
    f.ecrire_nbre_carreaux(texte_entier(e.NbreCarreaux));
}

void Console::rejouer_le_trajet(const LignesDuTrajet& lignes) {
    const int n = static_cast<int>(lignes.actions.size());
    Rejeu rejeu(e);
    bool finie = rejeu.finir_action(); // the tick that finds the robot idle
    for (int k = 1; k <= n; ++k) {
        const LignesDuTrajet::Action& ligne = lignes.actions.at(static_cast<std::size_t>(k - 1));
        const actions::Action* const action = actions::trouver_bouton(e.TrajAction(robot_, k));
        if (!finie || action == nullptr)
            throw ErreurExecution("le trajet du robot " + std::to_string(robot_) +
                                  " ne peut pas être joué jusqu'à son action " + std::to_string(k) +
                                  " ; il reste à sauvegarder");
        e.nb_a_generer = ligne.debut; // as they were before the action: its undoing goes back there
        e.TrajNbActions(robot_) = k - 1;
        memoriser(robot_, majuscules(action->legende), e.TrajParam1(robot_, k),
                  e.TrajParam2(robot_, k));
        etapes_.back().annulable = ligne.connue;
        etapes_.back().sans_code = ligne.sans_code;
        e.NumAction(robot_) = e.TrajNbActions(robot_) = k;
        e.ActionEnCours(robot_) = e.TrajAction(robot_, k);
        e.ParamEnCours(robot_) = e.TrajParam1(robot_, k);
        e.Param2EnCours(robot_) = e.TrajParam2(robot_, k);
        e.Progression(robot_) = 0;
        if (ligne.carreaux)
            rejeu.predire_carreaux(robot_);
        finie = rejeu.finir_action();
        etapes_.back().fin = e.TempsEcoule;
    }
    if (!finie) // the match ended in the last action, as it did when it was recorded
        moteur_.Fin_Jeu();
}
