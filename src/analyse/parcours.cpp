#include "analyse/parcours.h"

#include "sim/actions.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// What the poses' single precision can add to a step, in cm.
double arrondi(const PoseTick& p, double rayon) {
    constexpr double relatif = 2.5e-7;
    return 1e-5 + relatif * (std::fabs(double{p.x}) + std::fabs(double{p.y}) +
                             std::fabs(radians(p.cap)) * rayon);
}

} // namespace

Parcours::Parcours(const Etat& e, const MatchCalcule& m, int i)
    : m_(&m), robot_(i), contour_(e, i), cumul_(m.nb_ticks() + 1) {
    for (const ActionJouee& action : m.actions(i))
        ajouter(e, action);
    std::size_t fait = 0;
    const auto immobile_jusqu_a = [&](std::size_t tick) {
        const double total = cumul_[fait];
        for (; fait < tick; ++fait)
            cumul_[fait + 1] = total;
    };
    for (const Morceau& morceau : morceaux_) {
        immobile_jusqu_a(morceau.debut);
        if (morceau.fin == morceau.debut)
            continue;
        // Every step of an action is as long as its first one; the last one is trimmed.
        const double premier = pas(morceau, morceau.debut);
        for (; fait + 1 < morceau.fin; ++fait)
            cumul_[fait + 1] = cumul_[fait] + premier;
        cumul_[fait + 1] = cumul_[fait] + std::max(premier, pas(morceau, fait));
        ++fait;
    }
    immobile_jusqu_a(m.nb_ticks());
}

void Parcours::ajouter(const Etat& e, const ActionJouee& action) {
    const actions::Action* const connue = actions::trouver(action.action);
    if (connue == nullptr || connue->genre == Genre::pause)
        return;
    const std::size_t fin = action.finie() ? m_->tick(action.fin) : m_->nb_ticks();
    morceaux_.push_back({m_->tick(action.debut), fin, connue->genre,
                         static_cast<double>(e.TrajParam2(robot_, action.numero)),
                         static_cast<double>(connue->cote)});
}

double Parcours::pas(const Morceau& m, std::size_t tick) const {
    const PoseTick& a = pose(tick);
    const PoseTick& b = pose(tick + 1);
    const double angle = std::fabs(radians(double{b.cap} - a.cap));
    const double marge = arrondi(b, rayon());
    if (m.genre == Genre::droit)
        return std::hypot(double{b.x} - a.x, double{b.y} - a.y) + marge;
    if (m.genre != Genre::arc)
        return angle * rayon() + marge;
    // The arc's centre in the robot's frame, abreast of its reference point.
    const double centre = m.cote > 0 ? -m.rayon : m.rayon;
    double bras = std::fabs(m.rayon);
    for (std::size_t k = 0; k < contour_.nombre(); ++k)
        bras = std::max(bras, std::hypot(contour_.x()[k], contour_.y()[k] - centre));
    return angle * bras + marge;
}

const Parcours::Morceau* Parcours::morceau(std::size_t tick) const {
    const auto apres = std::ranges::upper_bound(morceaux_, tick, {}, &Morceau::debut);
    if (apres == morceaux_.begin() || tick >= std::prev(apres)->fin)
        return nullptr;
    return &*std::prev(apres);
}

void Parcours::placer(double x, double y, double cap, std::vector<Segment>& contour) const {
    std::array<double, points_max + 1> xs{};
    std::array<double, points_max + 1> ys{};
    Direction d;
    ::sincos(radians(cap), &d.s, &d.c);
    contour_.placer(x, y, d, xs, ys);
    contour.clear();
    for (std::size_t k = 0; k + 1 < contour_.nombre(); k += 2)
        contour.push_back({{xs[k], ys[k]}, {xs[k + 1], ys[k + 1]}});
}

void Parcours::placer(std::size_t tick, std::vector<Segment>& contour) const {
    const PoseTick& p = pose(tick);
    placer(p.x, p.y, p.cap, contour);
}

void Parcours::placer_entre(std::size_t tick, double u, std::vector<Segment>& contour) const {
    const PoseTick& a = pose(tick);
    const PoseTick& b = pose(tick + 1);
    const Morceau* const m = morceau(tick);
    if (m == nullptr)
        return placer(tick, contour);
    double x = a.x + u * (double{b.x} - a.x);
    double y = a.y + u * (double{b.y} - a.y);
    const double cap = a.cap + u * (double{b.cap} - a.cap);
    if (m->genre == Genre::arc) {
        // centre = p - r (cos a1, sin a1), then the point of the circle at the heading reached
        const double a1 = radians(m->cote + a.cap);
        const double a2 = radians(m->cote + cap);
        x = a.x + m->rayon * (std::cos(a2) - std::cos(a1));
        y = a.y + m->rayon * (std::sin(a2) - std::sin(a1));
    }
    placer(x, y, cap, contour);
}
