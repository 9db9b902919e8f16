#include "ui/commun/vue_echelle.h"

#include "ui/commun/surface_qt.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int regle = 24;            ///< thickness of the rulers, logical pixels
constexpr double echelle_min = 0.05; ///< logical pixels per cm
constexpr double echelle_max = 80;

/// The smallest of `pas` times 1, 2, 5, 10, 20... that is at least `pixels` apart.
double pas_lisible(double pas, double echelle, double pixels) {
    static constexpr double facteurs[] = {2, 2.5, 2};
    for (int i = 0; pas * echelle < pixels; ++i)
        pas *= facteurs[i % 3];
    return pas;
}

// The first multiple of a step at or beyond a place.
int premier_pas(double cm, double pas) {
    return static_cast<int>(std::ceil(cm / pas));
}

} // namespace

VueEchelle::VueEchelle(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(240, 200);
}

void VueEchelle::regler_grille(int pas) {
    grille_ = pas;
    update();
}

void VueEchelle::ajuster() {
    ajuste_ = true;
    cadrer();
    update();
}

void VueEchelle::cadrer() {
    constexpr double marge = 14;
    const QRectF tout = etendue();
    const double l = std::max(20.0, width() - regle - 2 * marge);
    const double h = std::max(20.0, height() - regle - 2 * marge);
    echelle_ =
        std::clamp(std::min(l / std::max(1.0, tout.width()), h / std::max(1.0, tout.height())),
                   echelle_min, echelle_max);
    centre_ = tout.center();
}

void VueEchelle::zoomer(double facteur, QPointF autour) {
    const QPointF fixe = en_cm(autour);
    echelle_ = std::clamp(echelle_ * facteur, echelle_min, echelle_max);
    centre_ += fixe - en_cm(autour);
    ajuste_ = false;
    update();
}

QPointF VueEchelle::en_cm(QPointF p) const {
    return {centre_.x() + (p.x() - (width() + regle) / 2.0) / echelle_,
            centre_.y() - (p.y() - (height() + regle) / 2.0) / echelle_};
}

QPointF VueEchelle::en_pixels(QPointF cm) const {
    return {(width() + regle) / 2.0 + (cm.x() - centre_.x()) * echelle_,
            (height() + regle) / 2.0 - (cm.y() - centre_.y()) * echelle_};
}

QRectF VueEchelle::en_pixels(QRectF cm) const {
    return QRectF(en_pixels(cm.topLeft()), en_pixels(cm.bottomRight())).normalized();
}

QPointF VueEchelle::aimanter(QPointF cm, Qt::KeyboardModifiers touches) const {
    const double pas = sans_grille(touches) ? 1 : grille_;
    return {std::round(cm.x() / pas) * pas, std::round(cm.y() / pas) * pas};
}

void VueEchelle::orienter(SurfaceQt& surface) const {
    const QPointF haut_gauche = en_cm({0, 0});
    const QPointF bas_droite = en_cm({double(width()), double(height())});
    surface.coordonnees(haut_gauche.x(), haut_gauche.y(), bas_droite.x(), bas_droite.y());
}

void VueEchelle::paintEvent(QPaintEvent*) {
    preparer_fonds();
    QPainter peintre(this);
    peintre.fillRect(rect(), palette().color(QPalette::Dark));
    peindre(peintre);
    peintre.drawPixmap(0, 0, fond_grille_);
    peintre.setRenderHint(QPainter::Antialiasing);
    peindre_dessus(peintre);
    const double d = fond_regles_.devicePixelRatio();
    const QRectF en_haut(0, 0, width(), regle);
    const QRectF a_gauche(0, 0, regle, height());
    for (const QRectF& r : {en_haut, a_gauche})
        peintre.drawPixmap(r, fond_regles_, QRectF(r.topLeft() * d, r.size() * d));
    peindre_curseur(peintre);
}

void VueEchelle::preparer_fonds() {
    const Cadrage voulu{
        size(), centre_, echelle_, devicePixelRatioF(), grille_, palette().cacheKey()};
    if (voulu == cadrage_)
        return;
    cadrage_ = voulu;
    const auto refaire = [&](QPixmap& fond, void (VueEchelle::*peindre_le)(QPainter&) const) {
        fond = QPixmap(size() * voulu.densite);
        fond.setDevicePixelRatio(voulu.densite);
        fond.fill(Qt::transparent);
        QPainter peintre(&fond);
        (this->*peindre_le)(peintre);
    };
    refaire(fond_grille_, &VueEchelle::peindre_grille);
    refaire(fond_regles_, &VueEchelle::peindre_regles);
}

void VueEchelle::peindre_grille(QPainter& peintre) const {
    const double pas = pas_lisible(grille_, echelle_, 7);
    const QPointF a = en_cm({regle, double(height())});
    const QPointF b = en_cm({double(width()), regle});
    peintre.setRenderHint(QPainter::Antialiasing, false);
    const auto crayon = [&](double valeur) {
        const bool forte = std::fmod(std::round(std::fabs(valeur / pas)), 10) == 0;
        peintre.setPen(QPen(QColor(128, 128, 128, forte ? 130 : 60), 0));
    };
    for (int i = premier_pas(a.x(), pas); i * pas <= b.x(); ++i) {
        const double x = i * pas;
        crayon(x);
        const double px = en_pixels(QPointF(x, 0)).x();
        peintre.drawLine(QPointF(px, regle), QPointF(px, height()));
    }
    for (int i = premier_pas(a.y(), pas); i * pas <= b.y(); ++i) {
        const double y = i * pas;
        crayon(y);
        const double py = en_pixels(QPointF(0, y)).y();
        peintre.drawLine(QPointF(regle, py), QPointF(width(), py));
    }
}

void VueEchelle::peindre_regles(QPainter& peintre) const {
    const QPalette& p = palette();
    peintre.setRenderHint(QPainter::Antialiasing, false);
    peintre.fillRect(0, 0, width(), regle, p.color(QPalette::Window));
    peintre.fillRect(0, 0, regle, height(), p.color(QPalette::Window));
    peintre.setPen(p.color(QPalette::WindowText));
    QFont police = font();
    police.setPixelSize(10);
    peintre.setFont(police);
    const double pas = pas_lisible(1, echelle_, 48); // between two numbers
    const double petit = pas / 5;
    const QPointF a = en_cm({regle, double(height())});
    const QPointF b = en_cm({double(width()), regle});
    const auto long_trait = [&](double v) { return std::fabs(std::remainder(v, pas)) < petit / 2; };
    for (int i = premier_pas(a.x(), petit); i * petit <= b.x(); ++i) {
        const double x = i * petit;
        const double px = en_pixels(QPointF(x, 0)).x();
        peintre.drawLine(QPointF(px, long_trait(x) ? regle - 10 : regle - 4),
                         QPointF(px, regle - 1));
        if (long_trait(x))
            peintre.drawText(QRectF(px - 30, 1, 60, 12), Qt::AlignCenter,
                             QString::number(std::lround(x)));
    }
    for (int i = premier_pas(a.y(), petit); i * petit <= b.y(); ++i) {
        const double y = i * petit;
        const double py = en_pixels(QPointF(0, y)).y();
        peintre.drawLine(QPointF(long_trait(y) ? regle - 10 : regle - 4, py),
                         QPointF(regle - 1, py));
        if (!long_trait(y))
            continue;
        peintre.save();
        peintre.translate(7, py);
        peintre.rotate(-90);
        peintre.drawText(QRectF(-30, -6, 60, 12), Qt::AlignCenter, QString::number(std::lround(y)));
        peintre.restore();
    }
    peintre.fillRect(0, 0, regle, regle, p.color(QPalette::Window));
    peintre.drawText(QRect(0, 0, regle, regle), Qt::AlignCenter, "cm");
}

void VueEchelle::peindre_curseur(QPainter& peintre) const {
    peintre.setRenderHint(QPainter::Antialiasing, false);
    peintre.setPen(QPen(palette().color(QPalette::Highlight), 0));
    peintre.drawLine(QPointF(dernier_.x(), 0), QPointF(dernier_.x(), regle));
    peintre.drawLine(QPointF(0, dernier_.y()), QPointF(regle, dernier_.y()));
}

void VueEchelle::resizeEvent(QResizeEvent*) {
    if (ajuste_)
        cadrer();
}

// A gesture belongs to the button that began it; another one gives it up.
void VueEchelle::mousePressEvent(QMouseEvent* evenement) {
    if (bouton_ != Qt::NoButton)
        return couper_le_geste();
    dernier_ = evenement->position();
    const Qt::MouseButton bouton = evenement->button();
    panoramique_ = bouton == Qt::MiddleButton || (espace_ && bouton == Qt::LeftButton);
    if (!panoramique_ && bouton != Qt::LeftButton)
        return;
    bouton_ = bouton;
    if (panoramique_)
        setCursor(Qt::ClosedHandCursor);
    else
        presser(dernier_, evenement->modifiers());
}

void VueEchelle::mouseMoveEvent(QMouseEvent* evenement) {
    const QPointF ici = evenement->position();
    if (bouton_ != Qt::NoButton && !evenement->buttons().testFlag(bouton_))
        couper_le_geste(); // released where nobody told us
    if (bouton_ == Qt::NoButton) {
        survoler(ici);
    } else if (panoramique_) {
        const QPointF ecart = (ici - dernier_) / echelle_;
        centre_ += QPointF(-ecart.x(), ecart.y());
        ajuste_ = false;
    } else {
        glisser(ici, evenement->modifiers());
    }
    dernier_ = ici;
    if (au_deplacement)
        au_deplacement(en_cm(ici));
    update();
}

void VueEchelle::mouseReleaseEvent(QMouseEvent* evenement) {
    if (bouton_ == Qt::NoButton || evenement->button() != bouton_)
        return;
    bouton_ = Qt::NoButton;
    if (panoramique_)
        unsetCursor();
    else
        relacher(evenement->position(), evenement->modifiers());
}

void VueEchelle::couper_le_geste() {
    const bool du_dessin = std::exchange(bouton_, Qt::NoButton) != Qt::NoButton && !panoramique_;
    unsetCursor();
    if (du_dessin)
        abandonner();
}

void VueEchelle::focusOutEvent(QFocusEvent* evenement) {
    espace_ = false;
    if (bouton_ != Qt::NoButton)
        couper_le_geste();
    QWidget::focusOutEvent(evenement);
}

void VueEchelle::wheelEvent(QWheelEvent* evenement) {
    zoomer(std::pow(1.2, evenement->angleDelta().y() / 120.0), evenement->position());
    evenement->accept();
}

void VueEchelle::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Space) {
        espace_ = true;
    } else if (evenement->key() == Qt::Key_Escape) {
        couper_le_geste();
        abandonner();
    } else {
        QWidget::keyPressEvent(evenement);
    }
}

void VueEchelle::keyReleaseEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Space && !evenement->isAutoRepeat())
        espace_ = false;
    else
        QWidget::keyReleaseEvent(evenement);
}
