#pragma once

#include "analyse/parcours.h"

#include <optional>

/// A robot's outline outside the table, by more than a tenth of a millimetre.
struct SortieDeTable {
    std::size_t premier = 0;  ///< first tick outside, the start not counted
    std::size_t nb_ticks = 0; ///< ticks outside, all in all
    double ecart = 0;         ///< farthest distance of a point from the table (cm)
};

/// @param XMax, YMax  the table's extent (cm)
std::optional<SortieDeTable> sortie_de_table(const Parcours& p, double XMax, double YMax);
