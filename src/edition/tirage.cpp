#include "edition/tirage.h"

#include "base/nombres.h"
#include "sim/actions.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double plus_grand = 32767;

float entiere(double valeur, double mini) {
    return static_cast<float>(std::clamp(std::round(valeur), mini, plus_grand));
}

double degres(Vecteur v) {
    return std::atan2(v.y, v.x) * 180 / Pi;
}

Vecteur direction(double cap) {
    return {std::cos(cap * Pi / 180), std::sin(cap * Pi / 180)};
}

double produit(Vecteur a, Vecteur b) {
    return a.x * b.x + a.y * b.y;
}

/// From 1 to 360: an action that does not turn has no end to be taken again.
float angle_de_tour(double angle) {
    const double tour = std::fmod(std::fmod(std::round(angle), 360) + 360, 360);
    return static_cast<float>(tour == 0 ? 360 : tour);
}

Fiche droit_tire(Fiche action, int sens, const PoseTrajet& avant, Vecteur chemin) {
    action.v[0] = entiere(sens * produit(chemin, direction(avant.cap)), 1);
    return action;
}

Fiche rotation_tiree(Fiche action, int sens, const PoseTrajet& avant, Vecteur chemin) {
    action.v[0] = angle_de_tour(sens * (degres(chemin) - avant.cap));
    return action;
}

// The circle through the start, tangent to the heading, and the point: with n towards its centre
// and c the chord, r = c.c / (2 c.n).
Fiche arc_tire(Fiche action, const actions::Action& sorte, const PoseTrajet& avant,
               Vecteur chemin) {
    const Vecteur du_centre = direction(avant.cap + sorte.cote);
    const double vers_le_centre = -produit(chemin, du_centre);
    if (vers_le_centre > 0)
        action.v[1] = entiere(produit(chemin, chemin) / (2 * vers_le_centre), 1);
    const double rayon = action.v[1];
    const Vecteur depuis_le_centre{chemin.x + rayon * du_centre.x, chemin.y + rayon * du_centre.y};
    action.v[0] = angle_de_tour(sorte.sens * (degres(depuis_le_centre) - avant.cap - sorte.cote));
    return action;
}

} // namespace

std::optional<Fiche> fin_tiree(const Fiche& action, const PoseTrajet& avant, Vecteur vers) {
    const actions::Action* const sorte = actions::trouver(Nom10(action.cle));
    if (sorte == nullptr)
        return std::nullopt;
    const Vecteur chemin{vers.x - avant.x, vers.y - avant.y};
    switch (sorte->genre) {
    case actions::Genre::droit:
        return droit_tire(action, sorte->sens, avant, chemin);
    case actions::Genre::rotation:
        return rotation_tiree(action, sorte->sens, avant, chemin);
    case actions::Genre::arc:
        return arc_tire(action, *sorte, avant, chemin);
    default:
        return std::nullopt;
    }
}

Fiche depart_deplace(Fiche depart, Vecteur vers) {
    depart.v[0] = entiere(vers.x, -plus_grand);
    depart.v[1] = entiere(vers.y, -plus_grand);
    return depart;
}

Fiche depart_oriente(Fiche depart, Vecteur vers) {
    depart.v[2] =
        static_cast<float>(std::round(degres({vers.x - depart.v[0], vers.y - depart.v[1]})));
    return depart;
}
