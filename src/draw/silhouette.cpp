#include "draw/silhouette.h"

#include "draw/couleurs_robots.h"
#include "sim/contour.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace {

constexpr double jonction = 0.5; ///< ends that are nearer (cm) look joined
constexpr double opacite_du_fond = 0.35;
constexpr double opacite_du_numero = 0.6;
constexpr double plus_petit_numero = 8; ///< pixels
constexpr double plus_grand_numero = 16;

using Segments = std::vector<std::pair<PointTable, PointTable>>;

bool joints(PointTable a, PointTable b) {
    return std::hypot(a.x - b.x, a.y - b.y) < jonction;
}

/// > 0 where a, b, c turn to the left.
double virage(PointTable a, PointTable b, PointTable c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

Segments segments_de(const Contour& contour) {
    Segments resultat;
    for (std::size_t k = 0; k + 1 < contour.nombre(); k += 2)
        resultat.push_back(
            {{contour.x()[k], contour.y()[k]}, {contour.x()[k + 1], contour.y()[k + 1]}});
    return resultat;
}

// Takes out a segment that begins or ends there. @returns its other end
std::optional<PointTable> suivant(Segments& segments, PointTable ici) {
    for (auto it = segments.begin(); it != segments.end(); ++it) {
        if (!joints(it->first, ici) && !joints(it->second, ici))
            continue;
        const PointTable autre = joints(it->first, ici) ? it->second : it->first;
        segments.erase(it);
        return autre;
    }
    return {};
}

std::vector<Forme> fermees(Segments segments) {
    std::vector<Forme> resultat;
    while (!segments.empty()) {
        Forme forme{segments.back().first, segments.back().second};
        segments.pop_back();
        while (!joints(forme.front(), forme.back())) {
            const auto point = suivant(segments, forme.back());
            if (!point)
                break;
            forme.push_back(*point);
        }
        if (forme.size() > 3 && joints(forme.front(), forme.back())) {
            forme.pop_back();
            resultat.push_back(std::move(forme));
        }
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

Forme enveloppe(const Segments& segments) {
    Forme points;
    for (const auto& [a, b] : segments)
        points.insert(points.end(), {a, b});
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
    double aire = 0;
    for (std::size_t k = 2; k < forme.size(); ++k)
        aire += virage(forme[0], forme[k - 1], forme[k]);
    if (aire < 0)
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
    const Segments segments = segments_de(Contour(e, i));
    formes_ = fermees(segments);
    if (formes_.empty() && !segments.empty())
        formes_ = {enveloppe(segments)};
    std::vector<double> xs;
    std::vector<double> ys;
    for (Forme& forme : formes_) {
        orienter(forme);
        for (const PointTable& p : forme) {
            xs.push_back(p.x);
            ys.push_back(p.y);
        }
    }
    if (xs.empty())
        return;
    const auto [arriere, avant] = std::ranges::minmax(xs);
    const auto [droite, gauche] = std::ranges::minmax(ys);
    milieu_ = {(arriere + avant) / 2, (droite + gauche) / 2};
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
    const double pointe = avant_ - taille_ / 10;
    const double base = pointe - taille_ / 4;
    s.polygone(
        placee(
            {{pointe, milieu_.y}, {base, milieu_.y + taille_ / 5}, {base, milieu_.y - taille_ / 5}},
            x, y, cap),
        couleur);
    peindre_numero(placee({milieu_}, x, y, cap).front(), s);
}

void Silhouette::peindre_numero(PointTable milieu, Surface& s) const {
    const double hauteur = std::min(0.45 * taille_ / s.cm_par_pixel(), plus_grand_numero);
    if (!(hauteur >= plus_petit_numero))
        return;
    s.opacite(opacite_du_numero);
    s.repere(milieu, hauteur * 0.65 * s.cm_par_pixel(), couleurs::noir,
             "robot " + std::to_string(robot_));
    s.opacite(1);
    s.texte(milieu, hauteur, couleur_robot(robot_), std::to_string(robot_));
}
