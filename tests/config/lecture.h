#pragma once

#include "base/erreurs.h"
#include "base/nombres.h"

#include <string>
#include <string_view>

/// What became of a reading: "" when the text was read to its end, else the number of the line that
/// stopped it ("3").
template <typename Lire>
std::string arret(Lire lire) {
    Entier16 NoLigne;
    try {
        lire(NoLigne);
        return "";
    } catch (const ErreurExecution&) {
        return std::to_string(NoLigne);
    }
}

/// A text and the line that its reading stops at.
struct Refus {
    std::string texte;
    std::string_view ligne;
};

inline std::string repeter(std::string_view texte, int n) {
    std::string resultat;
    for (int i = 0; i < n; ++i)
        resultat += texte;
    return resultat;
}
