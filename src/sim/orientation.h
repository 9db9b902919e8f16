#pragma once

#include "sim/etat.h"

// Each call turns by a quarter: callers keep them balanced. PointX, PointY and ZoneRedessin stay
// as they are. @throws Debordement when a coordinate leaves 16 bits; nothing is turned then

/// Turns the table and robots 1..9 a quarter clockwise.
void horizontal(Etat& e);
/// Turns them a quarter anticlockwise.
void vertical(Etat& e);
