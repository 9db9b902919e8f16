#include "ui/editeurs/vue_robot.h"

#include "edition/segments_robot.h"
#include "ui/editeurs/formes.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double prise = 7; ///< how near the mouse must be, logical pixels
const QColor teinte_capteur(200, 0, 0);
const QColor teinte_reference(0, 110, 0);
const QColor teinte_roue(110, 110, 110);

QPointF bout(const Fiche& segment, std::size_t k) {
    return {segment.v[2 * k], segment.v[2 * k + 1]};
}

Fiche en_ligne(Fiche segment) {
    segment.cle = "LN";
    return segment;
}

} // namespace

VueRobot::VueRobot(Historique<DocumentRobot>& historique, Foutil& outils, QWidget* parent)
    : VueEchelle(parent), h_(historique), outils_(outils) {
    setObjectName("vueRobot");
    setAccessibleName("Robot à dessiner");
    setAcceptDrops(true);
    regler_grille(1);
}

void VueRobot::rafraichir() {
    provisoire_.reset();
    geste_ = Geste::aucun;
    update();
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
    for (std::size_t i = 0; i < h_.doc().nombre(); ++i)
        if (h_.doc()[i].cle == "R")
            tout = tout.united(formes::cadre(en_ligne(h_.doc()[i])).adjusted(-1, -1, 1, 1));
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
    const QColor choix = palette().color(QPalette::Highlight);
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen(choix, 1, Qt::DashLine));
    if (ebauche_)
        peintre.drawLine(en_pixels(bout(*ebauche_, 0)), en_pixels(bout(*ebauche_, 1)));
    if (geste_ == Geste::cadre)
        peintre.drawRect(QRectF(gestes().depart(), gestes().ici()).normalized());
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
    for (std::size_t i = 0; i < d.nombre(); ++i) {
        if (d[i].cle != "R")
            continue;
        const bool choisi = std::binary_search(s.begin(), s.end(), i);
        peintre.setPen(QPen(choisi ? choix : QColor(Qt::black), choisi ? 3 : 2));
        peintre.drawLine(en_pixels(bout(d[i], 0)), en_pixels(bout(d[i], 1)));
        if (!choisi || s.size() > 1)
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
VueRobot::Geste VueRobot::geste_sous(QPointF pixels) {
    const DocumentRobot& d = h_.doc();
    if (h_.selection().size() == 1 && d[h_.selection().front()].cle == "R") {
        pris_ = h_.selection().front();
        for (bout_ = 0; bout_ < 2; ++bout_)
            if (pres(pixels, bout(d[pris_], bout_)))
                return Geste::bout;
    }
    if (pres(pixels, reference()))
        return Geste::reference;
    if (pres(pixels, extremite()))
        return Geste::extremite;
    for (std::size_t i = d.nombre(); i-- > 0;)
        if (d[i].cle == "R" &&
            formes::touchee(en_ligne(d[i]), en_vecteur(en_cm(pixels)), prise / pixels_par_cm())) {
            pris_ = i;
            return Geste::deplacer;
        }
    if (pres(pixels, roue(-1)) || pres(pixels, roue(1)))
        return Geste::roue;
    return Geste::cadre;
}

void VueRobot::presser(QPointF pixels, Qt::KeyboardModifiers touches) {
    const bool en_plus = (touches & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
    Geste geste = Geste::placer;
    if (outils_.en_main().forme == Outil::Forme::selection) {
        geste = geste_sous(pixels);
        if (geste == Geste::deplacer)
            choisir_sous(en_plus);
        else if (geste == Geste::cadre && !en_plus)
            h_.choisir({});
    }
    geste_ = geste; // choosing refreshes the view
}

void VueRobot::choisir_sous(bool en_plus) {
    Selection s = h_.selection();
    const auto place = std::lower_bound(s.begin(), s.end(), pris_);
    const bool choisi = place != s.end() && *place == pris_;
    if (!en_plus && choisi)
        return;
    if (!en_plus)
        s = {pris_};
    else if (choisi)
        s.erase(place);
    else
        s.insert(place, pris_);
    h_.choisir(s);
}

void VueRobot::glisser(QPointF pixels, Qt::KeyboardModifiers touches) {
    if (!provisoire_ && !ebauche_ && !gestes().loin())
        return;
    const QPointF cm = aimanter(en_cm(pixels), touches);
    if (geste_ == Geste::placer)
        ebauche_ =
            Foutil::tracer(outils_.en_main(), aimanter(en_cm(gestes().depart()), touches), cm);
    else if (DocumentRobot d = h_.doc(); appliquer(d, pixels, touches))
        provisoire_ = std::move(d);
    if (provisoire_)
        au_glissement();
    update();
}

// @returns false when the gesture leaves the robot as it is shown
bool VueRobot::appliquer(DocumentRobot& d, QPointF pixels, Qt::KeyboardModifiers touches) const {
    const Vecteur cm = en_vecteur(aimanter(en_cm(pixels), touches));
    switch (geste_) {
    case Geste::deplacer: {
        const QPointF repere = bout(d[pris_], 0);
        const QPointF ecart =
            aimanter(repere + en_cm(pixels) - en_cm(gestes().depart()), touches) - repere;
        deplacer(d, h_.selection(), en_vecteur(ecart));
        return true;
    }
    case Geste::bout:
        return tirer_bout(d, pris_, bout_, cm); // pulled to nothing, it stays as it was before
    case Geste::reference:
        placer_reference(d, cm);
        return true;
    case Geste::extremite:
        placer_extremite(d, cm);
        return true;
    case Geste::roue:
        placer_roue(d, en_cm(pixels).x());
        return true;
    case Geste::aucun:
    case Geste::placer:
    case Geste::cadre:
        break;
    }
    return false;
}

QString VueRobot::nom_du_geste(Geste geste) const {
    switch (geste) {
    case Geste::reference:
        return "Déplacer le point de référence";
    case Geste::extremite:
        return "Déplacer l'extrémité";
    case Geste::roue:
        return "Changer l'entraxe";
    case Geste::bout:
        return "Tirer un bout";
    default:
        return "Déplacer";
    }
}

void VueRobot::relacher(QPointF pixels, Qt::KeyboardModifiers touches) {
    const Geste geste = std::exchange(geste_, Geste::aucun);
    const Outil& outil = outils_.en_main();
    const bool en_plus = (touches & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
    if (geste == Geste::placer) {
        const auto ebauche = std::exchange(ebauche_, std::nullopt);
        const QPointF fin = aimanter(en_cm(pixels), touches);
        const bool trace = ebauche && fin != aimanter(en_cm(gestes().depart()), touches);
        ajouter(trace ? *ebauche : outils_.creer(outil, fin));
        if (!touches.testFlag(Qt::ShiftModifier))
            outils_.reposer();
    } else if (geste == Geste::cadre) {
        const QRectF r = QRectF(en_cm(gestes().depart()), en_cm(pixels)).normalized();
        Selection s = en_plus ? h_.selection() : Selection{};
        for (const std::size_t i : segments(h_.doc()))
            if (r.contains(bout(h_.doc()[i], 0)) && r.contains(bout(h_.doc()[i], 1)))
                s.push_back(i);
        std::sort(s.begin(), s.end());
        s.erase(std::unique(s.begin(), s.end()), s.end());
        h_.choisir(s);
    } else if (provisoire_) {
        DocumentRobot d = std::move(*provisoire_);
        provisoire_.reset();
        const bool ajoute = d.nombre() != h_.doc().nombre();
        h_.changer(nom_du_geste(geste), std::move(d), ajoute ? Selection{} : h_.selection());
    } else if (geste == Geste::deplacer && !en_plus) { // a click on one of several
        h_.choisir({pris_});
    }
}

void VueRobot::ajouter(Fiche segment) {
    DocumentRobot d = h_.doc();
    try {
        const std::size_t i = creer(d, std::move(segment));
        h_.changer("Ajouter un segment", std::move(d), {i});
    } catch (const ErreurExecution& erreur) {
        update();
        au_refus(erreur.what());
    }
}

void VueRobot::survoler(QPointF pixels) {
    if (outils_.en_main().forme != Outil::Forme::selection)
        return setCursor(Qt::CrossCursor);
    switch (geste_sous(pixels)) {
    case Geste::cadre:
        return setCursor(Qt::ArrowCursor);
    case Geste::deplacer:
        return setCursor(Qt::PointingHandCursor);
    case Geste::roue:
        return setCursor(Qt::SizeHorCursor);
    default:
        return setCursor(Qt::SizeAllCursor);
    }
}

void VueRobot::abandonner() {
    ebauche_.reset();
    outils_.reposer();
    rafraichir();
    au_glissement();
}

void VueRobot::dragEnterEvent(QDragEnterEvent* evenement) {
    if (evenement->mimeData()->hasFormat(BoutonOutil::format))
        evenement->acceptProposedAction();
}

void VueRobot::dropEvent(QDropEvent* evenement) {
    const Outil* outil = Foutil::outil(evenement->mimeData()->data(BoutonOutil::format));
    if (outil == nullptr || outil->cle != std::string_view("LN"))
        return;
    evenement->acceptProposedAction();
    outils_.reposer();
    ajouter(outils_.creer(*outil, aimanter(en_cm(evenement->position()), evenement->modifiers())));
}
