#pragma once

#include "draw/surface.h"
#include "sim/etat.h"

#include <vector>

/// What makes a robot readable: the area within its outline, its number, where it is heading. Made
/// once for a robot file, in the robot's frame (x ahead, y to the left, cm).
class Silhouette {
public:
    Silhouette() = default;
    /// @param i  robot, 1..9  @throws HorsTable as Contour
    Silhouette(const Etat& e, int i);

    /// The closed parts of the outline or, where none is closed, its convex hull; anticlockwise.
    const std::vector<Forme>& formes() const { return formes_; }
    /// Paints what lies beneath the outline: a translucent fill in the robot's colour, a mark at
    /// the front and the number, if it can be read at that scale.
    /// @param x, y  reference point (cm)  @param cap  heading (degrees)
    void peindre(double x, double y, double cap, Surface& s) const;

    // Some of it, where it must be painted in microseconds.
    /// Where the number goes at a pose, then the three corners of the mark.
    Forme reperes(double x, double y, double cap) const;
    void peindre_numero(PointTable milieu, Surface& s) const;
    /// Radius of its disc, pixels; 0 where it could not be read.
    double rayon_du_numero(double cm_par_pixel) const;

private:
    int robot_ = 0;
    std::vector<Forme> formes_;
    double milieu_ = 0;  ///< y
    double arriere_ = 0; ///< smallest x
    double avant_ = 0;   ///< farthest x
    double taille_ = 0;  ///< the smaller side of the box around it
};

/// A shape of the robot's frame at a pose.
Forme placee(const Forme& forme, double x, double y, double cap);
/// Turns a shape the other way where it runs clockwise.
void orienter(Forme& forme);
