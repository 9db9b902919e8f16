#include "feuille/placement.h"

#include "analyse/phrases.h"
#include "analyse/verdict.h"
#include "sim/contour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

Distance au_plus_pres(double valeur, double etendue, const char* debut, const char* fin) {
    return valeur <= etendue - valeur ? Distance{debut, valeur} : Distance{fin, etendue - valeur};
}

/// From the edge that `d` speaks of.
double du_meme_bord(const Distance& d, const char* debut, const std::vector<double>& valeurs,
                    double etendue) {
    const auto [petite, grande] = std::ranges::minmax(valeurs);
    return d.bord == debut ? petite : etendue - grande;
}

std::string direction(double cap) {
    constexpr std::array noms{"la droite", "le haut", "la gauche", "le bas"};
    constexpr double quart = 90;
    const double quarts = cap / quart;
    const auto nom = [&](double n) { return noms.at(static_cast<std::size_t>(n) % noms.size()); };
    if (std::fabs(quarts - std::round(quarts)) < 0.001)
        return std::string("vers ") + nom(std::round(quarts));
    return std::string("entre ") + nom(std::floor(quarts)) + " et " + nom(std::floor(quarts) + 1);
}

} // namespace

Placement placement_de(const Etat& e, int i) {
    Placement p;
    p.robot = i;
    p.reference = {e.XInit(i), e.YInit(i)};
    p.cap = cap_ramene(e.CapInit(i));
    p.horizontale = au_plus_pres(p.reference.x, e.XMax, "gauche", "droit");
    p.verticale = au_plus_pres(p.reference.y, e.YMax, "bas", "haut");
    const Contour contour(e, i);
    std::vector<double> xs(contour.nombre());
    std::vector<double> ys(contour.nombre());
    p.avec_contour = !xs.empty();
    if (!p.avec_contour)
        return p;
    Direction d;
    d.viser(e.CapInit(i));
    contour.placer(p.reference.x, p.reference.y, d, xs, ys);
    p.contour_horizontal = du_meme_bord(p.horizontale, "gauche", xs, e.XMax);
    p.contour_vertical = du_meme_bord(p.verticale, "bas", ys, e.YMax);
    return p;
}

std::string Placement::distances() const {
    return dixiemes(horizontale.cm) + " cm du bord " + horizontale.bord + ", " +
           dixiemes(verticale.cm) + " cm du bord " + verticale.bord;
}

std::string Placement::texte_reference() const {
    return "référence : " + distances();
}

std::string Placement::texte_court() const {
    return distances() + ", cap " + dixiemes(cap) + "°";
}

std::string Placement::texte_contour() const {
    if (!avec_contour)
        return "";
    return "contour : " + dixiemes(contour_horizontal) + " cm et " + dixiemes(contour_vertical) +
           " cm des mêmes bords";
}

std::string Placement::texte_cap() const {
    return "cap " + dixiemes(cap) + "°, " + direction(cap);
}
