#pragma once

#include <QKeySequence>
#include <QList>

class QWidget;

QList<QKeySequence> touches_d_annulation();
/// Ctrl+Y and Ctrl+Shift+Z, whatever the platform's own.
QList<QKeySequence> touches_de_retablissement();

/// From now on the undo and redo keys are the window's own, whichever of its fields, lists or views
/// has the keyboard: a field that undid its own text would change a value behind the drawing's
/// back.
void annuler_de_partout(QWidget& fenetre);
