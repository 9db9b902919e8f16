#include "ui/editeurs/cotes_robot.h"

#include "ui/commun/vue_echelle.h"

#include <QLineF>
#include <QPainter>

#include <array>

namespace {

/// What is measured: from where to where (cm), under which name.
struct Cote {
    QPointF de, a;
    const char* nom;
    bool mouvement = false; ///< an arrow, no length
};

Cote cote(const DocumentRobot& robot, std::string_view mesure) {
    constexpr double longueur_d_une_vitesse = 8; // cm
    const auto a = robot.valeurs("A");
    const auto e = robot.valeurs("E");
    const QPointF reference(a[0], a[1]);
    const QPointF extremite(e[0], e[1]);
    if (mesure == "A1")
        return {{0, a[1]}, reference, "depuis x = 0"};
    if (mesure == "A2")
        return {{a[0], 0}, reference, "depuis y = 0"};
    if (mesure == "A3")
        return {reference - QPointF(a[2] / 2, 0), reference + QPointF(a[2] / 2, 0), "entraxe"};
    if (mesure == "V1")
        return {reference, reference + QPointF(0, longueur_d_une_vitesse), "vitesse", true};
    if (mesure == "E1")
        return {{0, e[1]}, extremite, "depuis x = 0"};
    if (mesure == "E2")
        return {{e[0], 0}, extremite, "depuis y = 0"};
    QLineF capteur(reference, extremite);
    if (capteur.length() > 0)
        capteur.setLength(e[2]);
    return {reference, capteur.p2(), "longueur"};
}

void peindre_bout(QPainter& peintre, const QLineF& trait, bool mouvement) {
    QLineF bout(trait.p2(), trait.p1());
    bout.setLength(mouvement ? 9 : 5);
    for (const double angle : mouvement ? std::array{25.0, -25.0} : std::array{90.0, -90.0}) {
        QLineF cote_du_bout = bout;
        cote_du_bout.setAngle(bout.angle() + angle);
        peintre.drawLine(cote_du_bout);
    }
}

void nommer(QPainter& peintre, QPointF ou, const QString& nom) {
    const QRectF place =
        peintre.fontMetrics().boundingRect(nom).toRectF().translated(ou).adjusted(-3, -1, 3, 1);
    peintre.fillRect(place, QColor(255, 255, 255, 220));
    peintre.drawText(ou, nom);
}

void peindre_rotation(QPainter& peintre, QPointF centre) {
    constexpr double rayon = 26; // pixels
    const QRectF cercle(centre - QPointF(rayon, rayon), QSizeF(2 * rayon, 2 * rayon));
    peintre.drawArc(cercle, 0, 270 * 16);
    const QPointF fin = centre + QPointF(0, rayon);
    peindre_bout(peintre, {fin - QPointF(10, 0), fin}, true);
    nommer(peintre, centre + QPointF(rayon + 8, -rayon), "rotation");
}

} // namespace

void peindre_cote(QPainter& peintre, const VueEchelle& vue, const DocumentRobot& robot,
                  std::string_view mesure) {
    if (mesure.size() != 2 ||
        std::string_view("AVE").find(mesure.front()) == std::string_view::npos)
        return;
    peintre.setPen(QPen(vue.palette().color(QPalette::Highlight), 2));
    const auto a = robot.valeurs("A");
    if (mesure == "V2")
        return peindre_rotation(peintre, vue.en_pixels(QPointF(a[0], a[1])));
    const Cote c = cote(robot, mesure);
    const QLineF trait(vue.en_pixels(c.de), vue.en_pixels(c.a));
    peintre.drawLine(trait);
    peindre_bout(peintre, trait, c.mouvement);
    if (!c.mouvement)
        peindre_bout(peintre, {trait.p2(), trait.p1()}, false);
    nommer(peintre, trait.center() + QPointF(8, -8), c.nom);
}
