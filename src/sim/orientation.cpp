#include "sim/orientation.h"

#include <memory>
#include <utility>

namespace {

// Slanted lines are turned as boxes too: the box is right, its diagonal is the other one.
template <typename Tourner>
void tourner_boites(Etat& e, Tourner tourner) {
    for (int i = 1; i <= e.NbZones; ++i)
        tourner(e.Zones(i));
    for (int i = 1; i <= e.NbLignes; ++i)
        tourner(e.Lignes(i));
    for (int i = 1; i <= e.NbEllipses; ++i)
        tourner(e.Ellipses(i));
    for (int i = 1; i <= e.NbBlocs; ++i) {
        if (e.Blocs(i).Y2 != marque_disque)
            tourner(e.Blocs(i));
    }
}

template <typename Tourner>
void tourner_centres(Etat& e, Tourner tourner) {
    for (int i = 1; i <= e.NbPions; ++i)
        tourner(e.Pions(i).X, e.Pions(i).Y);
    for (int i = 1; i <= e.NbBlocs; ++i) {
        if (e.Blocs(i).Y2 == marque_disque)
            tourner(e.Blocs(i).X1, e.Blocs(i).Y1);
    }
}

template <typename Tourner>
void tourner_robots(Etat& e, Tourner tourner) {
    for (int i = 1; i <= robots_des_fichiers; ++i) {
        tourner(e.XInit(i), e.YInit(i), e.CapInit(i));
        tourner(e.XRobot(i), e.YRobot(i), e.CapRobot(i));
    }
}

void vers_horizontale(Etat& e) {
    std::swap(e.XMax, e.YMax);
    ++e.version_table;
    const int H = e.YMax;
    tourner_boites(e, [H](auto& q) {
        const auto ancien = q;
        q.X1 = ancien.Y1;
        q.Y1 = H - ancien.X2;
        q.X2 = ancien.Y2;
        q.Y2 = H - ancien.X1;
    });
    tourner_centres(e, [H](Entier16& x, Entier16& y) {
        const Entier16 ancien_x = x;
        x = y;
        y = H - ancien_x;
    });
    tourner_robots(e, [H](float& x, float& y, float& cap) {
        const float ancien_x = x;
        x = y;
        y = static_cast<float>(Entier16(H - arrondir16(ancien_x)));
        cap = simple(double{cap} - 90);
    });
}

void vers_verticale(Etat& e) {
    std::swap(e.XMax, e.YMax);
    ++e.version_table;
    const int W = e.XMax;
    tourner_boites(e, [W](auto& q) {
        const auto ancien = q;
        q.X1 = W - ancien.Y2;
        q.Y1 = ancien.X1;
        q.X2 = W - ancien.Y1;
        q.Y2 = ancien.X2;
    });
    tourner_centres(e, [W](Entier16& x, Entier16& y) {
        const Entier16 ancien_x = x;
        x = W - y;
        y = ancien_x;
    });
    tourner_robots(e, [W](float& x, float& y, float& cap) {
        const float ancien_x = x;
        x = simple(W - double{y});
        y = static_cast<float>(arrondir16(ancien_x));
        cap = simple(double{cap} + 90);
    });
}

// A coordinate that 16 bits cannot hold leaves the state as it was.
void tourner(Etat& e, void (*comment)(Etat&)) {
    const auto copie = std::make_unique<Etat>(e);
    comment(*copie);
    e = *copie;
}

} // namespace

void horizontal(Etat& e) {
    tourner(e, vers_horizontale);
}

void vertical(Etat& e) {
    tourner(e, vers_verticale);
}
