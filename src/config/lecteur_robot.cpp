#include "config/lecteur_robot.h"

#include "config/ligne.h"

#include <cmath>

namespace {
constexpr double quart_de_tour = 1.5708; ///< used as it stands, not as Pi / 2
}

void LecteurRobot::lire(std::string_view texte, Entier16 n, Entier16& NoLigne) {
    Segments segments;
    e.NbPoints(n) = 0;
    pour_chaque_ligne(texte, NoLigne,
                      [&](std::string_view ligne) { lire_ligne(ligne, n, segments); });
    convertir_contour(n, segments);
    e.NbPoints(n) = e.NbPoints(n) * 2;
}

void LecteurRobot::lire_ligne(std::string_view ligne, Entier16 n, Segments& segments) {
    Champs champs(ligne);
    const Cle cle = champs.cle();
    if (cle.vue() == "R") {
        const Entier16 x1 = champs.entier();
        const Entier16 y1 = champs.entier();
        const Entier16 x2 = champs.entier();
        const Entier16 y2 = champs.dernier_entier();
        e.NbPoints(n) = e.NbPoints(n) + 1;
        segments(e.NbPoints(n)) = {x1, y1, x2, y2};
    } else if (cle.vue() == "V") {
        const Entier16 lineaire = champs.entier();
        const Entier16 rotation = champs.dernier_entier();
        e.VitesseLin(n) = simple(lineaire / 100.0);
        e.VitesseRot(n) = simple(rotation / 100.0);
    } else if (cle.vue() == "A") {
        const float a1 = lire_simple(champs.suivant());
        const Entier16 a2 = champs.entier();
        e.Entraxe(n) = simple(champs.dernier_entier());
        e.XmInit(n) = e.Xm(n) = ax_ = a1;
        e.YmInit(n) = e.Ym(n) = ay_ = simple(a2);
    } else if (cle.vue() == "E") {
        const Entier16 e1 = champs.entier();
        const Entier16 e2 = champs.entier();
        e.DistExtr(n) = simple(champs.dernier_entier());
        e.XextrInit(n) = e.Xextr(n) = simple(e1);
        e.YextrInit(n) = e.Yextr(n) = simple(e2);
    } else if (cle.vue() == "I") {
        const Entier16 x = champs.entier();
        const Entier16 y = champs.entier();
        e.CapInit(n) = simple(champs.dernier_entier());
        e.XInit(n) = simple(x);
        e.YInit(n) = simple(y);
    } else {
        refuser_cle(cle.vue());
    }
}

void LecteurRobot::convertir_contour(Entier16 n, const Segments& segments) {
    for (int j = 1; j <= e.NbPoints(n); ++j) {
        const Quatre& s = segments(j);
        placer_point(n, 2 * j - 1, s.X1, s.Y1);
        placer_point(n, 2 * j, s.X2, s.Y2);
    }
}

void LecteurRobot::placer_point(Entier16 n, int k, Entier16 x, Entier16 y) {
    const double dx = x - static_cast<double>(ax_);
    const double dy = y - static_cast<double>(ay_);
    // distance = sqrt(dx^2 + dy^2)
    e.RobotDist(n, k) = simple(std::sqrt(dx * dx + dy * dy));
    // direction = atan(-dx / dy), from the robot's y axis, positive to the left
    double direction = dx > 0 ? -quart_de_tour : quart_de_tour;
    if (dy != 0)
        direction = std::atan(-dx / dy) + (dy < 0 ? Pi : 0);
    e.RobotAngle(n, k) = simple(direction);
}
