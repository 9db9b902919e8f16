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
    etat_.Progression(i) = 0;
    placer_extremites(direction_capteur());
    etat_.ActionEnCours(i) = a_droite ? actions::BD : actions::BG;

    const float s = a_droite ? -pas_de_recherche : pas_de_recherche;
    const float compare = a_droite ? etat_.Progression(i) : etat_.CapRobot(i);
    if (s == compare)
        etat_.Incidence = simple(double{etat_.Progression(i)} + 1);
    else if (a_droite)
        etat_.Incidence =
            simple(etat_.CapRobot(i) > 360 ? double{etat_.CapRobot(i)} - 360 : etat_.CapRobot(i));
    else
        etat_.Incidence =
            simple(etat_.CapRobot(i) < 0 ? double{etat_.CapRobot(i)} + 360 : etat_.CapRobot(i));
    if (etat_.Incidence == 360)
        etat_.Incidence = 0;

    const double tour = double{etat_.VitesseRot(i)} * etat_.PasTemps;
    float t = simple(a_droite ? -tour : tour);
    etat_.Progression(i) = simple(double{t} + etat_.Progression(i));
    if (std::fabs(s) <= std::fabs(etat_.Progression(i)))
        t = s;
    etat_.CapRobot(i) = simple(double{etat_.CapRobot(i)} + t);

    const PointBalise& balise = a_droite ? etat_.PointY : etat_.PointX;
    const double d = distance(etat_.Xextr(i), etat_.Yextr(i), balise.X, balise.Y);
    const double dmin = distance(etat_.Xm(i), etat_.Ym(i), balise.X, balise.Y);
    const double d2 = d + etat_.DistExtr(i);
    info_ = {.Xm = etat_.Xm(1),
             .Ym = etat_.Ym(1),
             .Xextr = etat_.Xextr(1),
             .Yextr = etat_.Yextr(1),
             .avec_balise = true,
             .d = d,
             .dmin = dmin,
             .d2 = d2};
    fenetres_.ecrire_Info(info_);
    // To two decimals, the sensor line's end lies between its origin and the beacon: straight
    // ahead.
    if (std::round(dmin * 100) == std::round(d2 * 100))
        terminer(i);
}
