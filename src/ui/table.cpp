#include "ui/table.h"

#include "draw/robot.h"
#include "draw/table.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

constexpr int bord_du_trait = 2; ///< logical pixels that a line reaches beyond its end points

void regler(Surface& s, const Etat& e) {
    s.coordonnees(-marge_table, e.YMax + marge_table, e.XMax + marge_table, -marge_table);
}

// The whole table as the region to draw, for as long as this lives.
class ZoneEntiere {
public:
    explicit ZoneEntiere(Etat& etat) : e(etat), avant_(etat.ZoneRedessin) {
        e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    }
    ZoneEntiere(const ZoneEntiere&) = delete;
    ZoneEntiere& operator=(const ZoneEntiere&) = delete;
    ~ZoneEntiere() { e.ZoneRedessin = avant_; }

private:
    Etat& e;
    Region avant_;
};

} // namespace

Table::Table(Etat& etat, Fenetres& fenetres, QWidget* parent)
    : QWidget(parent), e(etat), f(fenetres) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

Repere Table::repere() const {
    Repere r;
    r.regler(size(), -marge_table, e.YMax + marge_table, e.XMax + marge_table, -marge_table);
    return r;
}

void Table::Dessine_Table() {
    if (cle() == cle_du_fond_ || !peindre_fond())
        return;
    calculer_rectangles();
    update();
}

void Table::Dessine_Robot() {
    signaler_traits(); // what they leave
    contours_.vider();
    ::Dessine_Robot(e, contours_, f);
    calculer_rectangles();
    signaler_traits(); // what they cover
}

Table::Cle Table::cle() const {
    return {e.version_table, e.Echelle, (QSizeF(size()) * devicePixelRatioF()).toSize()};
}

bool Table::peindre_fond() {
    const Cle nouvelle = cle();
    QPixmap image(nouvelle.taille.expandedTo({1, 1}));
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(couleur_qt(couleurs::vert));
    QPainter peintre(&image);
    SurfaceQt surface(peintre, size());
    const ZoneEntiere zone(e);
    regler(surface, e);
    if (!::Dessine_Table(e, surface, f))
        return false;
    peintre.end();
    fond_ = image;
    cle_du_fond_ = nouvelle;
    return true;
}

void Table::signaler_traits() {
    for (int i = 0; i < nombre_rectangles_; ++i)
        update(rectangles_[static_cast<std::size_t>(i)]);
}

// One rectangle for outlines that touch, so that two distant robots do not repaint what lies
// between them.
void Table::calculer_rectangles() {
    nombre_rectangles_ = 0;
    const Repere r = repere();
    for (const Contours::Trait& t : contours_) {
        if (!std::isfinite(t.x1 + t.y1 + t.x2 + t.y2))
            continue;
        const QRectF visible =
            r.boite(t.x1, t.y1, t.x2, t.y2)
                .adjusted(-bord_du_trait, -bord_du_trait, bord_du_trait, bord_du_trait)
                .intersected(rect());
        const QRect pixels = visible.toAlignedRect();
        const auto dernier = static_cast<std::size_t>(nombre_rectangles_);
        if (nombre_rectangles_ > 0 &&
            (nombre_rectangles_ == rectangles_max || rectangles_[dernier - 1].intersects(pixels)))
            rectangles_[dernier - 1] |= pixels;
        else {
            rectangles_[dernier] = pixels;
            ++nombre_rectangles_;
        }
    }
}

void Table::paintEvent(QPaintEvent* evenement) {
    const Cle maintenant = cle();
    if (maintenant.taille != cle_du_fond_.taille && maintenant.version == cle_du_fond_.version &&
        maintenant.Echelle == cle_du_fond_.Echelle && peindre_fond())
        calculer_rectangles();
    QPainter peintre(this);
    if (fond_.isNull()) // before the first drawing
        peintre.fillRect(evenement->rect(), palette().window());
    else
        peintre.drawPixmap(QRectF(rect()), fond_, QRectF(fond_.rect()));
    SurfaceQt surface(peintre, size());
    regler(surface, e);
    for (const Contours::Trait& t : contours_)
        surface.ligne(t.x1, t.y1, t.x2, t.y2, t.couleur);
}

void Table::mouseReleaseEvent(QMouseEvent* evenement) {
    if (evenement->button() == Qt::LeftButton && rect().contains(evenement->pos()) && au_clic)
        au_clic();
}

void Table::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Space || evenement->key() == Qt::Key_Return)
        au_clic();
    else
        QWidget::keyPressEvent(evenement);
}
