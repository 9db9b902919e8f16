#include "draw/a_vide.h"

#include "draw/robot.h"
#include "draw/surface_vide.h"
#include "draw/table.h"

#include <algorithm>

namespace {

// How far robot i may stand from the origin so that no end of its outline, widened by 1 cm, can
// leave 16 bits.
float portee(const Etat& e, int i) {
    constexpr int limite = 32767 - 3;
    if (e.NbPoints(i) >= points_max || e.XMax > limite || e.YMax > limite)
        return -1;
    float rayon = 0;
    for (int k = 1; k <= e.NbPoints(i) + 1; ++k)
        rayon = std::max(rayon, e.RobotDist(i, k));
    return static_cast<float>(limite) - rayon;
}

} // namespace

void DessinAVide::oublier() {
    table_vue_ = false;
    contours_vus_ = false;
}

bool DessinAVide::dessiner_table(const Etat& e, Fenetres& f) {
    SurfaceVide vide;
    table_vue_ = Dessine_Table(e, vide, f);
    version_vue_ = e.version_table;
    return table_vue_;
}

bool DessinAVide::dessiner_robots(Etat& e, Fenetres& f) {
    for (int i = 1; i <= e.NbRobot; ++i)
        portee_(i) = portee(e, i);
    contours_vus_ = true;
    nb_robots_vus_ = e.NbRobot;
    SurfaceVide vide;
    return tous_a_portee(e) || Dessine_Robot(e, vide, f);
}
