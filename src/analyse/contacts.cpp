#include "analyse/contacts.h"

#include <algorithm>
#include <cmath>

namespace {

/// Two robots: their outlines, how far apart they are, how fast that can change.
class PaireDeRobots {
public:
    PaireDeRobots(const Parcours& a, const Parcours& b) : a_(a), b_(b) {}

    std::size_t nb_ticks() const { return a_.nb_ticks(); }
    double chemin(std::size_t de, std::size_t a) const {
        return a_.chemin(de, a) + b_.chemin(de, a);
    }
    /// Not more than the gap: that of the circles around the outlines.
    double ecart_au_moins(std::size_t tick) const {
        const PoseTick& p = a_.pose(tick);
        const PoseTick& q = b_.pose(tick);
        return std::hypot(double{p.x} - q.x, double{p.y} - q.y) - a_.rayon() - b_.rayon();
    }
    double ecart_a(std::size_t tick) {
        a_.placer(tick, contour_a_);
        b_.placer(tick, contour_b_);
        return ecart(contour_a_, contour_b_, INFINITY);
    }
    double ecart_entre(std::size_t tick, double u) {
        a_.placer_entre(tick, u, contour_a_);
        b_.placer_entre(tick, u, contour_b_);
        return ecart(contour_a_, contour_b_, INFINITY);
    }
    /// At the start; later an outline gets inside another one only through it.
    bool enfermes() {
        a_.placer(0, contour_a_);
        b_.placer(0, contour_b_);
        return enferme(contour_a_, contour_b_) || enferme(contour_b_, contour_a_);
    }

private:
    static bool enferme(std::span<const Segment> autour, std::span<const Segment> dedans) {
        const Enceinte enceinte(autour);
        return std::ranges::any_of(dedans, [&](const Segment& s) { return enceinte.enferme(s.a); });
    }

    const Parcours& a_;
    const Parcours& b_;
    std::vector<Segment> contour_a_, contour_b_;
};

/// A robot and a block.
class RobotEtBloc {
public:
    RobotEtBloc(const Parcours& a, const Obstacle& o) : a_(a), bloc_(o) {}

    std::size_t nb_ticks() const { return a_.nb_ticks(); }
    double chemin(std::size_t de, std::size_t a) const { return a_.chemin(de, a); }
    double ecart_au_moins(std::size_t tick) const {
        const PoseTick& p = a_.pose(tick);
        const Point centre{p.x, p.y};
        return distance(Segment{centre, centre}, bloc_) - a_.rayon();
    }
    double ecart_a(std::size_t tick) {
        a_.placer(tick, contour_);
        return ecart(contour_, bloc_);
    }
    double ecart_entre(std::size_t tick, double u) {
        a_.placer_entre(tick, u, contour_);
        return ecart(contour_, bloc_);
    }
    bool enfermes() {
        a_.placer(0, contour_);
        return Enceinte(contour_).enferme(bloc_.bas);
    }

private:
    const Parcours& a_;
    const Obstacle& bloc_;
    std::vector<Segment> contour_;
};

/// Goes through a match by leaps that the present gap allows: two outlines `ecart` apart cannot
/// touch before their points have gone that far together.
template <typename Paire>
class Recherche {
public:
    explicit Recherche(Paire paire) : paire_(std::move(paire)) {}

    std::optional<std::size_t> premier_contact() {
        if (paire_.enfermes())
            return std::min<std::size_t>(1, paire_.nb_ticks());
        for (std::size_t tick = 0;;) {
            const double libre = ecart_a(tick);
            if (libre < tolerance_contact)
                return std::max<std::size_t>(tick, std::min<std::size_t>(1, paire_.nb_ticks()));
            const std::size_t atteint = tick_atteignable(tick, libre - tolerance_contact);
            if (atteint == paire_.nb_ticks())
                return std::nullopt;
            if (atteint == tick && contact_pendant(tick, libre))
                return tick + 1;
            tick = std::max(atteint, tick + 1);
        }
    }

    /// The gaps seen on the way, with their ticks, in order.
    struct Mesure {
        std::size_t tick;
        double ecart; ///< or less than it, when the circles were far enough apart
        bool exacte;
    };
    const std::vector<Mesure>& mesures() const { return mesures_; }
    Paire& paire() { return paire_; }

private:
    double ecart_a(std::size_t tick) {
        constexpr double loin = 10; // cm; from there on, the circles will do
        const double au_moins = paire_.ecart_au_moins(tick);
        const bool exacte = au_moins < loin;
        const double ecart = exacte ? paire_.ecart_a(tick) : au_moins;
        mesures_.push_back({tick, ecart, exacte});
        return ecart;
    }

    std::size_t tick_atteignable(std::size_t tick, double libre) const {
        return dernier_tick_dans(
            tick, paire_.nb_ticks(), libre,
            [this](std::size_t de, std::size_t a) { return paire_.chemin(de, a); });
    }

    bool contact_pendant(std::size_t tick, double libre) {
        // Only absurd speeds come near this: then the ticks themselves must do.
        constexpr int essais_maximum = 20000;
        const double chemin = paire_.chemin(tick, tick + 1);
        double u = 0;
        while (libre >= tolerance_contact && essais_ < essais_maximum) {
            u += std::max(libre - tolerance_contact / 2, tolerance_contact / 2) / chemin;
            if (u >= 1)
                return false; // the next tick looks at u = 1
            libre = paire_.ecart_entre(tick, u);
            ++essais_;
        }
        return libre < tolerance_contact;
    }

    Paire paire_;
    std::vector<Mesure> mesures_;
    int essais_ = 0;
};

using Mesure = Recherche<PaireDeRobots>::Mesure;

/// Narrows the smallest gap down between the ticks already measured.
class PlusPetitEcart {
public:
    explicit PlusPetitEcart(PaireDeRobots& paire) : paire_(paire) {}

    void chercher(const std::vector<Mesure>& mesures) {
        for (const Mesure& m : mesures) {
            if (m.exacte)
                retenir(m.tick, m.ecart);
        }
        for (std::size_t n = 0; n < mesures.size(); ++n) {
            const Mesure& m = mesures[n];
            if (!m.exacte && m.ecart < ecart_)
                mesurer(m.tick);
            const Mesure fin =
                n + 1 < mesures.size()
                    ? mesures[n + 1]
                    : Mesure{paire_.nb_ticks(), paire_.ecart_au_moins(paire_.nb_ticks()), false};
            resserrer(m, fin);
        }
        const std::size_t dernier = paire_.nb_ticks();
        if (paire_.ecart_au_moins(dernier) < ecart_)
            mesurer(dernier);
    }

    double ecart() const { return ecart_; }
    std::size_t tick() const { return tick_; }

private:
    void retenir(std::size_t tick, double ecart) {
        if (ecart < ecart_) {
            ecart_ = ecart;
            tick_ = tick;
        }
    }

    Mesure mesurer(std::size_t tick) {
        const double au_moins = paire_.ecart_au_moins(tick);
        if (au_moins > ecart_)
            return {tick, au_moins, false};
        const Mesure m{tick, paire_.ecart_a(tick), true};
        retenir(tick, m.ecart);
        return m;
    }

    void resserrer(const Mesure& a, const Mesure& b) {
        constexpr double precision = 0.01; // cm
        // Between two ticks the gap cannot fall by more than half of what is gone, less what it
        // rises: (ga + gb - way) / 2.
        const double minimum = (a.ecart + b.ecart - paire_.chemin(a.tick, b.tick)) / 2;
        if (b.tick - a.tick < 2 || minimum > ecart_ - precision)
            return;
        const Mesure milieu = mesurer(a.tick + (b.tick - a.tick) / 2);
        resserrer(a, milieu);
        resserrer(milieu, b);
    }

    PaireDeRobots& paire_;
    double ecart_ = INFINITY;
    std::size_t tick_ = 0;
};

} // namespace

std::optional<std::size_t> premier_contact(const Parcours& a, const Parcours& b) {
    if (a.sans_contour() || b.sans_contour())
        return std::nullopt;
    return Recherche<PaireDeRobots>(PaireDeRobots(a, b)).premier_contact();
}

std::optional<std::size_t> premier_contact(const Parcours& a, const Obstacle& o) {
    if (a.sans_contour())
        return std::nullopt;
    return Recherche<RobotEtBloc>(RobotEtBloc(a, o)).premier_contact();
}

Rencontre rencontre(const Parcours& a, const Parcours& b) {
    if (a.sans_contour() || b.sans_contour())
        return {std::nullopt, INFINITY, 0};
    Recherche<PaireDeRobots> recherche(PaireDeRobots(a, b));
    if (const auto contact = recherche.premier_contact())
        return {contact, 0, *contact};
    PlusPetitEcart plus_petit(recherche.paire());
    plus_petit.chercher(recherche.mesures());
    return {std::nullopt, plus_petit.ecart(), plus_petit.tick()};
}
