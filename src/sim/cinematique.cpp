#include "sim/actions.h"
#include "sim/moteur.h"

#include <bit>
#include <cmath>

void Moteur::Direction::viser(float nouveau_cap) {
    // Same bits, same cosine and sine: most ticks of a straight move compute none.
    if (std::bit_cast<std::uint32_t>(nouveau_cap) == std::bit_cast<std::uint32_t>(cap))
        return;
    cap = nouveau_cap;
    ::sincos(radians(cap), &s, &c);
}

const Moteur::Direction& Moteur::direction_capteur() {
    incidence_.viser(e.Incidence);
    return incidence_;
}

void Moteur::terminer(Entier16 i) {
    e.ActionEnCours(i) = actions::AUCUNE;
}

void Moteur::ecrire_Info() {
    f.ecrire_Info({.Xm = e.Xm(1), .Ym = e.Ym(1), .Xextr = e.Xextr(1), .Yextr = e.Yextr(1)});
}

void Moteur::placer_extremites(const Direction& d) {
    for (int j = 1; j <= e.NbRobot; ++j) {
        e.Xextr(j) = simple(e.Xm(j) + e.DistExtr(j) * d.c);
        e.Yextr(j) = simple(e.Ym(j) + e.DistExtr(j) * d.s);
    }
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
    for (int j = 1; j <= e.NbRobot; ++j) {
        e.Xm(j) = simple(e.Xm(j) + pas * capteur.c);
        e.Ym(j) = simple(e.Ym(j) + pas * capteur.s);
    }
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

void Moteur::Action_Virage(Entier16 angle, Entier16 rayon, Entier16 cote, Entier16 i) {
    // The outer wheel, at Entraxe / 2 beyond the robot's own radius, keeps the linear speed:
    // w = v dt / (Entraxe / 2 + rayon), in radians.
    double vitesse =
        diviser(double{e.VitesseLin(i)} * e.PasTemps, double{e.Entraxe(i)} / 2 + rayon);
    if (angle <= 0)
        vitesse = -vitesse;
    const float w = simple(vitesse);
    float da = simple(double{w} * 180 / Pi);
    e.Progression(i) = simple(double{e.Progression(i)} + da);
    if (std::fabs(e.Progression(i)) >= std::fabs(static_cast<float>(angle))) {
        terminer(i);
        da = simple(angle - double{e.Progression(i)} + da);
    }

    // x := x - r cos a1 + r cos a2, likewise y with the sines: from the robot to the centre and
    // back to the circle.
    const double h = e.CapRobot(i);
    double c1 = 0;
    double s1 = 0;
    double c2 = 0;
    double s2 = 0;
    ::sincos(radians(cote + h), &s1, &c1);
    ::sincos(radians(da + h + cote), &s2, &c2);
    const auto deplacer = [&](float& x, float& y) {
        x = simple(x - rayon * c1 + rayon * c2);
        y = simple(y - rayon * s1 + rayon * s2);
    };
    deplacer(e.XRobot(i), e.YRobot(i));
    e.CapRobot(i) = simple(h + da);
    for (int j = 1; j <= e.NbRobot; ++j)
        deplacer(e.Xm(j), e.Ym(j));
}
