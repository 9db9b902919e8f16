#pragma once

#include "draw/surface.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

/// The drawing's arithmetic, and its errors, without a picture: a run that nobody looks at ends on
/// the drawing faults that the window would end on, and pays next to nothing for it. ZoneRedessin
/// is not kept up to date.
class DessinAVide {
public:
    /// Looks everything over again; to be called when a run starts, since table records and robot
    /// outlines may have changed.
    void oublier();
    /// Dessine_Table and Dessine_Robot on an empty surface. @returns false after an error
    bool table(const Etat& e, Fenetres& f);
    bool robots(Etat& e, Fenetres& f);

private:
    bool table_vue_ = false;
    std::uint32_t version_vue_ = 0;
    bool contours_vus_ = false;
    int nb_robots_vus_ = 0;
    /// A robot whose position stays within this distance of the origin (cm) fits in 16 bits; below
    /// 0, the drawing must be worked through.
    Tableau<double, robots_max> portee_;
};
