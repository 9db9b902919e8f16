#pragma once

#include <QColor>
#include <QPalette>

#include <initializer_list>

/// Least contrast of a text with what is behind it.
inline constexpr double contraste_lisible = 4.5;

/// The ground with so much of the ink on it, 0 to 1.
QColor melange(const QColor& encre, const QColor& fond, double part);

/// How far apart two colours are for the eye: 1 (the same) to 21 (black and white). What is
/// transparent of the first shows the second.
double contraste(const QColor& encre, const QColor& fond);

/// The colour, moved towards black or white as far as it takes to be read on every background.
QColor lisible(QColor encre, std::initializer_list<QColor> fonds);

/// A palette with every text readable, the disabled ones and the placeholders too.
void rendre_lisible(QPalette& palette);

/// Whether light text stands on a dark ground.
bool est_sombre(const QPalette& palette);

/// What deserves a second look: text on the palette's windows and fields.
QColor couleur_d_alerte(const QPalette& palette);
