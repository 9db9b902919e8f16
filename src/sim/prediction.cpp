#include "sim/actions.h"
#include "sim/damier.h"
#include "sim/moteur.h"

#include <cmath>

namespace {

struct Point {
    float x, y;
};

bool est_mouvement_droit(const Nom10& a) {
    using namespace actions;
    // An angle counts as a distance here, and a backward move is predicted ahead.
    return a == AVANCE || a == RECULE || a == DROITE || a == GAUCHE;
}

// Where an arc is taken to end: start - R (cos a1, sin a1) + R (cos a2, sin a2), with the unsigned
// angle, so that right-hand arcs end on the mirrored arc.
Point fin_d_arc(const Etat& e, Entier16 i, Point depart) {
    const Nom10& action = e.ActionEnCours(i);
    const int s = action == actions::VIRARDR || action == actions::VIRAVGA ? -90 : 90;
    const double rayon = e.Param2EnCours(i);
    const double a1 = radians(s + double{e.CapRobot(i)});
    const double a2 = radians(e.ParamEnCours(i) + double{e.CapRobot(i)} + s);
    return {simple(depart.x - rayon * std::cos(a1) + rayon * std::cos(a2)),
            simple(depart.y - rayon * std::sin(a1) + rayon * std::sin(a2))};
}

} // namespace

bool Moteur::predire_carreaux(Entier16 i) {
    const Nom10& action = e.ActionEnCours(i);
    const bool droit = est_mouvement_droit(action);
    if (!droit && !actions::est_virage(action))
        return false;
    // Always robot 1's sensor, whichever robot moves.
    const Point depart{e.Xextr(1), e.Yextr(1)};
    const Direction& d = direction_capteur();
    const double p = e.ParamEnCours(i);
    const Point fin = droit ? Point{simple(depart.x + p * d.c), simple(depart.y + p * d.s)}
                            : fin_d_arc(e, i, depart);
    const bool menee = predire_marche(e, depart.x, depart.y, fin.x, fin.y, d.c, d.s);
    f.ecrire_nbre_carreaux(texte_entier(e.NbreCarreaux));
    return !menee;
}
