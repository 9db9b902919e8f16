#pragma once

#include "draw/surface.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

#include <cmath>

/// The drawing's arithmetic, and its errors, without a picture: a run that nobody looks at ends on
/// the drawing faults that the window would end on, and pays next to nothing for it. ZoneRedessin
/// is not kept up to date.
class DessinAVide {
public:
    /// Looks everything over again; to be called when a run starts, since table records and robot
    /// outlines may have changed.
    void oublier();
    /// Dessine_Table and Dessine_Robot on an empty surface. @returns false after an error
    bool table(const Etat& e, Fenetres& f) {
        // The same records give the same result, whatever ZoneRedessin is.
        return (table_vue_ && version_vue_ == e.version_table) || dessiner_table(e, f);
    }
    bool robots(Etat& e, Fenetres& f) { return tous_a_portee(e) || dessiner_robots(e, f); }

private:
    bool dessiner_table(const Etat& e, Fenetres& f);
    bool dessiner_robots(Etat& e, Fenetres& f);
    bool tous_a_portee(const Etat& e) const {
        if (!contours_vus_ || nb_robots_vus_ != e.NbRobot)
            return false;
        const auto portees = portee_.premiers(nb_robots_vus_);
        const auto x = e.XRobot.premiers(nb_robots_vus_);
        const auto y = e.YRobot.premiers(nb_robots_vus_);
        unsigned tous = 1; // without a branch
        for (std::size_t i = 0; i < portees.size(); ++i)
            tous &= unsigned{std::fabs(x[i]) < portees[i]} & unsigned{std::fabs(y[i]) < portees[i]};
        return tous != 0;
    }

    bool table_vue_ = false;
    std::uint32_t version_vue_ = 0;
    bool contours_vus_ = false;
    int nb_robots_vus_ = 0;
    /// A robot whose position stays within this distance of the origin (cm) fits in 16 bits; below
    /// 0, the drawing must be worked through.
    Tableau<float, robots_max> portee_;
};
