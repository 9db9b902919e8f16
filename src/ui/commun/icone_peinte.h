#pragma once

#include <QIcon>
#include <QPalette>

#include <functional>

class QPainter;

/// An icon painted anew for every size, state and palette: sharp at any density, readable on a
/// light and on a dark desktop.
/// @param cote     side of the square that `peindre` fills, in its units
/// @param peindre  gets a painter whose pen is 1.5 units wide and has the palette's `encre`
QIcon icone_peinte(double cote, std::function<void(QPainter&)> peindre,
                   QPalette::ColorRole encre = QPalette::ButtonText);

/// Fills with the pen's colour from now on, without an outline.
void remplir(QPainter& peintre);
