#include "ui/editeurs/vue_edition.h"

#include "ui/editeurs/formes.h"

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

void VueTirable::peindre_ebauche(QPainter& peintre) const {
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
    const bool outil = outils_.en_main().forme != Outil::Forme::selection;
    // Choosing refreshes the view: the gesture is known afterwards.
    const Geste geste = outil ? Geste::placer : saisir(pixels, avec_les_autres(touches));
    geste_ = geste;
}

void VueTirable::glisser(QPointF pixels, Qt::KeyboardModifiers touches) {
    const Outil& outil = outils_.en_main();
    if (!ebauche_ && !a_tire() && !gestes().loin())
        return;
    if (geste_ == Geste::placer && outil.forme != Outil::Forme::legende)
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
    const Outil outil = outils_.en_main();
    const auto ebauche = std::exchange(ebauche_, std::nullopt);
    const QPointF fin = aimanter(en_cm(pixels), touches);
    if (ebauche && fin != aimanter(en_cm(gestes().depart()), touches)) // else a click that slipped
        ajouter(*ebauche);
    else
        poser(outil, fin);
    if (!touches.testFlag(Qt::ShiftModifier))
        outils_.reposer();
}

void VueTirable::survoler(QPointF pixels) {
    const bool outil = outils_.en_main().forme != Outil::Forme::selection;
    setCursor(outil ? Qt::CrossCursor : curseur(pixels));
}

void VueTirable::abandonner() {
    ebauche_.reset();
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
    outils_.reposer();
    poser(*outil, aimanter(en_cm(evenement->position()), evenement->modifiers()));
}
