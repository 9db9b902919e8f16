#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

/// From now on the window's place and size are kept from one start to the next, in the user's own
/// settings and not among the project's files. Puts the window where it was left. Wherever it comes
/// from, it opens whole inside its screen. Call it once the window has its name and its controls,
/// before it is shown.
void retenir_place(QWidget& fenetre);

/// What a window manager adds around the window, in logical pixels: at least the usual, for it
/// tells its own only once the window is shown.
QSize cadre(const QWidget& fenetre);

/// Where a window (frame, global logical pixels) lies whole inside a screen: smaller when it has to
/// be, then moved.
QRect dans_l_ecran(QRect cadre, const QRect& ecran);

/// Where the program wants a window whose place is kept: moves it there (frame, global logical
/// pixels) unless the user has put it elsewhere.
void proposer_place(QWidget& fenetre, QPoint ou);
