#pragma once

#include "sim/etat.h"

#include <optional>
#include <string>
#include <vector>

struct PoseTick {
    float x = 0; ///< reference point, cm
    float y = 0;
    float cap = 0; ///< degrees, not brought back to a turn

    bool operator==(const PoseTick&) const = default;
};

/// One action that was loaded, "FIN" excepted. Times in hundredths of a second.
struct ActionJouee {
    Entier16 numero;        ///< in the trajectory, from 1
    Nom10 action;           ///< as the trajectory names it
    std::int32_t debut = 0; ///< tick that loaded it; it moves from the next one on
    std::int32_t fin = 0;   ///< tick that ended it, 0 when the match ended before
    PoseTick avant, apres; ///< `apres` stands at the end of the match when the action has not ended
    bool prediction_abandonnee = false;

    bool finie() const { return fin != 0; }
};

/// A run-time error that ended the match.
struct ArretDeMatch {
    int robot = 0;  ///< 0: the drawing, which no single robot answers for
    int numero = 0; ///< its action then
    std::string raison;
};

/// A whole match, played at once with the same engine and no timer: every pose, every action.
struct MatchCalcule {
    int PasTemps = 1; ///< hundredths of a second a tick
    int NbRobot = 1;
    std::int32_t duree = 0; ///< time of the last whole tick
    std::optional<ArretDeMatch> arret;
    Tableau<std::vector<PoseTick>, robots_max> poses; ///< per robot, ticks 0 (the start), 1, 2...
    Tableau<std::vector<ActionJouee>, robots_max> actions;
    std::vector<float> Incidence; ///< per tick, degrees
    std::vector<Entier16> NbreCarreaux;

    std::size_t nb_ticks() const { return Incidence.size() - 1; }
    /// The tick that shows time `t`, 0..duree.
    std::size_t tick(std::int32_t t) const;
    const PoseTick& pose(int robot, std::int32_t t) const { return poses(robot)[tick(t)]; }
    std::int32_t temps(std::size_t tick) const {
        return static_cast<std::int32_t>(tick) * PasTemps;
    }
};

/// Plays the match that "Démarrer" would play from `e`, with its settings; `e` is the caller's to
/// lose (a copy). Robot 1 keeps its action at the end: only the window turns it to "FIN".
MatchCalcule calculer_match(Etat& e);
/// Actions before the first "FIN".
int actions_du_plan(const Trajectoires& t, int robot);
