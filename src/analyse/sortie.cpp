#include "analyse/sortie.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double tolerance = 0.01; // cm

/// Where the outline is against the table's edges: how far outside, or how far from leaving.
struct Place {
    double dehors = 0; ///< farthest distance of a point from the table
    double marge = 0; ///< when inside: the least distance of a point to an edge, tolerance included
};

Place place_de(const std::vector<Segment>& contour, double XMax, double YMax) {
    Place place{0, INFINITY};
    const auto voir = [&](Point p) {
        const double dx = std::max({0.0, -p.x, p.x - XMax});
        const double dy = std::max({0.0, -p.y, p.y - YMax});
        place.dehors = std::max(place.dehors, std::sqrt(dx * dx + dy * dy));
        place.marge = std::min({place.marge, p.x, p.y, XMax - p.x, YMax - p.y});
    };
    for (const Segment& s : contour) {
        voir(s.a);
        voir(s.b);
    }
    place.marge += tolerance;
    return place;
}

/// The first tick by which the outline's points may have gone more than `libre`.
std::size_t prochain(const Parcours& p, std::size_t tick, double libre) {
    return 1 + dernier_tick_dans(tick, p.nb_ticks(), libre,
                                 [&p](std::size_t de, std::size_t a) { return p.chemin(de, a); });
}

} // namespace

std::optional<SortieDeTable> sortie_de_table(const Parcours& p, double XMax, double YMax) {
    SortieDeTable sortie;
    std::vector<Segment> contour;
    for (std::size_t tick = 1; tick <= p.nb_ticks();) {
        p.placer(tick, contour);
        const Place place = place_de(contour, XMax, YMax);
        if (place.dehors <= tolerance) {
            tick = prochain(p, tick, place.marge);
            continue;
        }
        if (sortie.nb_ticks == 0)
            sortie.premier = tick;
        sortie.ecart = std::max(sortie.ecart, place.dehors);
        // Until its points have gone that far, it stays outside and gets no farther than it was.
        const double libre = std::min(place.dehors - tolerance, sortie.ecart - place.dehors);
        const std::size_t suivant = prochain(p, tick, libre);
        sortie.nb_ticks += suivant - tick;
        tick = suivant;
    }
    if (sortie.nb_ticks == 0)
        return std::nullopt;
    return sortie;
}
