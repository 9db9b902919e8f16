#include "sim/actions.h"
#include "sim/moteur.h"

#include <cmath>

namespace {

// Deliberate: the value of 5 degrees in radians, added to a heading in degrees, makes a fine step.
constexpr float pas_de_recherche = simple(5 * Pi / 180);

double distance(double x1, double y1, double x2, double y2) {
    return std::sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
}

} // namespace

void Moteur::Chercher_Balise(std::uint8_t Sens, Entier16 i) {
    const bool a_droite = Sens == balise_droite;
    e.Progression(i) = 0;
    placer_extremites(direction_capteur());
    e.ActionEnCours(i) = a_droite ? actions::BD : actions::BG;

    const float s = a_droite ? -pas_de_recherche : pas_de_recherche;
    const float compare = a_droite ? e.Progression(i) : e.CapRobot(i);
    if (s == compare)
        e.Incidence = simple(double{e.Progression(i)} + 1);
    else if (a_droite)
        e.Incidence = simple(e.CapRobot(i) > 360 ? double{e.CapRobot(i)} - 360 : e.CapRobot(i));
    else
        e.Incidence = simple(e.CapRobot(i) < 0 ? double{e.CapRobot(i)} + 360 : e.CapRobot(i));
    if (e.Incidence == 360)
        e.Incidence = 0;

    const double tour = double{e.VitesseRot(i)} * e.PasTemps;
    float t = simple(a_droite ? -tour : tour);
    e.Progression(i) = simple(double{t} + e.Progression(i));
    if (std::fabs(s) <= std::fabs(e.Progression(i)))
        t = s;
    e.CapRobot(i) = simple(double{e.CapRobot(i)} + t);

    const PointBalise& balise = a_droite ? e.PointY : e.PointX;
    const double d = distance(e.Xextr(i), e.Yextr(i), balise.X, balise.Y);
    const double dmin = distance(e.Xm(i), e.Ym(i), balise.X, balise.Y);
    const double d2 = d + e.DistExtr(i);
    info_ = {.Xm = e.Xm(1),
             .Ym = e.Ym(1),
             .Xextr = e.Xextr(1),
             .Yextr = e.Yextr(1),
             .avec_balise = true,
             .d = d,
             .dmin = dmin,
             .d2 = d2};
    f.ecrire_Info(info_);
    // To two decimals, the sensor line's end lies between its origin and the beacon: straight
    // ahead.
    if (std::round(dmin * 100) == std::round(d2 * 100))
        terminer(i);
}
