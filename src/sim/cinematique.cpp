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
    incidence_.viser(e.Incidence);
    return incidence_;
}

void Moteur::terminer(Entier16 i) {
    e.ActionEnCours(i) = actions::AUCUNE;
}

void Moteur::ecrire_Info() {
    info_.Xm = e.Xm(1);
    info_.Ym = e.Ym(1);
    info_.Xextr = e.Xextr(1);
    info_.Yextr = e.Yextr(1);
    info_.avec_balise = false;
    f.ecrire_Info(info_);
}

void Moteur::placer_extremites(const Direction& d) {
    const int n = e.NbRobot;
    projeter(e.Xextr.premiers(n), e.Xm.premiers(n), e.DistExtr.premiers(n), d.c);
    projeter(e.Yextr.premiers(n), e.Ym.premiers(n), e.DistExtr.premiers(n), d.s);
}

void Moteur::Action_Pause(Entier16 duree, Entier16 i) {
    e.Progression(i) = simple(double{e.Progression(i)} + e.PasTemps);
    if (e.Progression(i) > static_cast<float>(duree))
        terminer(i);
}

void Moteur::Action_Avance(Entier16 distance, Entier16 i) {
    const double longueur = double{e.VitesseLin(i)} * e.PasTemps;
    float pas = simple(distance < 1 ? -longueur : longueur);

    // Deliberate: every robot's sensor line moves, by the untrimmed step.
    const Direction& capteur = direction_capteur();
    decaler(e.Xm.premiers(e.NbRobot), pas * capteur.c);
    decaler(e.Ym.premiers(e.NbRobot), pas * capteur.s);
    placer_extremites(capteur);
    ecrire_Info();

    e.Progression(i) = simple(double{e.Progression(i)} + pas);
    if (std::fabs(e.Progression(i)) >= std::fabs(static_cast<float>(distance))) {
        terminer(i);
        pas = simple(distance - double{e.Progression(i)} + pas);
    }
    // x := x + pas cos h, y := y + pas sin h (h: heading)
    Direction& cap = caps_(i);
    cap.viser(e.CapRobot(i));
    e.XRobot(i) = simple(e.XRobot(i) + pas * cap.c);
    e.YRobot(i) = simple(e.YRobot(i) + pas * cap.s);
}

void Moteur::Action_Tourne(Entier16 angle, Entier16 i) {
    // Deliberate: the two sides compare with different quantities and normalise in one direction
    // only; the sensor's heading lags one tick behind the robot's.
    const bool a_gauche = angle >= 1;
    const float compare = a_gauche ? e.CapRobot(i) : e.Progression(i);
    if (static_cast<float>(angle) == compare)
        e.Incidence = simple(double{e.Progression(i)} + 1);
    else if (a_gauche)
        e.Incidence = simple(e.CapRobot(i) < 0 ? double{e.CapRobot(i)} + 360 : e.CapRobot(i));
    else
        e.Incidence = simple(e.CapRobot(i) > 360 ? double{e.CapRobot(i)} - 360 : e.CapRobot(i));
    if (e.Incidence == 360)
        e.Incidence = 0;

    const double tour = double{e.VitesseRot(i)} * e.PasTemps;
    float pas = simple(a_gauche ? tour : -tour);
    placer_extremites(direction_capteur());
    ecrire_Info();

    e.Progression(i) = simple(double{e.Progression(i)} + pas);
    if (std::fabs(e.Progression(i)) >= std::fabs(static_cast<float>(angle))) {
        terminer(i);
        pas = simple(angle - double{e.Progression(i)} + pas);
    }
    e.CapRobot(i) = simple(double{e.CapRobot(i)} + pas);
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
    arc.calculer(e.VitesseLin(i), e.Entraxe(i), e.PasTemps, rayon, angle <= 0);
    float da = arc.pas;
    e.Progression(i) = simple(double{e.Progression(i)} + da);
    if (std::fabs(e.Progression(i)) >= std::fabs(static_cast<float>(angle))) {
        terminer(i);
        da = simple(angle - double{e.Progression(i)} + da);
    }

    const double h = e.CapRobot(i);
    double c1 = 0;
    double s1 = 0;
    double c2 = 0;
    double s2 = 0;
    ::sincos(radians(cote + h), &s1, &c1);
    ::sincos(radians(da + h + cote), &s2, &c2);
    const Deplacement d{rayon * c1, rayon * c2, rayon * s1, rayon * s2};
    e.XRobot(i) = simple(e.XRobot(i) - d.x1 + d.x2);
    e.YRobot(i) = simple(e.YRobot(i) - d.y1 + d.y2);
    e.CapRobot(i) = simple(h + da);
    deplacer(e.Xm.premiers(e.NbRobot), e.Ym.premiers(e.NbRobot), d);
}
