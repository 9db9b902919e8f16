#include "draw/geometrie.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

/// Where the outline's segments meet: places, and the ways between neighbouring places.
class Carte {
public:
    Carte(std::span<const Segment> contour, double jonction) : jonction_(jonction) {
        for (const Segment& s : contour)
            poser(s, contour);
    }

    /// The outer boundary of one connected piece, starting from a place not yet walked on.
    std::optional<std::vector<Point>> bord_suivant() {
        const auto depart = plus_a_gauche();
        if (!depart)
            return std::nullopt;
        marquer(*depart);
        return suivre_le_bord(*depart);
    }

private:
    struct Lieu {
        Point p;
        std::vector<std::size_t> voisins;
        bool vu = false;
    };

    std::size_t lieu(Point p) {
        for (std::size_t n = 0; n < lieux_.size(); ++n) {
            if (std::hypot(lieux_[n].p.x - p.x, lieux_[n].p.y - p.y) < jonction_)
                return n;
        }
        lieux_.push_back({p, {}, false});
        return lieux_.size() - 1;
    }

    void relier(std::size_t a, std::size_t b) {
        if (a == b || std::ranges::count(lieux_[a].voisins, b) > 0)
            return;
        lieux_[a].voisins.push_back(b);
        lieux_[b].voisins.push_back(a);
    }

    /// Cuts a segment wherever another one meets it.
    void poser(const Segment& s, std::span<const Segment> contour) {
        const Point d{s.b.x - s.a.x, s.b.y - s.a.y};
        std::vector<double> coupures{0, 1};
        for (const Segment& t : contour)
            couper(s, d, t, coupures);
        std::ranges::sort(coupures);
        std::size_t avant = lieu(s.a);
        for (const double u : coupures) {
            const std::size_t ici = lieu({s.a.x + u * d.x, s.a.y + u * d.y});
            relier(avant, ici);
            avant = ici;
        }
    }

    void couper(const Segment& s, Point d, const Segment& t, std::vector<double>& coupures) const {
        const double carre = d.x * d.x + d.y * d.y;
        if (carre == 0)
            return;
        // An end of the other that touches this one, or would but for the tolerance.
        for (const Point p : {t.a, t.b}) {
            if (distance(p, s) < jonction_)
                coupures.push_back(
                    std::clamp(((p.x - s.a.x) * d.x + (p.y - s.a.y) * d.y) / carre, 0.0, 1.0));
        }
        const Point f{t.b.x - t.a.x, t.b.y - t.a.y};
        const double det = d.x * f.y - d.y * f.x;
        if (det == 0)
            return;
        const Point v{t.a.x - s.a.x, t.a.y - s.a.y};
        const double u = (v.x * f.y - v.y * f.x) / det;
        const double w = (v.x * d.y - v.y * d.x) / det;
        if (u > 0 && u < 1 && w > 0 && w < 1)
            coupures.push_back(u);
    }

    std::optional<std::size_t> plus_a_gauche() const {
        std::optional<std::size_t> choisi;
        for (std::size_t n = 0; n < lieux_.size(); ++n) {
            if (!lieux_[n].vu && (!choisi || lieux_[n].p.x < lieux_[*choisi].p.x))
                choisi = n;
        }
        return choisi;
    }

    void marquer(std::size_t depart) {
        std::vector<std::size_t> a_voir{depart};
        while (!a_voir.empty()) {
            Lieu& l = lieux_[a_voir.back()];
            a_voir.pop_back();
            if (l.vu)
                continue;
            l.vu = true;
            a_voir.insert(a_voir.end(), l.voisins.begin(), l.voisins.end());
        }
    }

    std::size_t nombre_de_voies() const {
        std::size_t n = 0;
        for (const Lieu& l : lieux_)
            n += l.voisins.size();
        return n;
    }

    double direction(std::size_t de, std::size_t vers) const {
        return std::atan2(lieux_[vers].p.y - lieux_[de].p.y, lieux_[vers].p.x - lieux_[de].p.x);
    }

    /// The way that follows when one keeps the outside to the right: the first one met turning
    /// anticlockwise from the direction one looks back in.
    std::size_t suivant(std::size_t ici, double derriere) const {
        constexpr double tour = 2 * 3.14159265358979323846;
        std::size_t choisi = lieux_[ici].voisins.front();
        double plus_petit = 2 * tour;
        for (const std::size_t n : lieux_[ici].voisins) {
            double angle = direction(ici, n) - derriere;
            while (angle <= 1e-12)
                angle += tour;
            if (angle < plus_petit) {
                plus_petit = angle;
                choisi = n;
            }
        }
        return choisi;
    }

    std::vector<Point> suivre_le_bord(std::size_t depart) const {
        std::vector<Point> bord{lieux_[depart].p};
        if (lieux_[depart].voisins.empty())
            return bord;
        // West of the leftmost place is outside: looking back there, the first way starts the tour.
        constexpr double ouest = -3.14159265358979323846;
        const std::size_t premier = suivant(depart, ouest);
        // Ways that leave in one direction (to the last bit) could lead around for ever.
        const std::size_t limite = 4 * nombre_de_voies() + 1;
        std::size_t avant = depart;
        std::size_t ici = premier;
        do {
            bord.push_back(lieux_[ici].p);
            const std::size_t apres = suivant(ici, direction(ici, avant));
            avant = ici;
            ici = apres;
        } while ((avant != depart || ici != premier) && bord.size() < limite);
        return bord;
    }

    double jonction_; ///< cm
    std::vector<Lieu> lieux_;
};

} // namespace

Enceinte::Enceinte(std::span<const Segment> contour, double jonction) {
    Carte carte(contour, jonction);
    while (auto bord = carte.bord_suivant())
        bords_.push_back(std::move(*bord));
}

bool Enceinte::enferme(Point p) const {
    const auto dedans = [p](const std::vector<Point>& bord) {
        bool impair = false;
        for (std::size_t n = 0; n < bord.size(); ++n) {
            const Point a = bord[n];
            const Point b = bord[(n + 1) % bord.size()];
            if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y))
                impair = !impair;
        }
        return impair;
    };
    return std::ranges::any_of(bords_, dedans);
}
