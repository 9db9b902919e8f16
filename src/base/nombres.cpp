#include "base/nombres.h"

#include "base/tableau.h"

#include <cmath>

void lever_Debordement(long long valeur) {
    throw Debordement(valeur);
}

void lever_DivisionParZero() {
    throw DivisionParZero();
}

void lever_HorsTable(long long indice, long long dernier) {
    throw HorsTable(indice, dernier);
}

Entier16 arrondir16(double valeur) {
    // std::nearbyint follows the current rounding mode, which nobody changes: halves to even.
    const double arrondi = std::nearbyint(valeur);
    if (!(arrondi >= -32768 && arrondi <= 32767))
        throw Debordement("nombre hors des bornes -32768 à 32767");
    return static_cast<int>(arrondi);
}
