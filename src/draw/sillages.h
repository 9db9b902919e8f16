#pragma once

#include "draw/surface.h"
#include "sim/etat.h"

#include <vector>

/// Where each robot's reference point went during a run, and where it was at each whole second.
class Sillages {
public:
    /// Adds the robots' present places; to be called after each tick's actions.
    void noter(const Etat& e);
    /// Paints the ways of robots 1..NbRobot, each in a colour of its own with a dark edge, a dot
    /// every second, a larger one with a white heart every ten.
    void peindre(const Etat& e, Surface& s) const;

private:
    using Chemins = Tableau<std::vector<PointTable>, robots_max>;

    Chemins chemins_;  ///< standing still adds no point
    Chemins secondes_; ///< one point a second
};
