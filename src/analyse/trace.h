#pragma once

#include "analyse/constat.h"
#include "analyse/match.h"
#include "draw/surface.h"

#include <limits>
#include <optional>
#include <span>

/// What is shown of a match's trace.
struct OptionsTrace {
    int robot = 0;                                                   ///< 0: all of them
    std::int32_t jusqu_a = std::numeric_limits<std::int32_t>::max(); ///< hundredths of a second
    bool chemin = true;                  ///< the way itself and its pauses, not its marks alone
    bool secondes = true;                ///< a tick mark every second, a number every five
    bool actions = true;                 ///< the number of each action where it begins
    bool bande = false;                  ///< the area that the outline passed over
    std::span<const Constat> constats{}; ///< whose places are marked
    std::optional<Couleur> couleur{};    ///< instead of the robot's own
    bool pointille = false;              ///< a dotted path
};

/// Paints the ways of the robots' reference points, each in its colour with a dark edge: a dot for
/// each pause, the larger the longer; an arrow at the end; seconds, actions and findings as asked
/// for. Marks and texts keep their size in pixels.
/// @param e  its table and outlines
void dessiner_trace(const Etat& e, const MatchCalcule& m, const OptionsTrace& o, Surface& s);
