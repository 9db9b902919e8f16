#pragma once

#include <QIcon>
#include <QStyle>

/// What a message box shows, and a list beside what is to be looked at; null for other pictures.
QIcon icone_message(QStyle::StandardPixmap image);
