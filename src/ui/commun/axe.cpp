#include "ui/commun/axe.h"

#include <algorithm>

void Axe::cadrer(double centre, double echelle) {
    centre_ = centre;
    echelle_ = std::clamp(echelle, min_, max_);
}

double Axe::echelle_pour(double etendue, double marge) const {
    constexpr double au_moins = 20; // pixels
    return std::clamp(std::max(au_moins, a_ - de_ - 2 * marge) / std::max(1.0, etendue), min_,
                      max_);
}

void Axe::zoomer(double facteur, double autour) {
    const double fixe = valeur(autour);
    echelle_ = std::clamp(echelle_ * facteur, min_, max_);
    centre_ += fixe - valeur(autour);
}

double Axe::pas_lisible(double pas, double pixels) const {
    static constexpr double facteurs[] = {2, 2.5, 2};
    for (int i = 0; pas * echelle_ < pixels; ++i)
        pas *= facteurs[i % 3];
    return pas;
}
