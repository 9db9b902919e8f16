#pragma once

#include "config/fiche.h"
#include "edition/formes.h"

#include <optional>

// What dragging does to the actions of a trajectory: whole units, as its file holds them.

/// A robot's reference point (cm) and heading (degrees) in the frame of the files.
struct PoseTrajet {
    double x = 0;
    double y = 0;
    double cap = 0;
};

/// An action whose end was pulled to a point: a straight move gets the distance nearest to it, a
/// turn the angle that looks at it, an arc, tangent to the heading, angle and radius (the radius
/// stays where no such arc leads there). @param avant  where the action begins
/// @returns nothing for what has no end to be pulled: a pause, a beacon search, "FIN"
std::optional<Fiche> fin_tiree(const Fiche& action, const PoseTrajet& avant, Vecteur vers);

/// A start pose moved to a point.
Fiche depart_deplace(Fiche depart, Vecteur vers);
/// A start pose turned to look at a point: -179..180 degrees.
Fiche depart_oriente(Fiche depart, Vecteur vers);
