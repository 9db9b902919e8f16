#pragma once

#include "record/pose.h"

#include <optional>
#include <string>
#include <string_view>

/// One command of "piloter": a button's caption and the texts for the console's fields; or one of
/// the two lines of a trajectory file that are no action.
struct Commande {
    std::string legende;
    std::string Text1 = "0";            ///< distance, duration or radius
    std::string Text4 = "0";            ///< angle
    std::optional<ChampsPose> depart{}; ///< "Init": the start pose, no action
    bool fin = false;                   ///< "FIN": nothing can follow
};

/// Reads one line, case ignored: "Avance 50", "VirAvDr 90 30" (angle, then radius), "Balise
/// Droite"; or a line as trajectory files have it: "Avance,50", "Init,100,30,0", "FIN". "#" begins
/// a comment. @returns nothing for a line without a command
/// @throws ErreurExecution that says what was expected
std::optional<Commande> lire_commande(std::string_view ligne);

/// The commands and their values, one a line.
std::string aide_des_commandes();
