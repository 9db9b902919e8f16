#pragma once

#include "draw/surface.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

/// Draws robots 1..NbRobot at their poses and sets ZoneRedessin to the box around them, 1 cm larger
/// on every side: the next Dessine_Table erases them by repainting it.
/// @throws ErreurExecution: a box beyond 16 bits, a point above 100
void peindre_robots(Etat& e, Surface& s);

/// peindre_robots; an error shows a message and ends the program. @returns false after an error
bool Dessine_Robot(Etat& e, Surface& s, Fenetres& f);

/// One end of the outline: point k of robot i, in table coordinates (cm).
struct PointContour {
    double x, y;
};
PointContour point_contour(const Etat& e, int i, int k, double h);
