#include "ui/verdict/vue_frise.h"

#include "analyse/phrases.h"
#include "ui/commun/boites.h"
#include "ui/commun/style.h"
#include "ui/verdict/frise_accessible.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr double echelle_min = 1; ///< logical pixels per second
constexpr double echelle_max = 2000;
constexpr double marge_du_match = 12; ///< beside the whole match
constexpr int demi_curseur = 8;

} // namespace

VueFrise::VueFrise(const Deroulement& d, QWidget* parent)
    : QWidget(parent), d_(d), axe_(echelle_min, echelle_max) {
    rendre_la_frise_accessible(); // before a name asks for what speaks of it
    setObjectName("frise");
    setAccessibleName("Frise du match");
    setAccessibleDescription("Une piste par robot, un segment par action");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void VueFrise::dire(const QString& lecture) {
    lecture_ = lecture;
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent change(this, d_.temps() / 100.0);
    QAccessible::updateAccessibility(&change);
}

DispositionFrise VueFrise::places() const {
    return {size(), contenu_.analyse == nullptr ? 1 : contenu_.analyse->match.NbRobot};
}

QSize VueFrise::sizeHint() const {
    return {700, DispositionFrise::hauteur(places().robots, DispositionFrise::piste_usuelle)};
}

QSize VueFrise::minimumSizeHint() const {
    return {300, DispositionFrise::hauteur(places().robots, DispositionFrise::piste_min)};
}

void VueFrise::montrer(const Etat& e, const Analyse& a, std::vector<MarqueFrise> marques) {
    contenu_.analyse = &a;
    contenu_.marques = std::move(marques);
    contenu_.robot = std::clamp(contenu_.robot, 1, a.match.NbRobot);
    etat_ = &e;
    vue_changee();
    updateGeometry();
    if (ajustee_)
        ajuster();
}

void VueFrise::choisir_robot(int robot) {
    contenu_.robot = robot;
    update();
}

void VueFrise::vue_changee() {
    ++version_;
    update();
}

void VueFrise::ajuster() {
    ajustee_ = true;
    if (contenu_.analyse != nullptr)
        axe_.ajuster(0, etendue(contenu_.analyse->match) / 100.0, marge_du_match);
    update();
}

void VueFrise::zoomer(double facteur) {
    ajustee_ = false;
    axe_.zoomer(facteur, pixel(d_.temps()));
    update();
}

QRect VueFrise::bande_du_curseur(std::int32_t temps) const {
    return {static_cast<int>(pixel(temps)) - demi_curseur, 0, 2 * demi_curseur + 1, height()};
}

void VueFrise::suivre_le_curseur() {
    update(bande_du_curseur(montre_));
    montre_ = d_.temps();
    update(bande_du_curseur(montre_));
}

void VueFrise::faire_voir_le_curseur() {
    const QRect t = places().temps();
    const double x = pixel(d_.temps());
    if (x >= t.left() && x <= t.right())
        return;
    axe_.glisser(t.left() + t.width() / 4.0 - x);
    ajustee_ = false;
    update();
}

void VueFrise::resizeEvent(QResizeEvent*) {
    const QRect t = places().temps();
    axe_.poser(t.left(), t.right() + 1);
    if (ajustee_)
        ajuster();
}

void VueFrise::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(this);
    if (contenu_.analyse == nullptr)
        return peintre.fillRect(rect(), palette().window());
    const QPixmap& fond = fond_.image(*this, {axe_, version_, contenu_.robot}, [this](QPainter& p) {
        peindre_frise(p, contenu_, places(), axe_, palette());
    });
    const double densite = fond.devicePixelRatio();
    for (const QRect& r : evenement->region())
        peintre.drawPixmap(QRectF(r), fond,
                           QRectF(QPointF(r.topLeft()) * densite, QSizeF(r.size()) * densite));
    peintre.setClipRect(places().temps());
    peindre_boucle(peintre);
    peindre_curseur(peintre);
    if (hasFocus()) {
        peintre.setClipping(false);
        peintre.setPen(palette().color(QPalette::Highlight));
        peintre.setBrush(Qt::NoBrush);
        peintre.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void VueFrise::peindre_boucle(QPainter& peintre) const {
    const QRect t = places().temps();
    const QColor teinte = palette().color(QPalette::Highlight);
    const auto borne = [&](std::optional<std::int32_t> temps, const char* nom, int decalage) {
        if (!temps)
            return;
        const double x = pixel(*temps);
        peintre.setPen(QPen(teinte, 2));
        peintre.drawLine(QPointF(x, 0), QPointF(x, t.bottom()));
        const QRectF drapeau(x + decalage, 0, 12, 12);
        peintre.fillRect(drapeau, teinte);
        peintre.setPen(palette().color(QPalette::HighlightedText));
        peintre.drawText(drapeau, Qt::AlignCenter, nom);
    };
    QFont petite = style::petite_police(font());
    petite.setBold(true);
    peintre.setFont(petite);
    if (d_.fin_boucle()) {
        const double gauche = pixel(d_.debut_boucle().value_or(0));
        QColor voile = teinte;
        voile.setAlpha(60);
        peintre.fillRect(QRectF(gauche, 0, pixel(*d_.fin_boucle()) - gauche, epaisseur_regle),
                         voile);
    }
    borne(d_.debut_boucle(), "A", 0);
    borne(d_.fin_boucle(), "B", -12);
}

// A dark line with light edges: seen on any action and any ground.
void VueFrise::peindre_curseur(QPainter& peintre) const {
    const double x = std::floor(pixel(d_.temps()));
    const QRect t = places().temps();
    peintre.fillRect(QRectF(x - 1, 0, 3, t.height()), palette().color(QPalette::Base));
    peintre.fillRect(QRectF(x, 0, 1, t.height()), palette().color(QPalette::Text));
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(palette().color(QPalette::Base), 1));
    peintre.setBrush(palette().color(QPalette::Text));
    const double c = x + 0.5;
    const double y = epaisseur_regle;
    peintre.drawPolygon(
        QPolygonF({{c - 6, y - 10}, {c + 6, y - 10}, {c + 6, y - 6}, {c, y}, {c - 6, y - 6}}));
}

void VueFrise::suivre(Gestes::Suite suite) {
    using Suite = Gestes::Suite;
    switch (suite) {
    case Suite::rien:
    case Suite::survoler:
    case Suite::relacher:
        return;
    case Suite::presser:
        return prendre();
    case Suite::glisser:
        return mettre_le_curseur();
    case Suite::abandonner:
        return au_curseur(avant_);
    case Suite::prendre_la_vue:
        return setCursor(Qt::ClosedHandCursor);
    case Suite::deplacer_la_vue:
        axe_.glisser(gestes_.ecart().x());
        ajustee_ = false;
        return update();
    case Suite::lacher_la_vue:
        return unsetCursor();
    }
}

void VueFrise::prendre() {
    avant_ = d_.temps();
    if (const int robot = places().robot_en(gestes_.ici().y()))
        au_robot(robot);
    if (places().temps().contains(gestes_.ici().toPoint()))
        mettre_le_curseur();
}

void VueFrise::mettre_le_curseur() {
    au_curseur(static_cast<std::int32_t>(std::lround(axe_.valeur(gestes_.ici().x()) * 100)));
}

void VueFrise::mousePressEvent(QMouseEvent* evenement) {
    if (contenu_.analyse != nullptr)
        suivre(gestes_.presser(evenement->button(), evenement->position()));
}

void VueFrise::mouseMoveEvent(QMouseEvent* evenement) {
    suivre(gestes_.bouger(evenement->buttons(), evenement->position()));
}

void VueFrise::mouseReleaseEvent(QMouseEvent* evenement) {
    suivre(gestes_.relacher(evenement->button(), evenement->position()));
}

// Its first click has put the cursor there.
void VueFrise::mouseDoubleClickEvent(QMouseEvent* evenement) {
    if (evenement->button() != Qt::LeftButton || contenu_.analyse == nullptr)
        return;
    if (const ActionJouee* const action = action_en(evenement->position()))
        return au_segment(places().robot_en(evenement->position().y()), action->numero);
    au_curseur(avant_);
    ajuster();
}

void VueFrise::wheelEvent(QWheelEvent* evenement) {
    ajustee_ = false;
    axe_.zoomer(std::pow(1.2, evenement->angleDelta().y() / 120.0), evenement->position().x());
    update();
    evenement->accept();
}

void VueFrise::keyPressEvent(QKeyEvent* evenement) {
    const int sens = evenement->key() == Qt::Key_Down ? 1 : evenement->key() == Qt::Key_Up ? -1 : 0;
    if (sens != 0 && evenement->modifiers() == Qt::NoModifier)
        au_robot(std::clamp(contenu_.robot + sens, 1, places().robots));
    else if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        modifier_au_curseur();
    else if (evenement->key() == Qt::Key_Escape && gestes_.en_cours())
        suivre(gestes_.couper());
    else
        QWidget::keyPressEvent(evenement);
}

// As a double click on its segment does.
void VueFrise::modifier_au_curseur() {
    if (contenu_.analyse == nullptr)
        return;
    if (const ActionJouee* const action =
            action_au(contenu_.analyse->match, contenu_.robot, d_.temps()))
        au_segment(contenu_.robot, action->numero);
}

void VueFrise::focusOutEvent(QFocusEvent* evenement) {
    suivre(gestes_.couper());
    QWidget::focusOutEvent(evenement);
}

const ActionJouee* VueFrise::action_en(QPointF pixels) const {
    const int robot = places().robot_en(pixels.y());
    if (robot == 0 || !places().temps().contains(pixels.toPoint()))
        return nullptr;
    return action_au(contenu_.analyse->match, robot,
                     static_cast<std::int32_t>(std::lround(axe_.valeur(pixels.x()) * 100)));
}

QString VueFrise::bulle(QPointF pixels) const {
    constexpr double portee = 6;
    const int robot = places().robot_en(pixels.y());
    QStringList lignes;
    if (const ActionJouee* action = action_en(pixels)) {
        const std::int32_t fin = fin_montree(contenu_.analyse->match, *action);
        const auto genre = nom_du_genre(genre_de(*action));
        lignes << texte_qt("Robot " + std::to_string(robot) + ", " +
                           description(*etat_, robot, *action))
               << texte_qt(std::string(genre) + ", de " + secondes(action->debut) + " à " +
                           secondes(fin))
               << texte_qt("à la fin : " + texte_pose(action->apres));
    }
    for (const MarqueFrise& m : contenu_.marques)
        if (m.robot == robot && std::fabs(pixel(m.temps) - pixels.x()) < portee)
            lignes << "Constat à " + texte_qt(secondes(m.temps)) + " : " + m.texte;
    return lignes.join('\n');
}

bool VueFrise::event(QEvent* evenement) {
    if (evenement->type() != QEvent::ToolTip || contenu_.analyse == nullptr)
        return QWidget::event(evenement);
    const auto* aide = static_cast<const QHelpEvent*>(evenement);
    QToolTip::showText(aide->globalPos(), bulle(aide->pos()), this);
    return true;
}
