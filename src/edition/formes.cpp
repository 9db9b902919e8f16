#include "edition/formes.h"

#include "base/nombres.h"
#include "config/document_table.h"

#include <algorithm>
#include <cmath>

namespace formes {
namespace {

/// Corner or end that handle 0..7 of a box moves: -1 left or bottom, 1 right or top, 0 neither.
constexpr int cote_x[] = {-1, 0, 1, 1, 1, 0, -1, -1};
constexpr int cote_y[] = {-1, -1, -1, 0, 1, 1, 1, 0};

double distance(Vecteur a, Vecteur b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

double distance_au_segment(Vecteur p, Vecteur a, Vecteur b) {
    const Vecteur ab{b.x - a.x, b.y - a.y};
    const double carre = ab.x * ab.x + ab.y * ab.y;
    const double produit = (p.x - a.x) * ab.x + (p.y - a.y) * ab.y;
    const double t = carre == 0 ? 0 : std::clamp(produit / carre, 0.0, 1.0);
    return distance(p, {a.x + t * ab.x, a.y + t * ab.y});
}

bool pres_du_bord(const Bornes& b, Vecteur p, double tolerance) {
    return b.elargies(tolerance).contiennent(p) && !b.elargies(-tolerance).contiennent(p);
}

bool pres_de_l_ellipse(const Bornes& b, Vecteur p, double tolerance) {
    const double rx = (b.droite - b.gauche) / 2;
    const double ry = (b.haut - b.bas) / 2;
    if (rx < tolerance || ry < tolerance)
        return b.elargies(tolerance).contiennent(p);
    const Vecteur c = b.milieu();
    const double n = std::hypot((p.x - c.x) / rx, (p.y - c.y) / ry);
    return std::fabs(n - 1) * std::min(rx, ry) <= tolerance;
}

float arrondi(double x) {
    return static_cast<float>(std::round(x));
}

/// How many of a record's numbers move with it.
std::size_t coordonnees(const Fiche& e) {
    return circulaire(e) ? 2 : nombre_de_champs(e.cle);
}

} // namespace

bool circulaire(const Fiche& e) {
    return nombre_de_champs(e.cle) == 3;
}

Bornes bornes(const Fiche& e) {
    const double a = e.v[0];
    const double b = e.v[1];
    const double c = e.v[2];
    const double d = e.v[3];
    if (circulaire(e)) {
        const double r = std::fabs(c);
        return {a - r, b - r, a + r, b + r};
    }
    return {std::min(a, c), std::min(b, d), std::max(a, c), std::max(b, d)};
}

Fiche deplacee(Fiche e, double dx, double dy) {
    for (std::size_t i = 0; i < coordonnees(e); ++i)
        e.v[i] += arrondi(i % 2 == 0 ? dx : dy);
    return e;
}

Vecteur deplacement_permis(const std::vector<Fiche>& objets, Vecteur d) {
    for (const Fiche& e : objets) {
        const bool pion = forme_table(e.cle) == FormeTable::pion;
        const double mini = pion ? -32768 : 0;
        const double maxi = pion ? 32767 : DocumentTable::coordonnee_max;
        for (std::size_t i = 0; i < coordonnees(e); ++i) {
            double& ecart = i % 2 == 0 ? d.x : d.y;
            ecart = std::clamp(ecart, std::min(0.0, mini - e.v[i]), std::max(0.0, maxi - e.v[i]));
        }
    }
    return d;
}

std::vector<Vecteur> poignees(const Fiche& e) {
    if (e.cle == "M")
        return {};
    if (e.cle == "LN")
        return {{e.v[0], e.v[1]}, {e.v[2], e.v[3]}};
    const Bornes b = bornes(e);
    const Vecteur c = b.milieu();
    std::vector<Vecteur> points;
    for (std::size_t i = 0; i < 8; ++i)
        if (!circulaire(e) || i % 2 != 0)
            points.push_back({c.x + cote_x[i] * (b.droite - b.gauche) / 2,
                              c.y + cote_y[i] * (b.haut - b.bas) / 2});
    return points;
}

Fiche tiree(Fiche e, std::size_t poignee, Vecteur cm) {
    if (e.cle == "LN") {
        e.v[2 * poignee] = arrondi(cm.x);
        e.v[2 * poignee + 1] = arrondi(cm.y);
    } else if (circulaire(e)) {
        e.v[2] = std::max(1.0F, arrondi(distance(cm, {e.v[0], e.v[1]})));
    } else {
        if (cote_x[poignee] != 0)
            e.v[cote_x[poignee] < 0 ? 0 : 2] = arrondi(cm.x);
        if (cote_y[poignee] != 0)
            e.v[cote_y[poignee] < 0 ? 1 : 3] = arrondi(cm.y);
    }
    return DocumentTable::normaliser(e);
}

Fiche tournee(Fiche ligne, double longueur, double angle) {
    ligne.v[2] = arrondi(ligne.v[0] + longueur * std::cos(radians(angle)));
    ligne.v[3] = arrondi(ligne.v[1] + longueur * std::sin(radians(angle)));
    return ligne;
}

bool sans_etendue(const Fiche& e) {
    if (circulaire(e))
        return e.v[2] == 0;
    const bool etroite = e.v[0] == e.v[2];
    const bool basse = e.v[1] == e.v[3];
    if (e.cle == "LN" || e.cle == "R")
        return etroite && basse;
    return nombre_de_champs(e.cle) == 4 && (etroite || basse);
}

bool touchee(const Fiche& e, Vecteur cm, double tolerance) {
    const Bornes b = bornes(e);
    if (e.cle == "M")
        return false;
    if (e.cle == "LN")
        return distance_au_segment(cm, {e.v[0], e.v[1]}, {e.v[2], e.v[3]}) <= tolerance;
    if (e.cle == "DC")
        return pres_du_bord(b, cm, tolerance);
    if (e.cle == "LE" || e.cle == "DR")
        return pres_de_l_ellipse(b, cm, tolerance);
    if (circulaire(e))
        return distance(cm, b.milieu()) <= std::max<double>(std::fabs(e.v[2]), tolerance);
    return b.elargies(tolerance / 2).contiennent(cm);
}

} // namespace formes
