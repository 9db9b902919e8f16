#include "ui/commun/vue_echelle.h"

#include "ui/commun/graduations.h"
#include "ui/commun/surface_qt.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <optional>

namespace {

constexpr double echelle_min = 0.05; ///< logical pixels per cm
constexpr double echelle_max = 80;
constexpr double facteur_de_touche = 1.25;

/// What a key does to what is seen.
struct Regard {
    double facteur = 1; ///< 0: the whole drawing
    QPointF ecart = {}; ///< logical pixels
};

std::optional<QPointF> sens_de(int fleche) {
    switch (fleche) {
    case Qt::Key_Left:
        return QPointF(1, 0);
    case Qt::Key_Right:
        return QPointF(-1, 0);
    case Qt::Key_Up:
        return QPointF(0, 1);
    case Qt::Key_Down:
        return QPointF(0, -1);
    default:
        return std::nullopt;
    }
}

// These are the view's that has the keyboard, whatever its window does with them.
std::optional<Regard> regard(const QKeyEvent& touche) {
    constexpr double pas = 40;
    const auto avec = touche.modifiers() & ~Qt::KeypadModifier;
    if (touche.matches(QKeySequence::ZoomIn))
        return Regard{facteur_de_touche};
    if (touche.matches(QKeySequence::ZoomOut))
        return Regard{1 / facteur_de_touche};
    if (avec == Qt::ControlModifier && touche.key() == Qt::Key_0)
        return Regard{0};
    const auto sens = sens_de(touche.key());
    if (sens && avec == (Qt::ControlModifier | Qt::ShiftModifier))
        return Regard{1, *sens * pas};
    return std::nullopt;
}

// And these where the window leaves them.
std::optional<Regard> regard_simple(const QKeyEvent& touche) {
    if ((touche.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0)
        return std::nullopt;
    if (touche.key() == Qt::Key_Plus)
        return Regard{facteur_de_touche};
    return touche.key() == Qt::Key_Minus ? std::optional(Regard{1 / facteur_de_touche})
                                         : std::nullopt;
}

} // namespace

VueEchelle::VueEchelle(QWidget* parent) : QWidget(parent), camera_(echelle_min, echelle_max) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(240, 200);
}

void VueEchelle::regler_grille(int pas) {
    grille_ = pas;
    update();
}

void VueEchelle::montrer_grille(bool oui) {
    grille_montree_ = oui;
    update();
}

void VueEchelle::ajuster() {
    cadrer();
    update();
}

void VueEchelle::cadrer() {
    constexpr double marge = 14;
    camera_.poser(QRectF(rect()).adjusted(epaisseur_regle, epaisseur_regle, 0, 0));
    camera_.ajuster(etendue(), marge);
}

void VueEchelle::zoomer(double facteur, QPointF autour) {
    camera_.zoomer(facteur, autour);
    update();
}

void VueEchelle::faire_voir(QPointF cm) {
    constexpr int marge = 30;
    const QRectF vue = QRectF(rect()).adjusted(epaisseur_regle, epaisseur_regle, 0, 0);
    if (vue.adjusted(marge, marge, -marge, -marge).contains(en_pixels(cm)))
        return;
    camera_.glisser(vue.center() - en_pixels(cm));
    update();
}

QPointF VueEchelle::aimanter(QPointF cm, Qt::KeyboardModifiers touches) const {
    const double pas = grille_ == 0 || !accroche_ || sans_grille(touches) ? 1 : grille_;
    return {std::round(cm.x() / pas) * pas, std::round(cm.y() / pas) * pas};
}

void VueEchelle::orienter(SurfaceQt& surface) const {
    const QPointF haut_gauche = en_cm({0, 0});
    const QPointF bas_droite = en_cm({double(width()), double(height())});
    surface.coordonnees(haut_gauche.x(), haut_gauche.y(), bas_droite.x(), bas_droite.y());
}

void VueEchelle::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.fillRect(rect(), palette().color(QPalette::Dark));
    peindre(peintre);
    if (grille_ > 0 && grille_montree_)
        peintre.drawPixmap(0, 0, fond_grille_.image(*this, {camera_, grille_}, [this](QPainter& p) {
            peindre_grille(p, camera_, grille_, size());
        }));
    peintre.setRenderHint(QPainter::Antialiasing);
    peindre_dessus(peintre);
    const QPixmap& regles =
        fond_regles_.image(*this, camera_, [this](QPainter& p) { peindre_regles(p); });
    const double d = regles.devicePixelRatio();
    const QRectF en_haut(0, 0, width(), epaisseur_regle);
    const QRectF a_gauche(0, 0, epaisseur_regle, height());
    for (const QRectF& r : {en_haut, a_gauche})
        peintre.drawPixmap(r, regles, QRectF(r.topLeft() * d, r.size() * d));
    peindre_curseur(peintre);
}

void VueEchelle::peindre_regles(QPainter& peintre) const {
    peindre_regle(peintre, camera_.x(), Qt::Horizontal, width(), palette(), font());
    peindre_regle(peintre, camera_.y(), Qt::Vertical, height(), palette(), font());
    const QRect coin(0, 0, epaisseur_regle, epaisseur_regle);
    peintre.fillRect(coin, palette().color(QPalette::Window));
    peintre.drawText(coin, Qt::AlignCenter, "cm");
}

void VueEchelle::peindre_curseur(QPainter& peintre) const {
    const QPointF ici = gestes_.ici();
    peintre.setRenderHint(QPainter::Antialiasing, false);
    peintre.setPen(QPen(palette().color(QPalette::Highlight), 0));
    peintre.drawLine(QPointF(ici.x(), 0), QPointF(ici.x(), epaisseur_regle));
    peintre.drawLine(QPointF(0, ici.y()), QPointF(epaisseur_regle, ici.y()));
}

void VueEchelle::resizeEvent(QResizeEvent*) {
    camera_.poser(QRectF(rect()).adjusted(epaisseur_regle, epaisseur_regle, 0, 0));
    if (camera_.ajustee())
        cadrer();
}

void VueEchelle::suivre(Gestes::Suite suite, Qt::KeyboardModifiers touches) {
    using Suite = Gestes::Suite;
    switch (suite) {
    case Suite::rien:
        return;
    case Suite::survoler:
        return survoler(gestes_.ici());
    case Suite::presser:
        return presser(gestes_.ici(), touches);
    case Suite::glisser:
        return glisser(gestes_.ici(), touches);
    case Suite::relacher:
        return relacher(gestes_.ici(), touches);
    case Suite::abandonner:
        unsetCursor();
        return abandonner();
    case Suite::prendre_la_vue:
        return setCursor(Qt::ClosedHandCursor);
    case Suite::deplacer_la_vue:
        return camera_.glisser(gestes_.ecart());
    case Suite::lacher_la_vue:
        return unsetCursor();
    }
}

void VueEchelle::mousePressEvent(QMouseEvent* evenement) {
    suivre(gestes_.presser(evenement->button(), evenement->position()), evenement->modifiers());
}

void VueEchelle::mouseMoveEvent(QMouseEvent* evenement) {
    suivre(gestes_.bouger(evenement->buttons(), evenement->position()), evenement->modifiers());
    if (au_deplacement)
        au_deplacement(en_cm(evenement->position()));
    update();
}

void VueEchelle::mouseReleaseEvent(QMouseEvent* evenement) {
    suivre(gestes_.relacher(evenement->button(), evenement->position()), evenement->modifiers());
}

void VueEchelle::focusOutEvent(QFocusEvent* evenement) {
    gestes_.tenir_espace(false);
    suivre(gestes_.couper());
    QWidget::focusOutEvent(evenement);
}

void VueEchelle::wheelEvent(QWheelEvent* evenement) {
    zoomer(std::pow(1.2, evenement->angleDelta().y() / 120.0), evenement->position());
    evenement->accept();
}

bool VueEchelle::event(QEvent* evenement) {
    if (evenement->type() == QEvent::ShortcutOverride &&
        regard(*static_cast<QKeyEvent*>(evenement)))
        evenement->accept();
    return QWidget::event(evenement);
}

void VueEchelle::keyPressEvent(QKeyEvent* evenement) {
    auto vers = regard(*evenement);
    if (!vers)
        vers = regard_simple(*evenement);
    if (vers) {
        if (vers->facteur == 0)
            return ajuster();
        camera_.glisser(vers->ecart);
        zoomer(vers->facteur, QRectF(rect()).center());
    } else if (evenement->key() == Qt::Key_Space) {
        gestes_.tenir_espace(true);
    } else if (evenement->key() == Qt::Key_Escape) {
        suivre(gestes_.couper());
        abandonner(); // the tool in hand too
    } else {
        QWidget::keyPressEvent(evenement);
    }
}

void VueEchelle::keyReleaseEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Space && !evenement->isAutoRepeat())
        gestes_.tenir_espace(false);
    else
        QWidget::keyReleaseEvent(evenement);
}
