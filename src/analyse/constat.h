#pragma once

#include "draw/geometrie.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What the team should look at before the match, in the order in which findings of one instant
/// are listed.
enum class Genre : std::uint8_t {
    arret,         ///< a run-time error ended the match
    duree,         ///< the plan does not fit into the match
    inatteinte,    ///< actions of the plan never begun
    apres_fin,     ///< actions behind "FIN"
    valeur,        ///< a parameter that the robot's program cannot hold
    sortie,        ///< the outline leaves the table
    contact_robot, ///< two outlines touch
    contact_bloc,  ///< an outline touches a block
    balise,        ///< a beacon search that a full turn does not end
    prediction,    ///< tile predictions that were abandoned
    pas,           ///< another time step gives another match
    code,          ///< the generated code ends elsewhere than the screen
    damier,        ///< chequerboard on a turned table
    lecture        ///< a reader complained
};
inline constexpr std::size_t nombre_de_genres = 14;
/// "contact-robot"
std::string_view nom(Genre genre);

/// One finding. Times in hundredths of a second, lengths in cm; what a finding does not have is
/// empty.
struct Constat {
    Genre genre = Genre::lecture;
    std::optional<int> robot{}; ///< 1..9
    std::optional<int> autre{}; ///< the other robot, or the block in the file's order
    std::optional<std::int32_t> temps{};
    std::optional<std::int32_t> duree{}; ///< of an exit: time outside, all in all
    std::optional<double>
        ecart{}; ///< of an exit: farthest from the table; of code: from the screen's end
    std::optional<Point> lieu{}; ///< reference point at `temps`
    std::string fichier{};       ///< "Configuration/Defaut Trajet1.ini"
    std::optional<int> ligne{};  ///< within that file, from 1
    std::string texte{};         ///< what it means for the real robot, and what to do
};
