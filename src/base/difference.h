#pragma once

#include <string_view>
#include <vector>

/// A line of one text compared with another.
struct LigneComparee {
    char signe; ///< ' ' in both, '-' in the first only, '+' in the second only
    std::string_view texte;
};

/// All lines of both texts, those that they share once. Between long texts that differ nearly
/// everywhere the answer is right but not the shortest. The lines refer to the texts.
std::vector<LigneComparee> comparer_lignes(std::string_view avant, std::string_view apres);
