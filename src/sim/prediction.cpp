#include "sim/actions.h"
#include "sim/damier.h"
#include "sim/moteur.h"

#include <cmath>

namespace {

struct Point {
    float x, y;
};

// Where an arc on the side s is taken to end: start - R (cos a1, sin a1) + R (cos a2, sin a2), with
// the unsigned angle, so that right-hand arcs end on the mirrored arc.
Point fin_d_arc(const Etat& e, Entier16 i, int s, Point depart) {
    const double rayon = e.Param2EnCours(i);
    const double a1 = radians(s + double{e.CapRobot(i)});
    const double a2 = radians(e.ParamEnCours(i) + double{e.CapRobot(i)} + s);
    return {simple(depart.x - rayon * std::cos(a1) + rayon * std::cos(a2)),
            simple(depart.y - rayon * std::sin(a1) + rayon * std::sin(a2))};
}

} // namespace

bool Moteur::predire_carreaux(Entier16 i) {
    using actions::Genre;
    const actions::Action* const action = actions::trouver(etat_.ActionEnCours(i));
    const Genre genre = action == nullptr ? Genre::fin : action->genre;
    // An angle counts as a distance here, and a backward move is predicted ahead.
    const bool droit = genre == Genre::droit || genre == Genre::rotation;
    if (!droit && genre != Genre::arc)
        return false;
    // Always robot 1's sensor, whichever robot moves.
    const Point depart{etat_.Xextr(1), etat_.Yextr(1)};
    const Direction& d = direction_capteur();
    const double p = etat_.ParamEnCours(i);
    const Point fin = droit ? Point{simple(depart.x + p * d.c), simple(depart.y + p * d.s)}
                            : fin_d_arc(etat_, i, action->cote, depart);
    const bool menee = predire_marche(etat_, depart.x, depart.y, fin.x, fin.y, d.c, d.s);
    fenetres_.ecrire_nbre_carreaux(texte_entier(etat_.NbreCarreaux));
    return !menee;
}
