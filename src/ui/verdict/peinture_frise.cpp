#include "ui/verdict/peinture_frise.h"

#include "draw/couleurs_robots.h"
#include "ui/commun/boites.h"
#include "ui/commun/style.h"
#include "ui/commun/surface_qt.h"

#include <QPainter>
#include <QPalette>

#include <array>

namespace {

constexpr int bord = 2; ///< of an action within its lane

/// How a kind of action looks: a colour that the colour-blind tell apart too, and a pattern for
/// whoever sees none.
struct Aspect {
    actions::Genre genre;
    QColor fond;
    Qt::BrushStyle trame;
};
const std::array<Aspect, 5> aspects{
    {{actions::Genre::droit, {86, 180, 233}, Qt::NoBrush},
     {actions::Genre::rotation, {230, 159, 0}, Qt::Dense6Pattern},
     {actions::Genre::arc, {40, 180, 135}, Qt::HorPattern},
     {actions::Genre::balise, {214, 140, 185}, Qt::DiagCrossPattern},
     {actions::Genre::pause, {222, 222, 222}, Qt::BDiagPattern}}};
const QColor encre(20, 20, 20);
const QColor couleur_marque(176, 0, 32);

const Aspect& aspect(actions::Genre genre) {
    for (const Aspect& a : aspects)
        if (a.genre == genre)
            return a;
    return aspects.back();
}

// The pattern along the lower edge, where it leaves the text alone; all over a pause.
void peindre_case(QPainter& p, const QRectF& r, const Aspect& a) {
    p.fillRect(r, a.fond);
    const bool pause = a.genre == actions::Genre::pause;
    const double h = pause ? r.height() : std::min(5.0, r.height() / 3);
    p.fillRect(r.adjusted(0, r.height() - h, 0, 0),
               QBrush(QColor(0, 0, 0, pause ? 70 : 150), a.trame));
    if (r.width() >= 3) {
        p.setPen(QPen(QColor(0, 0, 0, 120), 1));
        p.setBrush(Qt::NoBrush);
        p.drawRect(r.adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

// Number and name, as much as fits: the number at least, or nothing.
void ecrire_dans(QPainter& p, const QRectF& r, const QString& legende, const Aspect& a) {
    constexpr int retrait = 4;
    const QFontMetrics mesures(p.font());
    const int place = static_cast<int>(r.width()) - 2 * retrait;
    const QString numero = legende.section(' ', 0, 0);
    if (place < mesures.horizontalAdvance(numero))
        return;
    QString texte = mesures.elidedText(legende, Qt::ElideRight, place);
    if (texte.size() < numero.size() + 3)
        texte = numero;
    const QRectF ou =
        r.adjusted(retrait, 0, -retrait, a.trame == Qt::NoBrush || r.height() > 20 ? 0 : -3);
    if (a.genre == actions::Genre::pause)
        p.fillRect(
            p.boundingRect(ou, Qt::AlignLeft | Qt::AlignVCenter, texte).adjusted(-2, 0, 2, 0),
            a.fond);
    p.setPen(encre);
    p.drawText(ou, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, texte);
}

class Peinture {
public:
    Peinture(QPainter& peintre, const ContenuFrise& contenu, const DispositionFrise& places,
             const Axe& axe, const QPalette& couleurs)
        : p(peintre),
          contenu_(contenu),
          m_(contenu.analyse->match),
          places_(places),
          axe_(axe),
          couleurs_(couleurs),
          usuelle_(p.font()),
          petite_(style::petite_police(usuelle_)) {
        p.setFont(petite_);
    }

    void peindre() {
        peindre_fond();
        p.setClipRect(places_.temps());
        for (int i = 1; i <= places_.robots; ++i)
            peindre_actions(i);
        peindre_fin_du_match();
        for (const MarqueFrise& m : contenu_.marques)
            peindre_marque(m);
        p.setClipping(false);
        peindre_noms();
        peindre_legende();
    }

private:
    double x(std::int32_t temps) const { return axe_.pixel(temps / 100.0); }

    void peindre_fond() {
        p.fillRect(QRect({}, places_.taille), couleurs_.color(QPalette::Window));
        p.setClipRect(places_.temps());
        peindre_regle(p, axe_, Qt::Horizontal, places_.taille.width(), couleurs_, usuelle_, 0.01);
        p.setFont(petite_);
        for (int i = 1; i <= places_.robots; ++i)
            p.fillRect(places_.piste(i),
                       couleurs_.color(i % 2 == 0 ? QPalette::AlternateBase : QPalette::Base));
    }

    void peindre_actions(int robot) {
        const QRect piste = places_.piste(robot).adjusted(0, bord, 0, -bord);
        for (const ActionJouee& action : m_.actions(robot)) {
            const double gauche = x(action.debut);
            const double droite = std::max(gauche + 1, x(fin_montree(m_, action)));
            if (droite < places_.temps().left() || gauche > places_.temps().right())
                continue;
            // The name stays in sight where the action begins further left.
            const double debut = std::max<double>(gauche, places_.temps().left() - 1);
            const QRectF r(debut, piste.top(), droite - debut, piste.height());
            const Aspect& a = aspect(genre_de(action));
            peindre_case(p, r, a);
            ecrire_dans(p, r, texte_qt(legende(action)), a);
        }
    }

    // Nothing counts behind it.
    void peindre_fin_du_match() {
        const QRect t = places_.temps();
        const double fin = x(duree_du_match);
        p.fillRect(QRectF(fin, 0, t.right() - fin + 1, t.height()), QColor(128, 128, 128, 110));
        p.setPen(QPen(couleurs_.color(QPalette::WindowText), 2));
        p.drawLine(QPointF(fin, 0), QPointF(fin, t.bottom()));
    }

    // A wedge and a line, both with a light edge: seen on any action.
    void peindre_marque(const MarqueFrise& m) {
        const QRect piste = m.robot > 0 && m.robot <= places_.robots
                                ? places_.piste(m.robot)
                                : QRect(0, epaisseur_regle / 2, 1, epaisseur_regle / 2);
        const double c = x(m.temps);
        p.setPen(QPen(QColor(255, 255, 255, 200), 3));
        p.drawLine(QPointF(c, piste.top() + 1), QPointF(c, piste.bottom()));
        p.setPen(QPen(couleur_marque, 1));
        p.drawLine(QPointF(c, piste.top() + 1), QPointF(c, piste.bottom()));
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(Qt::white, 1));
        p.setBrush(couleur_marque);
        const double y = piste.top();
        p.drawPolygon(QPolygonF({{c - 6, y}, {c + 6, y}, {c, y + 9}}));
        p.setRenderHint(QPainter::Antialiasing, false);
    }

    void peindre_noms() {
        p.setBrush(Qt::NoBrush);
        for (int i = 1; i <= places_.robots; ++i) {
            QRect nom = places_.piste(i);
            nom.setWidth(DispositionFrise::largeur_noms);
            const bool choisi = i == contenu_.robot;
            p.fillRect(nom, couleurs_.color(choisi ? QPalette::Highlight : QPalette::Window));
            p.setPen(couleurs_.color(choisi ? QPalette::HighlightedText : QPalette::WindowText));
            const QRect pastille(nom.left() + 5, nom.center().y() - 4, 9, 9);
            p.fillRect(pastille, couleur_qt(couleur_robot(i)));
            p.drawRect(pastille);
            p.drawText(nom.adjusted(20, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                       QString("Robot %1").arg(i));
        }
    }

    void peindre_legende() {
        const QRect place = places_.legende();
        double gauche = place.left();
        const auto ecrire = [&](const QString& texte) {
            p.setPen(couleurs_.color(QPalette::WindowText));
            const QRectF ou(gauche, place.top(), place.right() - gauche, place.height());
            p.drawText(ou, Qt::AlignLeft | Qt::AlignVCenter, texte);
            gauche += p.fontMetrics().horizontalAdvance(texte) + 16;
        };
        for (const Aspect& a : aspects) {
            peindre_case(p, QRectF(gauche, place.center().y() - 5, 18, 12), a);
            gauche += 23;
            const auto nom = nom_du_genre(a.genre);
            ecrire(texte_qt(nom));
        }
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(Qt::white, 1));
        p.setBrush(couleur_marque);
        const double y = place.center().y() - 4;
        p.drawPolygon(QPolygonF({{gauche, y}, {gauche + 12, y}, {gauche + 6, y + 9}}));
        gauche += 17;
        ecrire("constat");
    }

    QPainter& p;
    const ContenuFrise& contenu_;
    const MatchCalcule& m_;
    const DispositionFrise& places_;
    const Axe& axe_;
    const QPalette& couleurs_;
    const QFont usuelle_, petite_;
};

} // namespace

void peindre_frise(QPainter& peintre, const ContenuFrise& contenu, const DispositionFrise& places,
                   const Axe& axe, const QPalette& couleurs) {
    Peinture(peintre, contenu, places, axe, couleurs).peindre();
}
