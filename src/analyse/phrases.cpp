#include "analyse/phrases.h"

#include "base/texte.h"
#include "sim/textes_actions.h"

#include <cmath>

std::string secondes(std::int32_t centiemes) {
    return texte_duree(centiemes);
}

std::string dixiemes(double valeur) {
    std::string texte(texte_double15(std::round(valeur * 10) / 10).vue());
    std::size_t point = texte.find('.');
    if (point == std::string::npos) {
        point = texte.size();
        texte += ".0";
    }
    texte[point] = ',';
    return texte;
}

double cap_ramene(double cap) {
    constexpr double tour = 360;
    constexpr double presque = 359.95; // shown as 360,0
    const double reste = cap - tour * std::floor(cap / tour);
    return reste >= presque ? 0 : reste;
}

std::string compte(int n, std::string_view nom) {
    return std::to_string(n) + " " + std::string(nom) + (n > 1 ? "s" : "");
}
