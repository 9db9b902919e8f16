#include "ui/commun/vitesses.h"

#include <QLocale>

#include <algorithm>

QString legende_vitesse(double vitesse) {
    return vitesse > 0 ? "×" + QLocale().toString(vitesse, 'g', 3) : QString("max");
}

double vitesse_voisine(double vitesse, int sens) {
    const auto place = std::ranges::find(vitesses, vitesse) - vitesses.begin();
    const auto derniere = static_cast<std::ptrdiff_t>(vitesses.size()) - 1;
    return vitesses.at(
        static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(place + sens, 0, derniere)));
}
