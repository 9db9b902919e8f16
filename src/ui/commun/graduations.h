#pragma once

#include "ui/commun/camera.h"

#include <QFont>

class QPainter;
class QPalette;

inline constexpr int epaisseur_regle = 24; ///< logical pixels

/// Paints a ruler with its ticks and numbers along the upper edge or, for a vertical one, the left
/// edge. A time axis alone is a horizontal one.
/// @param longueur  of the edge, logical pixels
/// @param pas       the least between two numbers: 1, 0.1 or 0.01
void peindre_regle(QPainter& peintre, const Axe& axe, Qt::Orientation sens, int longueur,
                   const QPalette& couleurs, const QFont& police, double pas = 1);

/// Paints the lines of a grid beside the rulers.
/// @param pas  cm; a larger one where its lines would touch
void peindre_grille(QPainter& peintre, const Camera& camera, int pas, QSize taille);
