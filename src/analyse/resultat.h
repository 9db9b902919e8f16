#pragma once

#include "analyse/code.h"
#include "analyse/constat.h"
#include "analyse/match.h"

#include <optional>
#include <vector>

/// Where the trajectories stand, so that findings can name a place, and the code made from them.
struct Provenance {
    Tableau<std::string, robots_max> fichier;     ///< "Configuration/Defaut Trajet1.ini"
    Tableau<std::vector<int>, robots_max> lignes; ///< per robot, of its actions 1, 2...
    std::optional<CodeDuRobot> code;
};

/// One robot's plan, which is what precedes its first "FIN".
struct Bilan {
    int robot = 0;
    int actions_du_plan = 0;
    std::optional<std::int32_t> fin; ///< tick that ended its last action; empty plans have none
    PoseTick arrivee;                ///< after the last tick
};

/// The smallest gap of two robots during the match; 0 when they touched.
struct EcartDeRobots {
    int robot = 0;
    int autre = 0;
    double ecart = 0;       ///< cm
    std::int32_t temps = 0; ///< of the tick that brought them so near
};

/// A whole match and what is to be said of it.
struct Analyse {
    std::string projet;
    MatchCalcule match{};
    Tableau<std::vector<int>, robots_max> lignes{}; ///< of the actions, as in the Provenance
    std::vector<Bilan> robots{};
    std::vector<EcartDeRobots> ecarts{}; ///< after mesurer_ecarts
    std::vector<Constat> constats{};     ///< by time, then robot; those without one last
};
