#pragma once

#include "analyse/analyse.h"
#include "sim/actions.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What stands where on the timeline of a computed match. Times in hundredths of a second.

/// How far the timeline goes: the 90 s, or the tick beyond them.
std::int32_t etendue(const MatchCalcule& m);
/// When an action ends there: one that has not ended lasts as long as the match.
inline std::int32_t fin_montree(const MatchCalcule& m, const ActionJouee& action) {
    return action.finie() ? action.fin : m.duree;
}
/// The action of a robot at a time, its first and last tick included; null when it plays none.
const ActionJouee* action_au(const MatchCalcule& m, int robot, std::int32_t temps);

/// Where the next action of a robot begins, else where the last one ends, else the match's end.
std::int32_t limite_suivante(const MatchCalcule& m, int robot, std::int32_t temps);
/// Where the last action before a time begins, else the match's start.
std::int32_t limite_precedente(const MatchCalcule& m, int robot, std::int32_t temps);

/// The kind of an action: "ligne droite". "" for what is none.
std::string_view nom_du_genre(actions::Genre genre);
actions::Genre genre_de(const ActionJouee& action);
/// "5 Avance"
std::string legende(const ActionJouee& action);
/// "action 5 sur 12 : Avance 40 cm"
/// @param e  the state that the match was played from
std::string description(const Etat& e, int robot, const ActionJouee& action);
/// The robot's action at a time: its description, "à l'arrêt" when it plays none.
std::string description(const Etat& e, const MatchCalcule& m, int robot, std::int32_t temps);
/// "x = 120,3 cm, y = 80,0 cm, cap = 90,0°": the heading within one turn.
std::string texte_pose(const PoseTick& pose);

struct ActionTrouvee {
    int robot = 0;
    const ActionJouee* action = nullptr;
};
/// The next action of any robot that answers to a text, after those that begin before or at a time
/// (of one robot, and of those before it), and from the match's start on once there is none. A
/// number is the action's; else its name or its kind holds the text, whatever the case.
std::optional<ActionTrouvee> chercher_action(const MatchCalcule& m, std::string_view texte,
                                             int robot, std::int32_t temps);

/// When what a finding speaks of happens: its own time, else the start of the action on its line.
std::optional<std::int32_t> instant_de(const Analyse& a, const Constat& constat);
