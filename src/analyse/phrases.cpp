#include "analyse/phrases.h"

#include "base/texte.h"

#include <cmath>

namespace {

/// A number with a decimal comma; `rang` decimals.
std::string decimal(double valeur, int rang) {
    const double echelle = std::pow(10, rang);
    std::string texte(texte_double15(std::round(valeur * echelle) / echelle).vue());
    std::size_t point = texte.find('.');
    if (point == std::string::npos) {
        point = texte.size();
        texte += '.';
    }
    texte.resize(point + 1 + static_cast<std::size_t>(rang), '0');
    texte[point] = ',';
    return texte;
}

} // namespace

std::string secondes(std::int32_t centiemes) {
    return decimal(centiemes / 100.0, 2) + " s";
}

std::string dixiemes(double valeur) {
    return decimal(valeur, 1);
}

std::string compte(int n, std::string_view nom) {
    return std::to_string(n) + " " + std::string(nom) + (n > 1 ? "s" : "");
}
