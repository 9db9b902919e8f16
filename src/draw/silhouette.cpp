#include "draw/silhouette.h"

#include "draw/couleurs_robots.h"
#include "draw/geometrie.h"
#include "sim/contour.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <utility>

namespace {

constexpr double jonction = 0.5;       ///< ends that are nearer (cm) look joined
constexpr double plus_petite_aire = 1; ///< cm2; less is a loose end
constexpr double opacite_du_fond = 0.35;
constexpr double opacite_du_numero = 0.6;
constexpr double plus_petit_numero = 8; ///< pixels
constexpr double plus_grand_numero = 16;
constexpr double disque_du_numero = 0.65; ///< its radius, of the number's height
constexpr double retrait = 0.1;           ///< of the mark from the front, of the smaller side

/// > 0 where a, b, c turn to the left.
double virage(PointTable a, PointTable b, PointTable c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// Twice the area, > 0 when it runs anticlockwise.
double double_aire(const Forme& forme) {
    double aire = 0;
    for (std::size_t k = 2; k < forme.size(); ++k)
        aire += virage(forme[0], forme[k - 1], forme[k]);
    return aire;
}

std::vector<Segment> segments_de(const Contour& contour) {
    std::vector<Segment> resultat;
    for (std::size_t k = 0; k + 1 < contour.nombre(); k += 2)
        resultat.push_back(
            {{contour.x()[k], contour.y()[k]}, {contour.x()[k + 1], contour.y()[k + 1]}});
    return resultat;
}

std::vector<Forme> fermees(const std::vector<Segment>& segments) {
    const Enceinte enceinte(segments, jonction);
    std::vector<Forme> resultat;
    for (const std::vector<Point>& bord : enceinte.bords()) {
        Forme forme;
        for (const Point& p : bord)
            forme.push_back({p.x, p.y});
        if (double_aire(forme) > 2 * plus_petite_aire)
            resultat.push_back(std::move(forme));
    }
    return resultat;
}

// One side of the convex hull of sorted points.
Forme cote(const auto& points) {
    Forme bord;
    for (const PointTable& p : points) {
        while (bord.size() > 1 && virage(bord[bord.size() - 2], bord.back(), p) <= 0)
            bord.pop_back();
        bord.push_back(p);
    }
    bord.pop_back(); // the other side begins with it
    return bord;
}

Forme enveloppe(const std::vector<Segment>& segments) {
    Forme points;
    for (const Segment& s : segments)
        points.insert(points.end(), {{s.a.x, s.a.y}, {s.b.x, s.b.y}});
    if (points.size() < 3)
        return {};
    std::ranges::sort(points, [](const PointTable& a, const PointTable& b) {
        return std::pair(a.x, a.y) < std::pair(b.x, b.y);
    });
    Forme bord = cote(points);
    std::ranges::reverse(points);
    const Forme retour = cote(points);
    bord.insert(bord.end(), retour.begin(), retour.end());
    return bord;
}

} // namespace

void orienter(Forme& forme) {
    if (double_aire(forme) < 0)
        std::ranges::reverse(forme);
}

Forme placee(const Forme& forme, double x, double y, double cap) {
    const double c = std::cos(radians(cap));
    const double s = std::sin(radians(cap));
    Forme resultat;
    resultat.reserve(forme.size());
    for (const PointTable& p : forme)
        resultat.push_back({x + p.x * c - p.y * s, y + p.x * s + p.y * c});
    return resultat;
}

Silhouette::Silhouette(const Etat& e, int i) : robot_(i) {
    const std::vector<Segment> segments = segments_de(Contour(e, i));
    formes_ = fermees(segments);
    if (formes_.empty() && !segments.empty())
        formes_ = {enveloppe(segments)};
    std::vector<double> xs;
    std::vector<double> ys;
    for (const Forme& forme : formes_)
        for (const PointTable& p : forme) {
            xs.push_back(p.x);
            ys.push_back(p.y);
        }
    if (xs.empty())
        return;
    const auto [arriere, avant] = std::ranges::minmax(xs);
    const auto [droite, gauche] = std::ranges::minmax(ys);
    milieu_ = (droite + gauche) / 2;
    arriere_ = arriere;
    avant_ = avant;
    taille_ = std::min(avant - arriere, gauche - droite);
}

void Silhouette::peindre(double x, double y, double cap, Surface& s) const {
    const Couleur couleur = couleur_robot(robot_);
    std::vector<Forme> places;
    for (const Forme& forme : formes_)
        places.push_back(placee(forme, x, y, cap));
    s.opacite(opacite_du_fond);
    s.reunion(places, couleur);
    s.opacite(1);
    const Forme points = reperes(x, y, cap);
    s.polygone(std::span(points).subspan(1), couleur);
    peindre_numero(points.front(), s);
}

// The number stands behind the middle, where paths begin.
Forme Silhouette::reperes(double x, double y, double cap) const {
    const double base = avant_ - 0.35 * taille_;
    return placee({{arriere_ + 0.4 * taille_, milieu_},
                   {avant_ - retrait * taille_, milieu_},
                   {base, milieu_ + taille_ / 5},
                   {base, milieu_ - taille_ / 5}},
                  x, y, cap);
}

double Silhouette::rayon_du_numero(double cm_par_pixel) const {
    const double hauteur = std::min(0.45 * taille_ / cm_par_pixel, plus_grand_numero);
    return hauteur >= plus_petit_numero ? disque_du_numero * hauteur : 0;
}

void Silhouette::peindre_numero(PointTable milieu, Surface& s) const {
    const double rayon = rayon_du_numero(s.cm_par_pixel());
    if (rayon == 0)
        return;
    s.opacite(opacite_du_numero);
    s.repere(milieu, rayon * s.cm_par_pixel(), couleurs::noir, "robot " + std::to_string(robot_));
    s.opacite(1);
    s.texte(milieu, rayon / disque_du_numero, couleur_robot(robot_), std::to_string(robot_));
}
