#pragma once

#include "sim/direction.h"
#include "sim/etat.h"

#include <span>
#include <vector>

/// A robot's outline in cartesian coordinates about its reference point, heading 0 (cm). Made once
/// for a robot file; placing it then costs one sine and cosine a heading. Points go two by two:
/// 0-1 is the first segment. The drawing keeps its own, polar arithmetic, whose roundings show.
class Contour {
public:
    Contour() = default;
    /// @param i  robot, 1..9; an odd last point is paired with the one after it, as when drawn
    /// @throws HorsTable when that one is above 100
    Contour(const Etat& e, int i);

    std::size_t nombre() const { return x_.size(); }
    /// Distance of the farthest point from the reference point.
    double rayon() const { return rayon_; }
    std::span<const double> x() const { return x_; }
    std::span<const double> y() const { return y_; }

    /// The points at a pose: x' = x + px cos h - py sin h, y' = y + px sin h + py cos h.
    /// @param xs, ys  receive nombre() values each
    void placer(double x, double y, const Direction& d, std::span<double> xs,
                std::span<double> ys) const;

private:
    std::vector<double> x_, y_;
    double rayon_ = 0;
};
