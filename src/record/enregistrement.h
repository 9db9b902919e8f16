#pragma once

#include "record/pose.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The robots of 0..10 that something concerns.
using Robots = std::bitset<robots_max + 1>;

/// What was recorded and is not saved yet: the trajectories of some robots and the generation
/// table. Poses are in the frame of the unturned table.
struct Enregistrement {
    struct Action {
        Nom10 nom;
        Entier16 param1, param2;
    };
    struct Robot {
        Entier16 numero; ///< 0..10
        Pose init;
        std::vector<Action> actions; ///< at most 1000
    };

    std::vector<Robot> robots;
    std::vector<std::array<std::uint8_t, 3>> lignes; ///< generation table, at most 1001 rows

    std::size_t nb_actions() const; ///< of all robots
};

/// The recording that `e` holds for `robots`.
Enregistrement prendre_enregistrement(const Etat& e, const Robots& robots);

/// Puts it back: poses, trajectories, generation table and its counter, and the changed flags. The
/// robots that it does not name stay as they are.
void restaurer_enregistrement(Etat& e, const Enregistrement& enregistrement);

/// The recovery file: a line for each robot, start pose, action and row, a last one with how many
/// there are, by which a file cut short is known.
std::string texte_enregistrement(const Enregistrement& enregistrement);

/// Reads what texte_enregistrement writes. @param ligne  the line being read, counted from 1
/// @throws ErreurExecution for anything else, a text that is not complete included
Enregistrement lire_enregistrement(std::string_view texte, int& ligne);
