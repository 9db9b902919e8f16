#include "draw/sillages.h"

#include "draw/couleurs_robots.h"

#include <string>

namespace {

constexpr double rayon_seconde = 0.8; // cm

void peindre_secondes(const std::vector<PointTable>& points, const std::string& robot, Surface& s) {
    int seconde = 0;
    for (const PointTable& p : points) {
        ++seconde;
        const std::string bulle = robot + ", " + std::to_string(seconde) + " s";
        const bool dizaine = seconde % 10 == 0;
        s.repere(p, dizaine ? 2.5 * rayon_seconde : rayon_seconde, couleurs::noir, bulle);
        if (dizaine)
            s.repere(p, 1.5 * rayon_seconde, couleurs::blanc, bulle);
    }
}

} // namespace

void Sillages::noter(const Etat& e) {
    for (int i = 1; i <= e.NbRobot; ++i) {
        const PointTable p{e.XRobot(i), e.YRobot(i)};
        if (chemins_(i).empty() || chemins_(i).back().x != p.x || chemins_(i).back().y != p.y)
            chemins_(i).push_back(p);
        if (e.TempsEcoule % 100 == 0)
            secondes_(i).push_back(p);
    }
}

void Sillages::peindre(const Etat& e, Surface& s) const {
    for (int i = 1; i <= e.NbRobot; ++i) {
        s.epaisseur(4);
        s.chemin(chemins_(i), couleurs::noir);
        s.epaisseur(2);
        s.chemin(chemins_(i), couleur_robot(i));
        peindre_secondes(secondes_(i), "robot " + std::to_string(i), s);
        s.epaisseur(1);
    }
}
