#include "sim/actions.h"
#include "sim/moteur.h"

#include <cmath>
#include <span>

namespace {

// The loops over all robots, on rows that do not overlap, so that the compiler can pack them.
// `simple` drops the precision once, at the end of each sum.
void projeter(std::span<float> extremites, std::span<const float> origines,
              std::span<const float> longueurs, double composante) {
    float* __restrict vers = extremites.data();
    const float* __restrict depuis = origines.data();
    const float* __restrict longueur = longueurs.data();
    for (std::size_t j = 0; j < extremites.size(); ++j)
        vers[j] = simple(depuis[j] + longueur[j] * composante);
}

void decaler(std::span<float> positions, double ecart) {
    for (float& p : positions)
        p = simple(p + ecart);
}

struct Deplacement {
    double x1, x2, y1, y2;
};

// From a point to the circle's centre and back to the circle: p - r cos a1 + r cos a2.
void deplacer(std::span<float> xs, std::span<float> ys, const Deplacement& d) {
    float* __restrict x = xs.data();
    float* __restrict y = ys.data();
    for (std::size_t j = 0; j < xs.size(); ++j) {
        x[j] = simple(x[j] - d.x1 + d.x2);
        y[j] = simple(y[j] - d.y1 + d.y2);
    }
}

} // namespace

const Direction& Moteur::direction_capteur() {
    incidence_.viser(etat_.Incidence);
    return incidence_;
}

void Moteur::terminer(Entier16 i) {
    etat_.ActionEnCours(i) = actions::AUCUNE;
}

void Moteur::ecrire_Info() {
    info_.Xm = etat_.Xm(1);
    info_.Ym = etat_.Ym(1);
    info_.Xextr = etat_.Xextr(1);
    info_.Yextr = etat_.Yextr(1);
    info_.avec_balise = false;
    fenetres_.ecrire_Info(info_);
}

void Moteur::placer_extremites(const Direction& d) {
    const int n = etat_.NbRobot;
    projeter(etat_.Xextr.premiers(n), etat_.Xm.premiers(n), etat_.DistExtr.premiers(n), d.c);
    projeter(etat_.Yextr.premiers(n), etat_.Ym.premiers(n), etat_.DistExtr.premiers(n), d.s);
}

void Moteur::Action_Pause(Entier16 duree, Entier16 i) {
    etat_.Progression(i) = simple(double{etat_.Progression(i)} + etat_.PasTemps);
    if (etat_.Progression(i) > static_cast<float>(duree))
        terminer(i);
}

void Moteur::Action_Avance(Entier16 distance, Entier16 i) {
    const double longueur = double{etat_.VitesseLin(i)} * etat_.PasTemps;
    float pas = simple(distance < 1 ? -longueur : longueur);

    // Deliberate: every robot's sensor line moves, by the untrimmed step.
    const Direction& capteur = direction_capteur();
    decaler(etat_.Xm.premiers(etat_.NbRobot), pas * capteur.c);
    decaler(etat_.Ym.premiers(etat_.NbRobot), pas * capteur.s);
    placer_extremites(capteur);
    ecrire_Info();

    etat_.Progression(i) = simple(double{etat_.Progression(i)} + pas);
    if (std::fabs(etat_.Progression(i)) >= std::fabs(static_cast<float>(distance))) {
        terminer(i);
        pas = simple(distance - double{etat_.Progression(i)} + pas);
    }
    // x := x + pas cos h, y := y + pas sin h (h: heading)
    Direction& cap = caps_(i);
    cap.viser(etat_.CapRobot(i));
    etat_.XRobot(i) = simple(etat_.XRobot(i) + pas * cap.c);
    etat_.YRobot(i) = simple(etat_.YRobot(i) + pas * cap.s);
}

void Moteur::Action_Tourne(Entier16 angle, Entier16 i) {
    // Deliberate: the two sides compare with different quantities and normalise in one direction
    // only; the sensor's heading lags one tick behind the robot's.
    const bool a_gauche = angle >= 1;
    const float compare = a_gauche ? etat_.CapRobot(i) : etat_.Progression(i);
    if (static_cast<float>(angle) == compare)
        etat_.Incidence = simple(double{etat_.Progression(i)} + 1);
    else if (a_gauche)
        etat_.Incidence =
            simple(etat_.CapRobot(i) < 0 ? double{etat_.CapRobot(i)} + 360 : etat_.CapRobot(i));
    else
        etat_.Incidence =
            simple(etat_.CapRobot(i) > 360 ? double{etat_.CapRobot(i)} - 360 : etat_.CapRobot(i));
    if (etat_.Incidence == 360)
        etat_.Incidence = 0;

    const double tour = double{etat_.VitesseRot(i)} * etat_.PasTemps;
    float pas = simple(a_gauche ? tour : -tour);
    placer_extremites(direction_capteur());
    ecrire_Info();

    etat_.Progression(i) = simple(double{etat_.Progression(i)} + pas);
    if (std::fabs(etat_.Progression(i)) >= std::fabs(static_cast<float>(angle))) {
        terminer(i);
        pas = simple(angle - double{etat_.Progression(i)} + pas);
    }
    etat_.CapRobot(i) = simple(double{etat_.CapRobot(i)} + pas);
}

void Moteur::Arc::calculer(float nouvelle_vitesse, float nouvel_entraxe, Entier16 pas_temps,
                           Entier16 nouveau_rayon, bool negatif) {
    if (nouvelle_vitesse == vitesse && nouvel_entraxe == entraxe && pas_temps == PasTemps &&
        nouveau_rayon == rayon && negatif == a_droite)
        return;
    // The outer wheel, at Entraxe / 2 beyond the robot's own radius, keeps the linear speed:
    // w = v dt / (Entraxe / 2 + rayon), in radians.
    double rapport =
        diviser(double{nouvelle_vitesse} * pas_temps, double{nouvel_entraxe} / 2 + nouveau_rayon);
    if (negatif)
        rapport = -rapport;
    const float w = simple(rapport);
    pas = simple(double{w} * 180 / Pi);
    vitesse = nouvelle_vitesse;
    entraxe = nouvel_entraxe;
    PasTemps = pas_temps;
    rayon = nouveau_rayon;
    a_droite = negatif;
}

void Moteur::Action_Virage(Entier16 angle, Entier16 rayon, Entier16 cote, Entier16 i) {
    Arc& arc = arcs_(i);
    arc.calculer(etat_.VitesseLin(i), etat_.Entraxe(i), etat_.PasTemps, rayon, angle <= 0);
    float da = arc.pas;
    etat_.Progression(i) = simple(double{etat_.Progression(i)} + da);
    if (std::fabs(etat_.Progression(i)) >= std::fabs(static_cast<float>(angle))) {
        terminer(i);
        da = simple(angle - double{etat_.Progression(i)} + da);
    }

    const double h = etat_.CapRobot(i);
    double c1 = 0;
    double s1 = 0;
    double c2 = 0;
    double s2 = 0;
    ::sincos(radians(cote + h), &s1, &c1);
    ::sincos(radians(da + h + cote), &s2, &c2);
    const Deplacement d{rayon * c1, rayon * c2, rayon * s1, rayon * s2};
    etat_.XRobot(i) = simple(etat_.XRobot(i) - d.x1 + d.x2);
    etat_.YRobot(i) = simple(etat_.YRobot(i) - d.y1 + d.y2);
    etat_.CapRobot(i) = simple(h + da);
    deplacer(etat_.Xm.premiers(etat_.NbRobot), etat_.Ym.premiers(etat_.NbRobot), d);
}
