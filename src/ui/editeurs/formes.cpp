#include "ui/editeurs/formes.h"

#include "draw/table.h"
#include "ui/commun/surface_qt.h"

#include <QLineF>
#include <QString>

#include <algorithm>
#include <cmath>
#include <string>

namespace formes {
namespace {

bool circulaire(const Fiche& e) {
    return nombre_de_champs(e.cle) == 3;
}

/// Corner or end that handle 0..7 of a box moves: -1 left or bottom, 1 right or top, 0 neither.
constexpr int cote_x[] = {-1, 0, 1, 1, 1, 0, -1, -1};
constexpr int cote_y[] = {-1, -1, -1, 0, 1, 1, 1, 0};

double distance_au_segment(QPointF p, QPointF a, QPointF b) {
    const QPointF ab = b - a;
    const double carre = QPointF::dotProduct(ab, ab);
    const double t = carre == 0 ? 0 : std::clamp(QPointF::dotProduct(p - a, ab) / carre, 0.0, 1.0);
    return QLineF(p, a + t * ab).length();
}

bool pres_du_bord(const QRectF& r, QPointF p, double tolerance) {
    const QRectF dedans = r.adjusted(tolerance, tolerance, -tolerance, -tolerance);
    return r.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(p) &&
           !(dedans.isValid() && dedans.contains(p));
}

bool pres_de_l_ellipse(const QRectF& r, QPointF p, double tolerance) {
    const double rx = r.width() / 2;
    const double ry = r.height() / 2;
    if (rx < tolerance || ry < tolerance)
        return r.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(p);
    const QPointF d = p - r.center();
    const double n = std::hypot(d.x() / rx, d.y() / ry);
    return std::fabs(n - 1) * std::min(rx, ry) <= tolerance;
}

float arrondi(double x) {
    return static_cast<float>(std::round(x));
}

} // namespace

QRectF cadre(const Fiche& e) {
    const double a = e.v[0];
    const double b = e.v[1];
    const double c = e.v[2];
    if (circulaire(e)) {
        const double r = std::fabs(c);
        return {a - r, b - r, 2 * r, 2 * r};
    }
    return QRectF(QPointF(a, b), QPointF(c, e.v[3])).normalized();
}

Fiche deplacee(Fiche e, double dx, double dy) {
    const std::size_t n = circulaire(e) ? 2 : nombre_de_champs(e.cle);
    for (std::size_t i = 0; i < n; ++i)
        e.v[i] += arrondi(i % 2 == 0 ? dx : dy);
    return e;
}

QPointF deplacement_permis(const std::vector<Fiche>& objets, QPointF d) {
    for (const Fiche& e : objets) {
        const bool pion = circulaire(e) && e.cle != "DR";
        const double mini = pion ? -32768 : 0;
        const double maxi = pion ? 32767 : DocumentTable::coordonnee_max;
        for (std::size_t i = 0; i < (circulaire(e) ? 2 : nombre_de_champs(e.cle)); ++i) {
            double& ecart = i % 2 == 0 ? d.rx() : d.ry();
            ecart = std::clamp(ecart, std::min(0.0, mini - e.v[i]), std::max(0.0, maxi - e.v[i]));
        }
    }
    return d;
}

std::vector<QPointF> poignees(const Fiche& e) {
    if (e.cle == "M")
        return {};
    if (e.cle == "LN")
        return {{e.v[0], e.v[1]}, {e.v[2], e.v[3]}};
    const QRectF r = cadre(e);
    const QPointF c = r.center();
    std::vector<QPointF> points;
    for (std::size_t i = 0; i < 8; ++i)
        if (!circulaire(e) || i % 2 != 0)
            points.emplace_back(c.x() + cote_x[i] * r.width() / 2,
                                c.y() + cote_y[i] * r.height() / 2);
    return points;
}

Fiche tiree(Fiche e, std::size_t poignee, QPointF cm) {
    if (e.cle == "LN") {
        e.v[2 * poignee] = arrondi(cm.x());
        e.v[2 * poignee + 1] = arrondi(cm.y());
    } else if (circulaire(e)) {
        e.v[2] = std::max(1.0F, arrondi(QLineF(cm, {e.v[0], e.v[1]}).length()));
    } else {
        if (cote_x[poignee] != 0)
            e.v[cote_x[poignee] < 0 ? 0 : 2] = arrondi(cm.x());
        if (cote_y[poignee] != 0)
            e.v[cote_y[poignee] < 0 ? 1 : 3] = arrondi(cm.y());
    }
    return DocumentTable::normaliser(e);
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

bool touchee(const Fiche& e, QPointF cm, double tolerance) {
    const QRectF r = cadre(e);
    if (e.cle == "M")
        return false;
    if (e.cle == "LN")
        return distance_au_segment(cm, {e.v[0], e.v[1]}, {e.v[2], e.v[3]}) <= tolerance;
    if (e.cle == "DC")
        return pres_du_bord(r, cm, tolerance);
    if (e.cle == "LE" || e.cle == "DR")
        return pres_de_l_ellipse(r, cm, tolerance);
    if (circulaire(e))
        return QLineF(cm, r.center()).length() <= std::max<double>(std::fabs(e.v[2]), tolerance);
    return r.adjusted(-tolerance / 2, -tolerance / 2, tolerance / 2, tolerance / 2).contains(cm);
}

QString nom(std::string_view cle) {
    struct Nom {
        std::string_view cle;
        const char* texte;
    };
    static constexpr Nom noms[] = {{"L", "Zone L (blanc)"},
                                   {"O", "Zone O (rouge)"},
                                   {"V", "Zone V (noir)"},
                                   {"T", "Zone T (vert)"},
                                   {"U", "Zone U (blanc)"},
                                   {"W", "Zone W (noir)"},
                                   {"PB", "Pièce PB (blanc)"},
                                   {"PN", "Pièce PN (noir)"},
                                   {"BJ", "Pièce BJ (jaune)"},
                                   {"BB", "Pièce BB (bleu)"},
                                   {"X", "Balise gauche X"},
                                   {"Y", "Balise droite Y"},
                                   {"LN", "Ligne"},
                                   {"DC", "Bloc rectangulaire"},
                                   {"DR", "Bloc disque"},
                                   {"LE", "Ellipse"},
                                   {"M", "Légende"}};
    for (const Nom& n : noms)
        if (n.cle == cle)
            return n.texte;
    return {};
}

QColor couleur(std::string_view cle) {
    const SorteTable* sorte = sorte_table(cle);
    if (sorte != nullptr && sorte->nom == "zones")
        return couleur_qt(couleur_zone(cle.front()));
    if (sorte != nullptr && sorte->nom == "pièces")
        return couleur_qt(couleur_pion(cle));
    return cle == "LE" ? Qt::white : Qt::black;
}

} // namespace formes
