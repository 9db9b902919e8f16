#pragma once

#include "draw/surface.h"
#include "sim/contour.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

/// Draws robots 1..NbRobot at their poses and sets ZoneRedessin to the box around them, 1 cm larger
/// on every side: the next Dessine_Table erases them by repainting it.
/// @throws ErreurExecution: a box beyond 16 bits, a point above 100
void peindre_robots(Etat& e, Surface& s);

/// peindre_robots; an error shows a message and ends the program. @returns false after an error
bool Dessine_Robot(Etat& e, Surface& s, Fenetres& f);

/// Draws one robot's outline at a pose: no box is kept, nothing is too far away.
/// @param x, y  reference point (cm)  @param cap  heading (degrees)
void peindre_contour(const Contour& contour, double x, double y, float cap, Surface& s);
