#include "record/annulation.h"

#include "sim/orientation.h"

namespace {

// A run that ended since goes on: the next action then follows the recorded ones instead of
// starting the recording afresh.
void reprendre_course(Etat& e, Fenetres& f) {
    f.montrer_course(true);
    e.en_course = true;
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
    : course_(e),
      TableHorizontale_(e.TableHorizontale),
      en_course_(e.en_course),
      robot_(robot),
      entree_(entree),
      XInit_(e.XInit(robot)),
      YInit_(e.YInit(robot)),
      CapInit_(e.CapInit(robot)),
      TrajNbActions_(e.TrajNbActions(robot)),
      nb_a_generer_(e.nb_a_generer) {
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
    if (!en_course_ && e.en_course)
        moteur.Fin_Jeu();
    else if (en_course_ && !e.en_course)
        reprendre_course(e, f);
    const Entier16 pilote = e.RobotTele;
    static_cast<Course&>(e) = course_;
    e.RobotTele = pilote;
    retablir_enregistrement(e);
    if (tournee)
        tourner(e, e.TableHorizontale);
    f.ecrire_nbre_carreaux(texte_entier(e.NbreCarreaux));
    e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    f.Dessine_Table();
    f.Dessine_Robot();
}

void Instantane::retablir_enregistrement(Etat& e) const {
    e.XInit(robot_) = XInit_;
    e.YInit(robot_) = YInit_;
    e.CapInit(robot_) = CapInit_;
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
