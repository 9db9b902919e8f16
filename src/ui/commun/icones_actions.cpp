#include "ui/commun/icones_actions.h"

#include "ui/commun/icone_peinte.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double cote_symbole = 16;

// Each one ahead or to the left on its square; the others are its mirror images.

void tout_droit(QPainter& p) {
    p.drawLine(QPointF(8, 14), QPointF(8, 2.5));
    p.drawPolyline(QPolygonF({{4, 6.5}, {8, 2.5}, {12, 6.5}}));
}

void sur_place(QPainter& p) {
    constexpr int seizieme_de_degre = 16;
    p.drawArc(QRectF(2.5, 2.5, 11, 11), -60 * seizieme_de_degre, 235 * seizieme_de_degre);
    p.drawPolyline(QPolygonF({{0.5, 4.6}, {2.5, 7.4}, {5.5, 5.6}}));
    remplir(p);
    p.drawEllipse(QPointF(8, 8), 1.5, 1.5);
}

void en_arc(QPainter& p) {
    QPainterPath chemin({12.5, 14});
    chemin.cubicTo(12.5, 8.5, 9.5, 6, 3.5, 6);
    p.drawPath(chemin);
    p.drawPolyline(QPolygonF({{6.5, 2.5}, {3, 6}, {6.5, 9.5}}));
}

void vers_la_balise(QPainter& p) {
    QPainterPath chemin({12, 14.5});
    chemin.cubicTo(15.5, 10.5, 14, 5.5, 8.5, 5);
    p.drawPath(chemin);
    p.drawPolyline(QPolygonF({{11, 2.2}, {8.2, 5}, {11, 7.8}}));
    remplir(p);
    p.drawEllipse(QPointF(3.5, 5), 2.4, 2.4);
}

void en_pause(QPainter& p) {
    remplir(p);
    for (const double gauche : {4.0, 9.0})
        p.drawRoundedRect(QRectF(gauche, 3, 3, 10), 1, 1);
}

void dessiner(QPainter& p, const actions::Action& action) {
    using enum actions::Genre;
    const bool en_arriere = action.genere == actions::mots::recule;
    const bool a_droite = action.genre != droit && action.sens < 0;
    p.translate(a_droite ? cote_symbole : 0, en_arriere ? cote_symbole : 0);
    p.scale(a_droite ? -1 : 1, en_arriere ? -1 : 1);
    switch (action.genre) {
    case droit:
        return tout_droit(p);
    case rotation:
        return sur_place(p);
    case arc:
        return en_arc(p);
    case balise:
        return vers_la_balise(p);
    case pause:
        return en_pause(p);
    case depart:
    case fin:
        return;
    }
}

} // namespace

QIcon icone_action(const actions::Action& action) {
    return icone_peinte(cote_symbole, [action](QPainter& p) { dessiner(p, action); });
}
