#pragma once

class QFont;
class QPushButton;

/// The program's looks: Fusion on the platform's palette, every text readable, flat buttons. Fonts
/// are the platform's.
namespace style {

// Logical pixels between controls; a layout that says nothing has the first.
inline constexpr int ecart = 6;
inline constexpr int ecart_serre = 4; ///< in grids of small controls
inline constexpr int ecart_de_groupe = 10;
inline constexpr int marge = 10;                ///< around a window's controls
inline constexpr int cote_icone = 16;           ///< beside a text
inline constexpr int cote_grande_icone = 20;    ///< above it
inline constexpr int hauteur_barre_nombre = 44; ///< two arrows and what is dragged between them

/// Of rulers and marks, beside a text of that font.
QFont petite_police(const QFont& police);

/// For every window. Before the application object is made.
void installer();

/// The one that the window is there for: the palette's accent.
void mettre_en_avant(QPushButton& bouton);
/// The icon at the left edge, the text beside it: buttons in a column are read like a list.
void aligner_a_gauche(QPushButton& bouton);
/// The icon above the text.
void mettre_l_icone_au_dessus(QPushButton& bouton);

} // namespace style
