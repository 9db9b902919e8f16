#include "edition/outils.h"

#include "base/nombres.h"

#include <algorithm>
#include <cmath>

namespace {

Fiche enregistrement(const std::string& cle, double a, double b, double c, double d = 0) {
    const auto f = [](double x) { return static_cast<float>(std::round(x)); };
    return {cle, {f(a), f(b), f(c), f(d)}, ""};
}

Vecteur etendue(const std::string& cle, FormeOutil forme, const Tailles& t) {
    if (cle != "LN")
        return {t.largeur, t.hauteur};
    const double angle = forme == FormeOutil::horizontale ? 0
                         : forme == FormeOutil::verticale ? 90
                                                          : t.incidence;
    return {t.longueur * std::cos(radians(angle)), t.longueur * std::sin(radians(angle))};
}

} // namespace

Fiche posee(const std::string& cle, FormeOutil forme, Vecteur milieu, const Tailles& t,
            bool sur_table) {
    if (forme == FormeOutil::cercle)
        return enregistrement(cle, milieu.x, milieu.y, t.rayon);
    const auto [dx, dy] = etendue(cle, forme, t);
    double x = std::round(milieu.x - dx / 2);
    double y = std::round(milieu.y - dy / 2);
    if (sur_table) {
        x = std::max({x, 0.0, -std::round(dx)});
        y = std::max({y, 0.0, -std::round(dy)});
    }
    return enregistrement(cle, x, y, x + std::round(dx), y + std::round(dy));
}

Fiche tracee(const std::string& cle, FormeOutil forme, Vecteur a, Vecteur b) {
    if (forme == FormeOutil::cercle)
        return enregistrement(cle, a.x, a.y, std::max(1.0, std::hypot(b.x - a.x, b.y - a.y)));
    if (forme == FormeOutil::horizontale)
        b.y = a.y;
    if (forme == FormeOutil::verticale)
        b.x = a.x;
    return enregistrement(cle, a.x, a.y, b.x, b.y);
}
