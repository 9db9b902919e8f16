#pragma once

#include "config/document_trajet.h"

#include <optional>
#include <vector>

/// One row of two trajectories side by side.
struct ActionComparee {
    enum class Sorte {
        egale,
        changee, ///< the same action with other numbers
        retiree, ///< only in the first
        ajoutee, ///< only in the second
    };
    Sorte sorte = Sorte::egale;
    std::optional<std::size_t> avant; ///< record of the first trajectory
    std::optional<std::size_t> apres; ///< record of the second
    bool operator==(const ActionComparee&) const = default;
};

/// Two trajectories aligned, their records in order, with as few rows that differ as possible.
/// Comments, blanks and case do not count.
std::vector<ActionComparee> comparer_trajets(const DocumentTrajet& avant,
                                             const DocumentTrajet& apres);
