#pragma once

#include "analyse/analyse.h"
#include "draw/surface.h"

#include <optional>
#include <string>

/// What a picture of a computed match shows.
struct VueDuMatch {
    /// The robots stand where they are then (hundredths of a second), the trace goes so far;
    /// without it they stand at the start and the trace is whole.
    std::optional<std::int32_t> temps{};
    bool trace = true;
    bool constats = true;   ///< their places are marked
    bool etiquettes = true; ///< seconds and numbers of actions along the trace
    bool cotes = false;     ///< how far each robot's start is from the nearest edges
};

/// Size of a picture in pixels.
struct TailleImage {
    int largeur = 0;
    int hauteur = 0;
};

/// The picture's height for a width, the table's proportions kept; from 1 to `cote_maximal_image`.
TailleImage taille_image(const Etat& e, int largeur);
inline constexpr int cote_maximal_image = 20'000;

/// Paints table, robots and trace.
/// @param e  the state that was analysed  @throws ErreurExecution when the table cannot be drawn
void peindre_vue(const Etat& e, const Analyse& a, const VueDuMatch& vue, Surface& s);
/// The same as an SVG picture.
std::string vue_en_svg(const Etat& e, const Analyse& a, const VueDuMatch& vue, TailleImage taille);
