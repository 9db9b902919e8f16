#include "draw/a_vide.h"

#include "draw/robot.h"
#include "draw/surface_vide.h"
#include "draw/table.h"

#include <algorithm>
#include <cmath>

namespace {

// How far robot i may stand from the origin so that no end of its outline, widened by 1 cm, can
// leave 16 bits.
double portee(const Etat& e, int i) {
    constexpr double limite = 32767 - 3;
    if (e.NbPoints(i) >= points_max || e.XMax > limite || e.YMax > limite)
        return -1;
    double rayon = 0;
    for (int k = 1; k <= e.NbPoints(i) + 1; ++k)
        rayon = std::max(rayon, double{e.RobotDist(i, k)});
    return limite - rayon;
}

} // namespace

void DessinAVide::oublier() {
    table_vue_ = false;
    contours_vus_ = false;
}

bool DessinAVide::table(const Etat& e, Fenetres& f) {
    // The same records give the same result, whatever ZoneRedessin is.
    if (table_vue_ && version_vue_ == e.version_table)
        return true;
    SurfaceVide vide;
    table_vue_ = Dessine_Table(e, vide, f);
    version_vue_ = e.version_table;
    return table_vue_;
}

bool DessinAVide::robots(Etat& e, Fenetres& f) {
    if (!contours_vus_ || nb_robots_vus_ != e.NbRobot) {
        for (int i = 1; i <= e.NbRobot; ++i)
            portee_(i) = portee(e, i);
        contours_vus_ = true;
        nb_robots_vus_ = e.NbRobot;
    }
    for (int i = 1; i <= e.NbRobot; ++i) {
        const double x = std::fabs(e.XRobot(i));
        const double y = std::fabs(e.YRobot(i));
        if (!(x < portee_(i) && y < portee_(i))) {
            SurfaceVide vide;
            return Dessine_Robot(e, vide, f);
        }
    }
    return true;
}
