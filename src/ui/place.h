#pragma once

#include <QPoint>

class QWidget;

/// From now on the window's place and size are kept from one start to the next, in the user's own
/// settings and not among the project's files. Puts the window where it was left, on a screen that
/// exists. Call it once the window has its name and its controls, before it is shown.
void retenir_place(QWidget& fenetre);

/// Where the program wants a window whose place is kept: moves it there (frame, global logical
/// pixels) unless the user has put it elsewhere.
void proposer_place(QWidget& fenetre, QPoint ou);
