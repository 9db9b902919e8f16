#include "ui/principale/pointeur.h"

#include "draw/robot.h"
#include "draw/silhouette.h"
#include "draw/table.h"
#include "sim/contour.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <utility>

namespace {

constexpr int marge_carte = 6; ///< logical pixels
constexpr double quinze = 15;

// Whole degrees, or fifteens, 0..359.
double cap_entier(double degres, double pas) {
    const double cap = std::round(degres / pas) * pas;
    return cap < 0 ? cap + 360 : cap;
}

} // namespace

Pointeur::Pointeur(Table& table, const Etat& etat) : QWidget(&table), table_(table), e_(etat) {
    setObjectName("position_pointeur");
    setAccessibleName("Position du pointeur");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    table.setMouseTracking(true);
    table.installEventFilter(this);
}

QString Pointeur::position() const {
    if (!lieu_)
        return {};
    const PointTable p = table_.repere().lieu(*lieu_);
    return QString("%1 ; %2").arg(std::lround(p.x)).arg(std::lround(p.y));
}

void Pointeur::noter(QPointF pixel) {
    const bool arrive = !lieu_;
    lieu_ = pixel;
    ecrire();
    if (arrive && au_passage)
        au_passage();
}

void Pointeur::quitter() {
    if (!lieu_)
        return;
    lieu_.reset();
    ecrire();
    if (au_passage)
        au_passage();
}

void Pointeur::ecrire() {
    update(carte_);
    texte_.clear();
    if (tire()) {
        const Pose p = pose();
        texte_ = QString("x = %1 cm, y = %2 cm, cap = %3°").arg(p.x).arg(p.y).arg(p.cap);
    } else if (lieu_) {
        const PointTable p = table_.repere().lieu(*lieu_);
        texte_ = QString("x = %1 cm, y = %2 cm").arg(std::lround(p.x)).arg(std::lround(p.y));
    }
    setAccessibleDescription(texte_);
    carte_ = carte();
    update(carte_);
}

// At the left, or at the right while the pointer is there.
QRect Pointeur::carte() const {
    if (texte_.isEmpty())
        return {};
    const QFontMetrics lettres = fontMetrics();
    QRect r(0, 0, lettres.horizontalAdvance(texte_) + 2 * marge_carte,
            lettres.height() + marge_carte);
    r.moveBottomLeft({marge_carte, height() - marge_carte - 1});
    if (lieu_ && r.adjusted(-20, -20, 20, 20).contains(lieu_->toPoint()))
        r.moveRight(width() - marge_carte - 1);
    return r;
}

bool Pointeur::eventFilter(QObject*, QEvent* evenement) {
    if (evenement->type() == QEvent::Resize)
        resize(table_.size());
    return isVisible() && traiter(evenement);
}

bool Pointeur::traiter(QEvent* evenement) {
    switch (evenement->type()) {
    case QEvent::MouseMove:
        bouger(*static_cast<QMouseEvent*>(evenement));
        return false;
    case QEvent::MouseButtonPress:
        return presser(*static_cast<QMouseEvent*>(evenement));
    case QEvent::MouseButtonRelease:
        return relacher(*static_cast<QMouseEvent*>(evenement));
    case QEvent::KeyPress:
        return static_cast<QKeyEvent*>(evenement)->key() == Qt::Key_Escape && couper();
    case QEvent::FocusOut:
    case QEvent::Hide:
        couper();
        return false;
    case QEvent::Leave:
        quitter();
        return false;
    default:
        return false;
    }
}

bool Pointeur::presser(const QMouseEvent& evenement) {
    if (gestes_.en_cours()) { // another button
        couper();
        return true;
    }
    avale_ = false;
    robot_ = robot_a_placer && evenement.button() == Qt::LeftButton ? robot_a_placer() : 0;
    if (robot_ != 0)
        gestes_.presser(evenement.button(), evenement.position());
    return false;
}

void Pointeur::bouger(const QMouseEvent& evenement) {
    par_quinze_ = evenement.modifiers().testFlag(Qt::ShiftModifier);
    if (gestes_.en_cours()) {
        if (gestes_.bouger(evenement.buttons(), evenement.position()) == Gestes::Suite::abandonner)
            robot_ = 0;
        update();
    }
    noter(evenement.position());
}

bool Pointeur::relacher(const QMouseEvent& evenement) {
    if (!gestes_.en_cours())
        return std::exchange(avale_, false);
    gestes_.bouger(evenement.button(), evenement.position());
    const bool propose = tire();
    const Pose voulue = pose();
    gestes_.relacher(evenement.button(), evenement.position());
    robot_ = 0;
    noter(evenement.position());
    update();
    if (propose)
        proposer(voulue);
    return propose;
}

// The drag is given up. @returns false when there was none
bool Pointeur::couper() {
    if (!gestes_.en_cours())
        return false;
    gestes_.couper();
    robot_ = 0;
    avale_ = true;
    ecrire();
    update();
    return true;
}

Pose Pointeur::pose() const {
    const PointTable a = table_.repere().lieu(gestes_.depart());
    const PointTable b = table_.repere().lieu(gestes_.ici());
    const double cap =
        cap_entier(std::atan2(b.y - a.y, b.x - a.x) * 180 / Pi, par_quinze_ ? quinze : 1);
    return {static_cast<float>(std::round(a.x)), static_cast<float>(std::round(a.y)),
            static_cast<float>(std::fmod(cap, 360))};
}

void Pointeur::peindre_depart(QPainter& peintre) const {
    const Pose p = pose();
    SurfaceQt surface(peintre, size());
    surface.coordonnees(-marge_table, e_.YMax + marge_table, e_.XMax + marge_table, -marge_table);
    Silhouette(e_, robot_).peindre(p.x, p.y, p.cap, surface);
    surface.epaisseur(2);
    peindre_contour(Contour(e_, robot_), p.x, p.y, p.cap, surface);
    peintre.setPen(QPen(Qt::white, 1, Qt::DashLine));
    peintre.drawLine(gestes_.depart(), gestes_.ici());
}

void Pointeur::paintEvent(QPaintEvent*) {
    if (texte_.isEmpty())
        return;
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    if (tire())
        peindre_depart(peintre);
    peintre.setOpacity(1);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(QColor(0, 0, 0, 190));
    peintre.setFont(font());
    peintre.drawRoundedRect(carte_, 4, 4);
    peintre.setPen(Qt::white);
    peintre.drawText(carte_, Qt::AlignCenter, texte_);
}
