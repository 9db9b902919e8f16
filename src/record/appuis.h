#pragma once

#include "config/document_trajet.h"
#include "record/console.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A button of the console and what its two fields hold.
struct Appui {
    std::string_view legende; ///< the button's caption
    std::string Text1 = "0";  ///< distance, duration or radius
    std::string Text4 = "0";  ///< angle
};

/// The press that records an action of a trajectory; nothing for a start pose and for "FIN".
std::optional<Appui> appui_de(const Fiche& action);

/// Why a trajectory cannot become a generation input: the first line with a value that the
/// generation table cannot hold, or with an action behind "FIN", which the robot never plays.
std::optional<RefusLecture> refus_de_generation(const DocumentTrajet& trajet);

/// Presses, for each action of a trajectory, the button that records it. The console is recording.
/// @param laisser_tourner  plays the action to its end; false when nothing can be played any more
/// @returns the line and the reason of the first press that is refused
std::optional<RefusLecture> rejouer(const DocumentTrajet& trajet, Console& console,
                                    const std::function<bool()>& laisser_tourner);
