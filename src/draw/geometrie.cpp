#include "draw/geometrie.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

Point moins(Point p, Point q) {
    return {p.x - q.x, p.y - q.y};
}
double vectoriel(Point u, Point v) {
    return u.x * v.y - u.y * v.x;
}
double norme(Point u) {
    return std::sqrt(u.x * u.x + u.y * u.y);
}

/// The side of the line ab on which p lies: positive to the left.
double cote(Point a, Point b, Point p) {
    return vectoriel(moins(b, a), moins(p, a));
}

bool se_croisent(const Segment& s, const Segment& t) {
    const double s1 = cote(t.a, t.b, s.a);
    const double s2 = cote(t.a, t.b, s.b);
    const double t1 = cote(s.a, s.b, t.a);
    const double t2 = cote(s.a, s.b, t.b);
    return ((s1 > 0) != (s2 > 0)) && ((t1 > 0) != (t2 > 0));
}

/// The circle around a segment.
struct Cercle {
    double x, y, r;
};

std::size_t entourer(std::span<const Segment> contour, std::span<Cercle> cercles) {
    const std::size_t n = std::min(contour.size(), cercles.size());
    for (std::size_t k = 0; k < n; ++k) {
        const Segment& s = contour[k];
        cercles[k] = {(s.a.x + s.b.x) / 2, (s.a.y + s.b.y) / 2, norme(moins(s.b, s.a)) / 2};
    }
    return n;
}

bool plus_loin_que(const Cercle& c, const Cercle& d, double minimum) {
    const double dx = c.x - d.x;
    const double dy = c.y - d.y;
    const double portee = minimum + c.r + d.r;
    return dx * dx + dy * dy >= portee * portee;
}

bool dans(Point p, const Obstacle& o) {
    return p.x >= o.bas.x && p.x <= o.haut.x && p.y >= o.bas.y && p.y <= o.haut.y;
}

} // namespace

double distance(Point p, const Segment& s) {
    const Point d = moins(s.b, s.a);
    const Point v = moins(p, s.a);
    const double carre = d.x * d.x + d.y * d.y;
    const double t = carre > 0 ? std::clamp((v.x * d.x + v.y * d.y) / carre, 0.0, 1.0) : 0;
    return norme({v.x - t * d.x, v.y - t * d.y});
}

double distance(const Segment& s, const Segment& t) {
    if (se_croisent(s, t))
        return 0;
    return std::min({distance(s.a, t), distance(s.b, t), distance(t.a, s), distance(t.b, s)});
}

double distance(const Segment& s, const Obstacle& o) {
    if (o.rayon >= 0)
        return std::max(0.0, distance(o.bas, s) - o.rayon);
    if (dans(s.a, o))
        return 0;
    const Point coin1{o.haut.x, o.bas.y};
    const Point coin2{o.bas.x, o.haut.y};
    return std::min({distance(s, Segment{o.bas, coin1}), distance(s, Segment{coin1, o.haut}),
                     distance(s, Segment{o.haut, coin2}), distance(s, Segment{coin2, o.bas})});
}

double ecart(std::span<const Segment> a, std::span<const Segment> b, double plafond) {
    std::array<Cercle, segments_max> autour_a{};
    std::array<Cercle, segments_max> autour_b{};
    const std::size_t na = entourer(a, autour_a);
    const std::size_t nb = entourer(b, autour_b);
    double minimum = plafond;
    for (std::size_t i = 0; i < na; ++i) {
        for (std::size_t j = 0; j < nb; ++j) {
            if (!plus_loin_que(autour_a[i], autour_b[j], minimum))
                minimum = std::min(minimum, distance(a[i], b[j]));
        }
    }
    return minimum;
}

double ecart(std::span<const Segment> a, const Obstacle& o) {
    double minimum = INFINITY;
    for (const Segment& s : a)
        minimum = std::min(minimum, distance(s, o));
    return minimum;
}
