#pragma once

#include <QIcon>

#include <string_view>

struct Outil;

// The icons of the drawing windows, lines in the text colour of the desktop's palette.
inline constexpr int cote_icone = 20; ///< logical pixels

/// A tool of the palette: what it places.
QIcon icone_outil(const Outil& outil);
/// A record of a table in a list: its shape, its colour, its letter.
QIcon icone_objet(std::string_view cle);
/// A command of the editors by its objectName; none for one that has no picture.
QIcon icone_commande(std::string_view nom);
