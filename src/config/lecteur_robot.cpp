#include "config/lecteur_robot.h"

#include "config/fiche_robot.h"
#include "config/ligne.h"

#include <cmath>

namespace {
constexpr double quart_de_tour = 1.5708; ///< used as it stands, not as Pi / 2
}

void LecteurRobot::lire(std::string_view texte, Entier16 n, Entier16& NoLigne) {
    Segments segments;
    modeles_.NbPoints(n) = 0;
    pour_chaque_ligne(texte, NoLigne, [&](std::string_view ligne) {
        appliquer(exiger(fiche_robot(ligne)), n, segments);
    });
    convertir_contour(n, segments);
    modeles_.NbPoints(n) = modeles_.NbPoints(n) * 2;
}

void LecteurRobot::appliquer(const Fiche& f, Entier16 n, Segments& segments) {
    ModelesDeRobots& m = modeles_;
    switch (f.cle.front()) {
    case 'R':
        m.NbPoints(n) = m.NbPoints(n) + 1;
        segments(m.NbPoints(n)) = {f.entier(0), f.entier(1), f.entier(2), f.entier(3)};
        break;
    case 'V':
        m.VitesseLin(n) = simple(f.entier(0) / 100.0);
        m.VitesseRot(n) = simple(f.entier(1) / 100.0);
        break;
    case 'A':
        m.XmInit(n) = course_.Xm(n) = ax_ = f.v[0];
        m.YmInit(n) = course_.Ym(n) = ay_ = f.v[1];
        m.Entraxe(n) = f.v[2];
        break;
    case 'E':
        m.XextrInit(n) = course_.Xextr(n) = f.v[0];
        m.YextrInit(n) = course_.Yextr(n) = f.v[1];
        m.DistExtr(n) = f.v[2];
        break;
    default: // "I"
        m.XInit(n) = f.v[0];
        m.YInit(n) = f.v[1];
        m.CapInit(n) = f.v[2];
    }
}

void LecteurRobot::convertir_contour(Entier16 n, const Segments& segments) {
    for (int j = 1; j <= modeles_.NbPoints(n); ++j) {
        const Quatre& s = segments(j);
        placer_point(n, 2 * j - 1, s.X1, s.Y1);
        placer_point(n, 2 * j, s.X2, s.Y2);
    }
}

void LecteurRobot::placer_point(Entier16 n, int k, Entier16 x, Entier16 y) {
    const double dx = x - static_cast<double>(ax_);
    const double dy = y - static_cast<double>(ay_);
    // distance = sqrt(dx^2 + dy^2)
    modeles_.RobotDist(n, k) = simple(std::sqrt(dx * dx + dy * dy));
    // direction = atan(-dx / dy), from the robot's y axis, positive to the left
    double direction = dx > 0 ? -quart_de_tour : quart_de_tour;
    if (dy != 0)
        direction = std::atan(-dx / dy) + (dy < 0 ? Pi : 0);
    modeles_.RobotAngle(n, k) = simple(direction);
}
