#pragma once

#include "analyse/match.h"
#include "codegen/relecture.h"

#include <cstdint>
#include <optional>
#include <string>

/// The robot's code, read back, and how its subroutines turn.
struct CodeDuRobot {
    CodeRelu relu;
    std::string fichier;         ///< as findings name it
    bool virages_croises = true; ///< its Action_Droite turns to the left, as the generator takes it
};

/// Where screen and code part for the first time.
struct DifferenceDeCode {
    int action = 0;          ///< of the trajectory; 0: behind its last one
    std::int32_t temps = 0;  ///< when the screen ends it (hundredths of a second)
    bool par_un_arc = false; ///< the code has straight runs in the place of an arc
    std::string texte;       ///< a French sentence without its full stop
};

/// A trajectory and the code made from it, both played from the same start.
struct EcartDeCode {
    int robot = 0;
    MatchCalcule match;   ///< with the code in the place of the trajectory
    PoseTick ecran, code; ///< where they end
    double distance = 0;  ///< cm
    double angle = 0;     ///< degrees, 0..180
    std::optional<DifferenceDeCode> premiere;

    /// More than a real robot loses on its way: 1 cm or 1 degree.
    bool notable() const { return distance > 1 || angle > 1; }
};

/// Plays the match of `e` with the code in the place of the robot's trajectory.
/// @param ecran  the match of `e` itself
EcartDeCode comparer_au_code(const Etat& e, const MatchCalcule& ecran, int robot,
                             const CodeDuRobot& code);
/// "à 12,3 cm et 4,5° de l'écran"
std::string a_distance(const EcartDeCode& ecart);
/// All that is to be said, in French sentences without their full stops: the distance, the first
/// difference, both ends, each line that was not understood.
std::vector<std::string> phrases(const EcartDeCode& ecart, const CodeRelu& relu);
