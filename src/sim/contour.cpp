#include "sim/contour.h"

#include <algorithm>
#include <cmath>

Contour::Contour(const Etat& e, int i) {
    const int pairs = (e.NbPoints(i) + 1) / 2 * 2;
    for (int k = 1; k <= pairs; ++k) {
        const double distance = e.RobotDist(i, k);
        x_.push_back(distance * std::cos(double{e.RobotAngle(i, k)}));
        y_.push_back(distance * std::sin(double{e.RobotAngle(i, k)}));
        rayon_ = std::max(rayon_, std::fabs(distance));
    }
}

void Contour::placer(double x, double y, const Direction& d, std::span<double> xs,
                     std::span<double> ys) const {
    double* __restrict vers_x = xs.data();
    double* __restrict vers_y = ys.data();
    for (std::size_t k = 0; k < x_.size(); ++k) {
        vers_x[k] = x + (x_[k] * d.c - y_[k] * d.s);
        vers_y[k] = y + (x_[k] * d.s + y_[k] * d.c);
    }
}
