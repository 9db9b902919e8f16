#pragma once

#include "analyse/analyse.h"
#include "config/document_trajet.h"

#include <memory>
#include <vector>

/// A trajectory under edit in the match of its project, everything in the frame of the files.
struct EssaiTrajet {
    int robot = 1;
    Analyse analyse;
    std::vector<int> numeros; ///< per record its action's number, from 1; 0: a start pose

    /// What record i did; null for a start pose, for "FIN" and for what was never begun.
    const ActionJouee* jouee(std::size_t i) const;
    /// Where record i begins; a start pose: where it puts the robot.
    PoseTick avant(const DocumentTrajet& trajet, std::size_t i) const;
    /// The findings about that record's line, in the order of the analysis.
    std::vector<const Constat*> constats(const DocumentTrajet& trajet, std::size_t i) const;
};

/// A copy of a state at rest with the table upright, as files describe it.
/// @throws Debordement when a coordinate leaves 16 bits
std::unique_ptr<Etat> etat_des_fichiers(const Etat& etat);

/// Plays the match with this trajectory in the place of the robot's own. A robot beyond NbRobot
/// plays, and those before it.
/// @param etat  of etat_des_fichiers
EssaiTrajet essayer(const Etat& etat, const Provenance& provenance, const DocumentTrajet& trajet,
                    int robot);
