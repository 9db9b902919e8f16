#pragma once

#include "analyse/match.h"
#include "draw/geometrie.h"
#include "sim/actions.h"
#include "sim/contour.h"

#include <vector>

/// The last tick, up to `dernier`, until which `chemin(tick, t)`, which never falls, stays within
/// `libre`.
template <typename Chemin>
std::size_t dernier_tick_dans(std::size_t tick, std::size_t dernier, double libre, Chemin chemin) {
    std::size_t sur = tick;
    std::size_t saut = 1;
    const auto avancer = [&] {
        const bool possible = sur + saut <= dernier && chemin(tick, sur + saut) <= libre;
        sur += possible ? saut : 0;
        return possible;
    };
    while (avancer())
        saut *= 2;
    for (; saut > 0; saut /= 2)
        avancer();
    return sur;
}

/// How one robot's outline moved during a match: where it stood at a tick or between two, and how
/// far any of its points can have gone.
class Parcours {
public:
    /// @param i  robot, 1..NbRobot; `m` must outlive the object
    Parcours(const Etat& e, const MatchCalcule& m, int i);

    std::size_t nb_ticks() const { return m_->nb_ticks(); }
    const PoseTick& pose(std::size_t tick) const { return m_->poses(robot_)[tick]; }
    /// Distance of the outline's farthest point from the reference point.
    double rayon() const { return contour_.rayon(); }
    bool sans_contour() const { return contour_.nombre() == 0; }

    /// No point of the outline goes farther than this (cm) between two ticks, the way counted along
    /// its curve.
    double chemin(std::size_t de, std::size_t a) const { return cumul_[a] - cumul_[de]; }

    /// The outline at a tick.
    void placer(std::size_t tick, std::vector<Segment>& contour) const;
    /// The outline between `tick` (u = 0) and the next one (u = 1): straight on, about its
    /// reference point or about its arc's centre, as the action says.
    void placer_entre(std::size_t tick, double u, std::vector<Segment>& contour) const;

private:
    using Genre = actions::Genre;
    struct Morceau {
        std::size_t debut, fin; ///< moves in the ticks debut + 1 .. fin
        Genre genre;
        double rayon, cote; ///< of an arc: cm; +90 or -90 degrees
    };

    void ajouter(const Etat& e, const ActionJouee& action);
    double pas(const Morceau& m, std::size_t tick) const;
    const Morceau* morceau(std::size_t tick) const;
    void placer(double x, double y, double cap, std::vector<Segment>& contour) const;

    const MatchCalcule* m_;
    int robot_;
    Contour contour_;
    std::vector<Morceau> morceaux_;
    std::vector<double> cumul_; ///< way since the start, per tick
};
