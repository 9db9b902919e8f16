#include "ui/commun/surface_qt.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace {

bool finis(std::initializer_list<double> valeurs) {
    return std::all_of(valeurs.begin(), valeurs.end(), [](double v) { return std::isfinite(v); });
}

} // namespace

QColor couleur_qt(Couleur couleur) {
    return {couleur.rouge, couleur.vert, couleur.bleu};
}

void Repere::regler(QSizeF taille, double gauche, double haut, double droite, double bas) {
    x0_ = gauche;
    y0_ = haut;
    ax_ = droite == gauche ? 1 : taille.width() / (droite - gauche);
    ay_ = bas == haut ? -1 : taille.height() / (bas - haut);
}

QRectF Repere::boite(double x1, double y1, double x2, double y2) const {
    return QRectF(point(x1, y1), point(x2, y2)).normalized();
}

QRectF Repere::boite(std::span<const PointTable> points) const {
    QPolygonF polygone;
    for (const PointTable& p : points) {
        if (!finis({p.x, p.y}))
            return {};
        polygone << point(p.x, p.y);
    }
    return polygone.boundingRect();
}

SurfaceQt::SurfaceQt(QPainter& peintre, QSizeF taille)
    : peintre_(peintre), taille_(taille), densite_(peintre.device()->devicePixelRatioF()) {
    peintre_.setRenderHint(QPainter::Antialiasing);
}

// Boxes lie on whole pixels. Smoothed all the same they would be filled row by row, in a pool of
// threads.
void SurfaceQt::lisser(bool oui) {
    if (std::exchange(lisse_, oui) != oui)
        peintre_.setRenderHint(QPainter::Antialiasing, oui);
}

void SurfaceQt::coordonnees(double gauche, double haut, double droite, double bas) {
    repere_.regler(taille_, gauche, haut, droite, bas);
}

void SurfaceQt::trait_pointille(bool pointille) {
    pointille_ = pointille;
    trait_a_jour_ = false;
}

void SurfaceQt::epaisseur(Entier16 pixels) {
    epaisseur_ = pixels;
    trait_a_jour_ = false;
}

void SurfaceQt::boite_pleine(double x1, double y1, double x2, double y2) {
    lisser(false);
    peintre_.fillRect(sur_les_pixels(repere_.boite(x1, y1, x2, y2)), couleur_qt(trait_));
}

void SurfaceQt::boite(double x1, double y1, double x2, double y2, Couleur couleur) {
    choisir_trait(couleur);
    choisir_fond();
    const QRectF r = repere_.boite(x1, y1, x2, y2);
    peintre_.drawRect(
        QRectF(QPointF(au_milieu_du_pixel(r.left()), au_milieu_du_pixel(r.top())),
               QPointF(au_milieu_du_pixel(r.right()), au_milieu_du_pixel(r.bottom()))));
}

void SurfaceQt::ligne(double x1, double y1, double x2, double y2, Couleur couleur) {
    if (!finis({x1, y1, x2, y2}))
        return;
    choisir_trait(couleur);
    peintre_.drawLine(en_pixels({{x1, y1}, {x2, y2}}));
}

void SurfaceQt::lignes(std::span<const Trait> traits, Couleur couleur) {
    lignes_.clear();
    for (const Trait& t : traits)
        if (finis({t.a.x, t.a.y, t.b.x, t.b.y}))
            lignes_.push_back(en_pixels(t));
    choisir_trait(couleur);
    peintre_.drawLines(lignes_.data(), static_cast<int>(lignes_.size()));
}

void SurfaceQt::cercle(double x, double y, double rayon, Couleur couleur) {
    if (!finis({x, y, rayon}))
        return;
    choisir_trait(couleur);
    choisir_fond();
    peintre_.drawEllipse(repere_.point(x, y), repere_.pixels_x(std::fabs(rayon)),
                         repere_.pixels_y(std::fabs(rayon)));
}

void SurfaceQt::arc(double x, double y, double rayon, Couleur couleur, double debut, double fin,
                    double aspect) {
    if (!finis({x, y, rayon, debut, fin, aspect}))
        return;
    const double rx = aspect > 1 ? rayon / aspect : rayon;
    const double ry = aspect > 1 ? rayon : rayon * aspect;
    if (ry == 0) { // flat
        ligne(x - rx, y, x + rx, y, couleur);
        return;
    }
    choisir_trait(couleur);
    const auto seiziemes = [](double a) { return static_cast<int>(std::lround(a * 2880 / Pi)); };
    peintre_.drawArc(repere_.boite(x - rx, y - ry, x + rx, y + ry), seiziemes(debut),
                     seiziemes(fin - debut));
}

void SurfaceQt::opacite(double part) {
    peintre_.setOpacity(part);
}

QPolygonF SurfaceQt::en_pixels(std::span<const PointTable> points) const {
    QPolygonF resultat;
    resultat.reserve(static_cast<qsizetype>(points.size()));
    for (const PointTable& p : points)
        if (finis({p.x, p.y}))
            resultat << repere_.point(p.x, p.y);
    return resultat;
}

QLineF SurfaceQt::en_pixels(const Trait& trait) const {
    QPointF a = repere_.point(trait.a.x, trait.a.y);
    QPointF b = repere_.point(trait.b.x, trait.b.y);
    if (trait.a.x == trait.b.x)
        a.rx() = b.rx() = au_milieu_du_pixel(a.x());
    if (trait.a.y == trait.b.y)
        a.ry() = b.ry() = au_milieu_du_pixel(a.y());
    return {a, b};
}

void SurfaceQt::chemin(std::span<const PointTable> points, Couleur couleur) {
    choisir_trait(couleur);
    peintre_.drawPolyline(en_pixels(points));
}

void SurfaceQt::polygone(std::span<const PointTable> points, Couleur couleur) {
    choisir_plein(couleur);
    peintre_.drawPolygon(en_pixels(points));
}

void SurfaceQt::reunion(std::span<const Forme> formes, Couleur couleur) {
    QPainterPath chemin;
    chemin.setFillRule(Qt::WindingFill);
    for (const Forme& forme : formes) {
        chemin.addPolygon(en_pixels(forme));
        chemin.closeSubpath();
    }
    choisir_plein(couleur);
    peintre_.drawPath(chemin);
}

void SurfaceQt::repere(PointTable centre, double rayon, Couleur couleur, std::string_view) {
    if (!finis({centre.x, centre.y, rayon}))
        return;
    choisir_plein(couleur);
    peintre_.drawEllipse(repere_.point(centre.x, centre.y), repere_.pixels_x(rayon),
                         repere_.pixels_y(rayon));
}

void SurfaceQt::texte(PointTable milieu, double hauteur, Couleur couleur, std::string_view texte) {
    if (!finis({milieu.x, milieu.y, hauteur}))
        return;
    choisir_trait(couleur);
    QFont police = peintre_.font();
    police.setPixelSize(std::max(1, static_cast<int>(std::lround(hauteur))));
    peintre_.setFont(police);
    QRectF cadre(0, 0, 1, 1); // the text overflows it on all sides
    cadre.moveCenter(repere_.point(milieu.x, milieu.y));
    peintre_.drawText(cadre, Qt::AlignCenter | Qt::TextDontClip,
                      QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size())));
}

// Edges on whole device pixels: neighbouring boxes meet without a seam. Never thinner than one.
QRectF SurfaceQt::sur_les_pixels(QRectF r) const {
    const double gauche = std::round(r.left() * densite_);
    const double haut = std::round(r.top() * densite_);
    const double droite = std::max(std::round(r.right() * densite_), gauche + 1);
    const double bas = std::max(std::round(r.bottom() * densite_), haut + 1);
    return QRectF(QPointF(gauche, haut) / densite_, QPointF(droite, bas) / densite_);
}

// A pen of an odd number of device pixels is crisp about the middle of a pixel, an even one about
// its edge.
double SurfaceQt::au_milieu_du_pixel(double valeur) const {
    const auto largeur = static_cast<int>(std::lround(std::max(1.0, epaisseur_ * densite_)));
    const double demi = largeur % 2 != 0 ? 0.5 : 0;
    return (std::floor(valeur * densite_ - demi + 0.5) + demi) / densite_;
}

void SurfaceQt::choisir_trait(Couleur couleur) {
    lisser(true);
    if (trait_a_jour_ && couleur == trait_du_peintre_)
        return;
    peintre_.setPen(QPen(couleur_qt(couleur), epaisseur_, pointille_ ? Qt::DotLine : Qt::SolidLine,
                         pointille_ ? Qt::FlatCap : Qt::RoundCap, Qt::MiterJoin));
    trait_du_peintre_ = couleur;
    trait_a_jour_ = true;
}

void SurfaceQt::choisir_plein(Couleur couleur) {
    lisser(true);
    peintre_.setPen(Qt::NoPen);
    trait_a_jour_ = false;
    peintre_.setBrush(couleur_qt(couleur));
}

void SurfaceQt::choisir_fond() {
    peintre_.setBrush(plein_ ? QBrush(couleur_qt(fond_)) : QBrush(Qt::NoBrush));
}
