#include "ui/editeurs/vue_edition.h"

#include "ui/editeurs/formes.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMimeData>
#include <QPainter>

namespace {

bool avec_les_autres(Qt::KeyboardModifiers touches) {
    return (touches & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
}

} // namespace

VueTirable::VueTirable(Foutil& outils, QWidget* parent) : VueEchelle(parent), outils_(outils) {
    setAcceptDrops(true);
}

bool VueTirable::brise() const {
    return outils_.en_main().forme == Outil::Forme::brisee;
}

bool VueTirable::ferme_la_chaine(QPointF pixels) const {
    constexpr double portee = 8; // logical pixels
    return chaine_.points().size() > 2 &&
           (en_pixels(en_point(chaine_.points().front())) - pixels).manhattanLength() <= portee;
}

void VueTirable::continuer_la_chaine(QPointF pixels, Qt::KeyboardModifiers touches) {
    const bool fermee = ferme_la_chaine(pixels);
    if (chaine_.cliquer(fermee ? chaine_.points().front()
                               : en_vecteur(aimanter(en_cm(pixels), touches))))
        finir_la_chaine();
}

// What cannot be added stays in hand, to be taken back or given up.
void VueTirable::finir_la_chaine() {
    std::vector<Fiche> lignes = chaine_.lignes();
    if (!lignes.empty() && !ajouter(std::move(lignes)))
        return;
    chaine_ = {};
    outils_.reposer();
    update();
}

void VueTirable::peindre_chaine(QPainter& peintre) const {
    QPolygonF points;
    for (const Vecteur cm : chaine_.points())
        points << en_pixels(en_point(cm));
    const QColor teinte = palette().color(QPalette::Highlight);
    const bool ferme = ferme_la_chaine(gestes().ici());
    peintre.setPen(QPen(teinte, 1, Qt::DashLine));
    peintre.drawLine(points.back(), ferme ? points.front() : gestes().ici());
    peintre.setPen(QPen(teinte, 2));
    peintre.drawPolyline(points);
    peintre.setBrush(Qt::white);
    peintre.drawEllipse(points.front(), ferme ? 6 : 4, ferme ? 6 : 4);
}

void VueTirable::peindre_ebauche(QPainter& peintre) const {
    if (!chaine_.vide())
        peindre_chaine(peintre);
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
    if (ebauche_) {
        const Fiche& f = *ebauche_;
        if (f.cle == "LN")
            peintre.drawLine(en_pixels(QPointF(f.v[0], f.v[1])),
                             en_pixels(QPointF(f.v[2], f.v[3])));
        else if (formes::circulaire(f) || f.cle == "LE")
            peintre.drawEllipse(en_pixels(formes::cadre(f)));
        else
            peintre.drawRect(en_pixels(formes::cadre(f)));
    }
    if (geste_ == Geste::cadre)
        peintre.drawRect(QRectF(gestes().depart(), gestes().ici()).normalized());
}

Vecteur VueTirable::ecart(QPointF repere, QPointF pixels, Qt::KeyboardModifiers touches) const {
    return en_vecteur(aimanter(repere + en_cm(pixels) - en_cm(gestes().depart()), touches) -
                      repere);
}

void VueTirable::presser(QPointF pixels, Qt::KeyboardModifiers touches) {
    if (!chaine_.vide() && !brise()) // another tool was taken
        finir_la_chaine();
    const bool outil = outils_.en_main().forme != Outil::Forme::selection;
    // Choosing refreshes the view: the gesture is known afterwards.
    const Geste geste = outil ? Geste::placer : saisir(pixels, avec_les_autres(touches));
    geste_ = geste;
}

void VueTirable::glisser(QPointF pixels, Qt::KeyboardModifiers touches) {
    const Outil& outil = outils_.en_main();
    if (!ebauche_ && !a_tire() && !gestes().loin())
        return;
    if (geste_ == Geste::placer && !brise() && outil.forme != Outil::Forme::legende)
        ebauche_ = Foutil::tracer(outil, aimanter(en_cm(gestes().depart()), touches),
                                  aimanter(en_cm(pixels), touches));
    else if (geste_ == Geste::deplacer || geste_ == Geste::poignee)
        tirer(geste_, pixels, touches);
    update();
}

void VueTirable::relacher(QPointF pixels, Qt::KeyboardModifiers touches) {
    const Geste geste = std::exchange(geste_, Geste::aucun);
    const bool en_plus = avec_les_autres(touches);
    if (geste == Geste::placer)
        return placer(pixels, touches);
    const bool loin = gestes().loin();
    if (a_tire()) {
        garder(geste);
    } else if (geste == Geste::cadre && loin) {
        const QRectF cm = QRectF(en_cm(gestes().depart()), en_cm(pixels)).normalized();
        encadrer({cm.left(), cm.top(), cm.right(), cm.bottom()}, en_plus);
    } else if (geste != Geste::poignee && !loin) {
        cliquer(geste, en_plus);
    }
    update();
}

void VueTirable::placer(QPointF pixels, Qt::KeyboardModifiers touches) {
    if (brise())
        return continuer_la_chaine(pixels, touches);
    const Outil outil = outils_.en_main();
    const auto ebauche = std::exchange(ebauche_, std::nullopt);
    const QPointF fin = aimanter(en_cm(pixels), touches);
    if (ebauche && fin != aimanter(en_cm(gestes().depart()), touches)) // else a click that slipped
        ajouter({*ebauche});
    else
        poser(outil, fin);
    if (!touches.testFlag(Qt::ShiftModifier))
        outils_.reposer();
}

// What a click would, without a mouse; arrows and fields bring it where it belongs.
void VueTirable::placer_au_milieu() {
    const Outil outil = outils_.en_main();
    if (outil.forme == Outil::Forme::selection || outil.forme == Outil::Forme::brisee)
        return;
    outils_.reposer();
    poser(outil, aimanter(en_cm(QRectF(rect()).center()), {}));
}

void VueTirable::survoler(QPointF pixels) {
    const bool outil = outils_.en_main().forme != Outil::Forme::selection;
    setCursor(outil ? Qt::CrossCursor : curseur(pixels));
}

void VueTirable::abandonner() {
    ebauche_.reset();
    chaine_ = {};
    outils_.reposer();
    rafraichir();
}

void VueTirable::dragEnterEvent(QDragEnterEvent* evenement) {
    if (evenement->mimeData()->hasFormat(BoutonOutil::format))
        evenement->acceptProposedAction();
}

void VueTirable::dropEvent(QDropEvent* evenement) {
    const Outil* outil = Foutil::outil(evenement->mimeData()->data(BoutonOutil::format));
    if (outil == nullptr || !accepte(*outil))
        return;
    evenement->acceptProposedAction();
    if (outil->forme == Outil::Forme::brisee) {
        outils_.prendre(*outil);
        return continuer_la_chaine(evenement->position(), evenement->modifiers());
    }
    outils_.reposer();
    poser(*outil, aimanter(en_cm(evenement->position()), evenement->modifiers()));
}

void VueTirable::keyPressEvent(QKeyEvent* evenement) {
    const int touche = evenement->key();
    const bool entree = touche == Qt::Key_Return || touche == Qt::Key_Enter;
    if (entree && chaine_.vide())
        placer_au_milieu();
    else if (entree)
        finir_la_chaine();
    else if (touche == Qt::Key_Backspace && !chaine_.vide())
        chaine_.reprendre();
    else
        VueEchelle::keyPressEvent(evenement);
    update();
}

// The right button also cuts a gesture of the left one, or ends a chain.
void VueTirable::contextMenuEvent(QContextMenuEvent* evenement) {
    if (!chaine_.vide())
        return finir_la_chaine();
    if (QApplication::mouseButtons().testFlag(Qt::LeftButton) || !au_menu)
        return;
    if (evenement->reason() == QContextMenuEvent::Mouse)
        choisir_sous(evenement->pos());
    au_menu(evenement->globalPos());
}
