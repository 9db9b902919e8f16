#include "record/annulation.h"

#include "sim/orientation.h"

namespace {

// A run that ended since goes on: the next action then follows the recorded ones instead of
// starting the recording afresh.
void reprendre_course(Etat& e, Fenetres& f) {
    f.montrer_course(true);
    e.logo_visible = false;
    f.montrer_logo(false);
    e.persistant = e.AffichageLent != 0;
}

void tourner(Etat& e, bool horizontalement) {
    if (horizontalement)
        horizontal(e);
    else
        vertical(e);
}

} // namespace

Instantane::Instantane(const Etat& e, Entier16 robot, Entier16 entree)
    : TempsEcoule_(e.TempsEcoule),
      Incidence_(e.Incidence),
      NbreCarreaux_(e.NbreCarreaux),
      TableHorizontale_(e.TableHorizontale),
      logo_visible_(e.logo_visible),
      robot_(robot),
      entree_(entree),
      TrajNbActions_(e.TrajNbActions(robot)),
      nb_a_generer_(e.nb_a_generer) {
    for (int i = 0; i <= robots_max; ++i)
        robots_(i) = {e.XRobot(i),
                      e.YRobot(i),
                      e.CapRobot(i),
                      e.Xm(i),
                      e.Ym(i),
                      e.Xextr(i),
                      e.Yextr(i),
                      e.Progression(i),
                      e.ActionEnCours(i),
                      e.ParamEnCours(i),
                      e.Param2EnCours(i),
                      e.NumAction(i)};
    if (entree <= actions_max) {
        action_ = e.TrajAction(robot, entree);
        param1_ = e.TrajParam1(robot, entree);
        param2_ = e.TrajParam2(robot, entree);
    }
}

void Instantane::retablir(Etat& e, Moteur& moteur, Fenetres& f) const {
    // The poses are put back in the frame in which they were taken.
    const bool tournee = e.TableHorizontale != TableHorizontale_;
    if (tournee)
        tourner(e, TableHorizontale_);
    if (logo_visible_ && !e.logo_visible)
        moteur.Fin_Jeu();
    else if (!logo_visible_ && e.logo_visible)
        reprendre_course(e, f);
    retablir_course(e);
    retablir_enregistrement(e);
    if (tournee)
        tourner(e, e.TableHorizontale);
    f.ecrire_nbre_carreaux(texte_entier(e.NbreCarreaux));
    e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    f.Dessine_Table();
    f.Dessine_Robot();
}

void Instantane::retablir_course(Etat& e) const {
    for (int i = 0; i <= robots_max; ++i) {
        const Robot& r = robots_(i);
        e.XRobot(i) = r.x;
        e.YRobot(i) = r.y;
        e.CapRobot(i) = r.cap;
        e.Xm(i) = r.xm;
        e.Ym(i) = r.ym;
        e.Xextr(i) = r.xextr;
        e.Yextr(i) = r.yextr;
        e.Progression(i) = r.progression;
        e.ActionEnCours(i) = r.action;
        e.ParamEnCours(i) = r.param;
        e.Param2EnCours(i) = r.param2;
        e.NumAction(i) = r.num_action;
    }
    e.TempsEcoule = TempsEcoule_;
    e.Incidence = Incidence_;
    e.NbreCarreaux = NbreCarreaux_;
}

void Instantane::retablir_enregistrement(Etat& e) const {
    e.TrajNbActions(robot_) = TrajNbActions_;
    if (entree_ <= actions_max) {
        e.TrajAction(robot_, entree_) = action_;
        e.TrajParam1(robot_, entree_) = param1_;
        e.TrajParam2(robot_, entree_) = param2_;
    }
    // A row whose code is not 0 would still be written to the generation input file.
    for (int n = nb_a_generer_; n < e.nb_a_generer; ++n) {
        for (int colonne = 0; colonne <= 3; ++colonne)
            e.TableauAGenerer(n, colonne) = 0;
    }
    e.nb_a_generer = nb_a_generer_;
}
