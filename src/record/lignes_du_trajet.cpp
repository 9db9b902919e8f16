#include "record/lignes_du_trajet.h"

#include "sim/actions.h"

#include <utility>

namespace {

int nombre_d_actions(const Etat& e, Entier16 robot) {
    const int n = e.TrajNbActions(robot);
    return n > 0 && e.TrajAction(robot, n) == actions::FIN ? n - 1 : n;
}

// Looks for the rows of one action at the end of those that are left.
class Recherche {
public:
    explicit Recherche(const Etat& etat) : etat_(etat), reste_(etat.nb_a_generer) {}

    LignesDuTrajet::Action trouver(Entier16 robot, int k) {
        const actions::Action* const action = actions::trouver_bouton(etat_.TrajAction(robot, k));
        const Entier16 p1 = etat_.TrajParam1(robot, k);
        const Entier16 p2 = etat_.TrajParam2(robot, k);
        if (action == nullptr || perdue_)
            return {reste_};
        if (!actions::tient_dans_un_octet(p1) || !actions::tient_dans_un_octet(p2))
            return {reste_, true};
        const bool carreaux =
            action->compte_les_carreaux() && code_a(reste_ - 1) == actions::code_carreaux;
        const int ligne = reste_ - (carreaux ? 2 : 1);
        if (code_a(ligne) != action->code || !parametres_a(ligne, *action, p1, p2)) {
            perdue_ = true;
            return {reste_};
        }
        reste_ = ligne;
        return {reste_, true, false, carreaux};
    }

private:
    int code_a(int ligne) const { return ligne < 0 ? 0 : etat_.TableauAGenerer(ligne, 0); }

    // The table has an arc's radius first, its angle second: the reverse of the trajectory.
    bool parametres_a(int ligne, const actions::Action& action, int p1, int p2) const {
        if (action.genre == actions::Genre::arc)
            std::swap(p1, p2);
        return etat_.TableauAGenerer(ligne, 1) == p1 && etat_.TableauAGenerer(ligne, 2) == p2;
    }

    const Etat& etat_;
    int reste_;
    bool perdue_ = false;
};

} // namespace

LignesDuTrajet lignes_du_trajet(const Etat& e, Entier16 robot) {
    LignesDuTrajet lignes;
    lignes.actions.resize(static_cast<std::size_t>(nombre_d_actions(e, robot)));
    Recherche recherche(e);
    for (std::size_t k = lignes.actions.size(); k > 0; --k) {
        lignes.actions[k - 1] = recherche.trouver(robot, static_cast<int>(k));
        lignes.trouvees += lignes.actions[k - 1].sans_code ? 0 : 1;
    }
    // Values that the table cannot hold say nothing, unless the path is known to be recorded.
    lignes.au_bout_du_tableau = !lignes.actions.empty() && lignes.actions.back().connue &&
                                (lignes.trouvees > 0 || e.TrajetModifie(robot));
    return lignes;
}

Entier16 robot_enregistre_en_dernier(const Etat& e) {
    int dernier = 0;
    int le_plus = -1;
    for (int i = 1; i <= e.NbRobot; ++i) {
        const LignesDuTrajet lignes = lignes_du_trajet(e, i);
        if (lignes.au_bout_du_tableau && lignes.trouvees > le_plus) {
            dernier = i;
            le_plus = lignes.trouvees;
        }
    }
    return dernier;
}
