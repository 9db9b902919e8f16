#pragma once

#include "draw/surface.h"
#include "feuille/feuille.h"

#include <string>
#include <vector>

// An A4 page in words and lines, which a printer or an SVG file only has to write out. Lengths in
// mm from the top left corner.

inline constexpr double largeur_page = 210;
inline constexpr double hauteur_page = 297;

struct TexteDePage {
    double x = 0;
    double y = 0;     ///< of the line that the letters stand on
    double corps = 0; ///< points
    bool gras = false;
    std::string texte;
};

/// A straight rule.
struct FiletDePage {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Couleur couleur{};
};

struct Page {
    std::vector<TexteDePage> textes;
    std::vector<FiletDePage> filets;
    /// The table's picture.
    double image_x = 0, image_y = 0, image_largeur = 0, image_hauteur = 0;
};

/// Size on paper of one of the picture's pixels (mm): what is written on it is read at arm's
/// length.
inline constexpr double pixel_de_page = 0.22;

/// Lays the sheet out. What finds no place is counted: "… 12 autres actions".
Page composer(const Feuille& f);
