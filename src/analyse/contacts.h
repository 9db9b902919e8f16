#pragma once

#include "analyse/parcours.h"

#include <optional>

/// What two outlines, or an outline and a block, did during a match.
struct Rencontre {
    /// First tick at which they touched, crossed or enclosed each other, or that ends the motion in
    /// which they did.
    std::optional<std::size_t> contact;
    double ecart = 0;           ///< smallest gap at any tick (cm), 0 with a contact
    std::size_t tick_ecart = 0; ///< its tick
};

/// The first contact of two robots; nothing is missed between ticks.
std::optional<std::size_t> premier_contact(const Parcours& a, const Parcours& b);
/// Likewise of a robot and a block, filled.
std::optional<std::size_t> premier_contact(const Parcours& a, const Obstacle& o);
/// The first contact of two robots or, without one, their smallest gap, right to 0.01 cm: ten times
/// the work.
Rencontre rencontre(const Parcours& a, const Parcours& b);
