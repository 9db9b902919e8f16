#include "draw/robot.h"

#include <cmath>
#include <vector>

namespace {

// Widens the box around one end; rounded to whole centimetres, so that the box is an integer
// region.
void elargir_x(Region& r, double x) {
    if (r.xmin >= x)
        r.xmin = arrondir16(x - 1);
    if (r.xmax <= x)
        r.xmax = arrondir16(x + 1);
}

void elargir_y(Region& r, double y) {
    if (r.ymin >= y)
        r.ymin = arrondir16(y - 1);
    if (r.ymax <= y)
        r.ymax = arrondir16(y + 1);
}

// One end of the outline: point k of robot i at a heading (radians), in table coordinates (cm).
PointTable point_contour(const Etat& e, int i, int k, double h) {
    double s = 0;
    double c = 0;
    ::sincos(h + e.RobotAngle(i, k), &s, &c);
    return {e.XRobot(i) + e.RobotDist(i, k) * c, e.YRobot(i) + e.RobotDist(i, k) * s};
}

} // namespace

void peindre_robots(Etat& e, Surface& s) {
    s.couleur_trait(couleurs::cyan);
    // An empty box, which any end widens.
    e.ZoneRedessin = {e.XMax + 5, -5, e.YMax + 5, -5};
    for (int i = 1; i <= e.NbRobot; ++i) {
        const double h = radians(e.CapRobot(i));
        for (int k = 1; k <= e.NbPoints(i); k += 2) {
            const PointTable a = point_contour(e, i, k, h);
            const PointTable b = point_contour(e, i, k + 1, h);
            elargir_x(e.ZoneRedessin, a.x);
            elargir_x(e.ZoneRedessin, b.x);
            elargir_y(e.ZoneRedessin, a.y);
            elargir_y(e.ZoneRedessin, b.y);
            s.ligne(a.x, a.y, b.x, b.y, couleurs::cyan);
        }
    }
}

bool Dessine_Robot(Etat& e, Surface& s, Fenetres& f) {
    try {
        peindre_robots(e, s);
        return true;
    } catch (const ErreurExecution& erreur) {
        f.regler_Timer(0);
        f.message("Erreur majeure d'exécution : Vérifier les fichiers de configuration Robot.ini",
                  std::string("Raison : ") + erreur.what());
        f.fin_du_programme();
        return false;
    }
}

void peindre_contour(const Contour& contour, double x, double y, float cap, Surface& s) {
    Direction direction;
    direction.viser(cap);
    std::vector<double> xs(contour.nombre());
    std::vector<double> ys(contour.nombre());
    contour.placer(x, y, direction, xs, ys);
    for (std::size_t k = 0; k < xs.size(); k += 2)
        s.ligne(xs[k], ys[k], xs[k + 1], ys[k + 1], couleurs::cyan);
}
