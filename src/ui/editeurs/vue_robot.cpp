#include "ui/editeurs/vue_robot.h"

#include "edition/segments_robot.h"
#include "ui/editeurs/cotes_robot.h"
#include "ui/editeurs/formes.h"

#include <QPainter>

namespace {

constexpr double prise = 7; ///< how near the mouse must be, logical pixels
const QColor teinte_capteur(200, 0, 0);
const QColor teinte_reference(0, 110, 0);
const QColor teinte_roue(110, 110, 110);

QPointF bout(const Fiche& segment, std::size_t k) {
    return {segment.v[2 * k], segment.v[2 * k + 1]};
}

} // namespace

VueRobot::VueRobot(Historique<DocumentRobot>& historique, Foutil& outils, QWidget* parent)
    : VueEdition(historique, outils, parent) {
    setObjectName("vueRobot");
    setAccessibleName("Robot à dessiner");
    regler_grille(1);
}

QPointF VueRobot::reference() const {
    const auto a = montre().valeurs("A");
    return {a[0], a[1]};
}

QPointF VueRobot::extremite() const {
    const auto e = montre().valeurs("E");
    return {e[0], e[1]};
}

QPointF VueRobot::roue(int cote) const {
    return reference() + QPointF(cote * double(montre().valeurs("A")[2]) / 2, 0);
}

QRectF VueRobot::etendue() const {
    QRectF tout(reference() - QPointF(5, 5), QSizeF(10, 10));
    for (const std::size_t i : segments(h_.doc()))
        tout = tout.united(formes::cadre(h_.doc()[i]).adjusted(-1, -1, 1, 1));
    const auto contenir = [&](QPointF p) {
        tout = tout.united(QRectF(p - QPointF(1, 1), QSizeF(2, 2)));
    };
    for (const QPointF p : {extremite(), roue(-1), roue(1)})
        contenir(p);
    return tout.adjusted(-3, -3, 3, 3);
}

void VueRobot::peindre(QPainter& peintre) {
    peintre.fillRect(rect(), Qt::white);
}

void VueRobot::peindre_dessus(QPainter& peintre) {
    peindre_reperes(peintre);
    peindre_segments(peintre);
    peindre_cote(peintre, *this, montre(), expliquee_);
    peindre_ebauche(peintre);
}

void VueRobot::expliquer(const QString& mesure) {
    expliquee_ = mesure.toStdString();
    update();
}

void VueRobot::peindre_reperes(QPainter& peintre) const {
    const QPointF a = en_pixels(reference());
    // The axis that the mirror turns about.
    peintre.setPen(QPen(teinte_reference, 1, Qt::DashDotLine));
    peintre.drawLine(QPointF(a.x(), 0), QPointF(a.x(), height()));
    peintre.setPen(QPen(teinte_roue, 1));
    peintre.setBrush(QColor(110, 110, 110, 120));
    for (const int cote : {-1, 1})
        peintre.drawRoundedRect(en_pixels(QRectF(roue(cote) - QPointF(0.75, 3), QSizeF(1.5, 6))), 3,
                                3);
    const QPointF b = en_pixels(extremite());
    peintre.setPen(QPen(teinte_capteur, 1.5));
    peintre.drawLine(a, b);
    peintre.setBrush(Qt::white);
    peintre.drawEllipse(b, 5, 5);
    peintre.drawText(b + QPointF(8, -6), "Extrémité");
    peintre.setPen(QPen(teinte_reference, 1.5));
    peintre.drawEllipse(a, 6, 6);
    peintre.drawLine(a - QPointF(9, 0), a + QPointF(9, 0));
    peintre.drawLine(a - QPointF(0, 9), a + QPointF(0, 9));
    peintre.drawText(a + QPointF(10, 18), "Référence");
}

void VueRobot::peindre_segments(QPainter& peintre) const {
    const DocumentRobot& d = montre();
    const Selection& s = h_.selection();
    const QColor choix = palette().color(QPalette::Highlight);
    for (const std::size_t i : segments(d)) {
        const bool pris = choisi(s, i);
        peintre.setPen(QPen(pris ? choix : QColor(Qt::black), pris ? 3 : 2));
        peintre.drawLine(en_pixels(bout(d[i], 0)), en_pixels(bout(d[i], 1)));
        if (!pris || s.size() > 1)
            continue;
        peintre.setPen(QPen(choix, 1));
        peintre.setBrush(Qt::white);
        for (const std::size_t k : {0U, 1U})
            peintre.drawRect(QRectF(en_pixels(bout(d[i], k)) - QPointF(4, 4), QSizeF(8, 8)));
    }
}

bool VueRobot::pres(QPointF pixels, QPointF cm) const {
    return (en_pixels(cm) - pixels).manhattanLength() <= prise + 2;
}

// The chosen segment's ends first, then the marks, then the segments.
VueRobot::Prise VueRobot::prise_sous(QPointF pixels) const {
    const DocumentRobot& d = h_.doc();
    const Choix& s = h_.selection();
    if (s.size() == 1 && d[s.front()].cle == "R")
        for (const std::size_t k : {0U, 1U})
            if (pres(pixels, bout(d[s.front()], k)))
                return {Geste::poignee, s.front(), Poignee::bout, k};
    if (pres(pixels, reference()))
        return {Geste::poignee, 0, Poignee::reference};
    if (pres(pixels, extremite()))
        return {Geste::poignee, 0, Poignee::extremite};
    if (const auto i = objet_sous(pixels))
        return {Geste::deplacer, *i};
    if (pres(pixels, roue(-1)) || pres(pixels, roue(1)))
        return {Geste::poignee, 0, Poignee::roue};
    return {};
}

// A segment is chosen, and what is chosen forgotten, as soon as it is pressed.
VueRobot::Geste VueRobot::saisir(QPointF pixels, bool en_plus) {
    prise_ = prise_sous(pixels);
    pris_ = prise_.segment;
    sous_.reset();
    if (prise_.geste == Geste::deplacer) {
        sous_ = pris_;
        if (en_plus || !choisi(h_.selection(), pris_))
            h_.choisir(apres_clic(h_.selection(), pris_, en_plus));
    } else if (prise_.geste == Geste::cadre && !en_plus) {
        h_.choisir({});
    }
    return prise_.geste;
}

// @returns false when the gesture leaves the robot as it is shown
bool VueRobot::tirer_poignee(DocumentRobot& d, QPointF pixels,
                             Qt::KeyboardModifiers touches) const {
    const Vecteur cm = en_vecteur(aimanter(en_cm(pixels), touches));
    switch (prise_.poignee) {
    case Poignee::bout:
        return tirer_bout(d, pris_, prise_.bout,
                          cm); // pulled to nothing, it stays as it was before
    case Poignee::reference:
        placer_reference(d, cm);
        return true;
    case Poignee::extremite:
        placer_extremite(d, cm);
        return true;
    case Poignee::roue:
        placer_roue(d, en_cm(pixels).x());
        return true;
    }
    return false;
}

QString VueRobot::nom_du_geste(Geste geste) const {
    if (geste != Geste::poignee)
        return "Déplacer";
    switch (prise_.poignee) {
    case Poignee::reference:
        return "Déplacer le point de référence";
    case Poignee::extremite:
        return "Déplacer l'extrémité";
    case Poignee::roue:
        return "Changer l'entraxe";
    case Poignee::bout:
        break;
    }
    return "Tirer un bout";
}

// With another key held, the press has done it all.
void VueRobot::cliquer(Geste geste, bool en_plus) {
    if (geste == Geste::deplacer && !en_plus) // of one of several
        VueEdition::cliquer(geste, en_plus);
}

Choix VueRobot::dans(const Bornes& cm) const {
    return segments_dans(h_.doc(), cm);
}

std::optional<std::size_t> VueRobot::objet_sous(QPointF pixels) const {
    return segment_sous(h_.doc(), en_vecteur(en_cm(pixels)), prise / pixels_par_cm());
}

bool VueRobot::accepte(const Outil& outil) const {
    return outil.cle == std::string_view("LN");
}

void VueRobot::poser(const Outil& outil, QPointF cm) {
    ajouter({outils_.creer(outil, cm)});
}

Qt::CursorShape VueRobot::curseur(QPointF pixels) const {
    const Prise p = prise_sous(pixels);
    if (p.geste == Geste::cadre)
        return Qt::ArrowCursor;
    if (p.geste == Geste::deplacer)
        return Qt::PointingHandCursor;
    return p.poignee == Poignee::roue ? Qt::SizeHorCursor : Qt::SizeAllCursor;
}

void VueRobot::abandonner() {
    VueEdition::abandonner();
    au_glissement();
}
