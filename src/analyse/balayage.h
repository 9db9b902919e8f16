#pragma once

#include "analyse/match.h"
#include "draw/surface.h"

#include <vector>

/// The poses up to a tick between which a robot goes straight on or turns by a few degrees, at most
/// `pas` of them; the first one is the start.
std::vector<PoseTick> etapes(const MatchCalcule& m, int robot, std::size_t dernier, float pas);

/// The area that a robot's outline passed over, as shapes whose union it is.
/// @param robot  1..NbRobot  @param jusqu_a  hundredths of a second
std::vector<Forme> balayage(const Etat& e, const MatchCalcule& m, int robot, std::int32_t jusqu_a);
