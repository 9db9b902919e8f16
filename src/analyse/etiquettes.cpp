#include "analyse/etiquettes.h"

#include "base/nombres.h"
#include "draw/table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double pixels_par_cellule = 4;
constexpr double pixels_d_ecart = 5;
constexpr double cellules_max = 300; ///< along a side of the table
constexpr std::uint8_t poids_du_chemin = 1;
constexpr std::uint8_t poids_d_une_etiquette = 100; ///< more than a label's cells of paths
constexpr int poids_du_dehors = 100;

} // namespace

PlacesLibres::PlacesLibres(double XMax, double YMax, double pixel)
    : ecart_(pixels_d_ecart * pixel),
      cote_(std::max({pixels_par_cellule * pixel, XMax / cellules_max, YMax / cellules_max})),
      colonnes_(colonne(XMax + marge_table) + 1),
      rangees_(rangee(YMax + marge_table) + 1),
      prises_(static_cast<std::size_t>(colonnes_) * static_cast<std::size_t>(rangees_)) {}

// Bounded: a robot may be far away, or nowhere.
int PlacesLibres::colonne(double x) const {
    if (std::isnan(x))
        return -1;
    return static_cast<int>(std::floor(std::clamp((x + marge_table) / cote_, -1e6, 1e6)));
}

int PlacesLibres::rangee(double y) const {
    return colonne(y);
}

bool PlacesLibres::dedans(int x, int y) const {
    return x >= 0 && x < colonnes_ && y >= 0 && y < rangees_;
}

std::size_t PlacesLibres::rang(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(colonnes_) +
           static_cast<std::size_t>(x);
}

PlacesLibres::Cellules PlacesLibres::cellules(PointTable m, double largeur, double hauteur) const {
    return {colonne(m.x - largeur / 2), rangee(m.y - hauteur / 2), colonne(m.x + largeur / 2),
            rangee(m.y + hauteur / 2)};
}

int PlacesLibres::gene(const Cellules& c) const {
    int somme = 0;
    for (int y = c.y1; y <= c.y2; ++y)
        for (int x = c.x1; x <= c.x2; ++x)
            somme += dedans(x, y) ? prises_[rang(x, y)] : poids_du_dehors;
    return somme;
}

void PlacesLibres::occuper(const Cellules& c, std::uint8_t poids) {
    for (int y = std::max(c.y1, 0); y <= std::min(c.y2, rangees_ - 1); ++y)
        for (int x = std::max(c.x1, 0); x <= std::min(c.x2, colonnes_ - 1); ++x) {
            std::uint8_t& cellule = prises_[rang(x, y)];
            cellule = std::max(cellule, poids);
        }
}

void PlacesLibres::occuper(PointTable a, PointTable b) {
    const double cellules_du_chemin = std::hypot(b.x - a.x, b.y - a.y) / cote_;
    if (!std::isfinite(cellules_du_chemin))
        return;
    const int pas = static_cast<int>(std::min(std::ceil(cellules_du_chemin), 4 * cellules_max));
    for (int k = 0; k <= pas; ++k) {
        const double part = pas > 0 ? double(k) / pas : 0;
        occuper(cellules({a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)}, 0, 0),
                poids_du_chemin);
    }
}

void PlacesLibres::occuper_autour(PointTable milieu, double rayon) {
    occuper(cellules(milieu, 2 * rayon, 2 * rayon), poids_d_une_etiquette);
}

std::optional<PointTable> PlacesLibres::placer(PointTable ancre, double direction, double largeur,
                                               double hauteur) {
    constexpr std::array<double, 8> tours{0, 180, 45, -45, 135, -135, 90, -90};
    PointTable meilleur = ancre;
    int moindre = std::numeric_limits<int>::max();
    for (const double loin : {1.0, 2.5, 4.5}) {
        for (const double tour : tours) {
            const double c = std::cos(radians(direction + tour));
            const double s = std::sin(radians(direction + tour));
            // far enough for the label's box to clear the place
            const double d = std::min(largeur / 2 / std::max(std::fabs(c), 1e-6),
                                      hauteur / 2 / std::max(std::fabs(s), 1e-6)) +
                             loin * ecart_;
            const PointTable milieu{ancre.x + d * c, ancre.y + d * s};
            const int ici = gene(cellules(milieu, largeur, hauteur));
            if (ici >= moindre)
                continue;
            moindre = ici;
            meilleur = milieu;
        }
        if (moindre == 0)
            break;
    }
    if (moindre >= poids_d_une_etiquette)
        return {};
    occuper(cellules(meilleur, largeur, hauteur), poids_d_une_etiquette);
    return meilleur;
}
