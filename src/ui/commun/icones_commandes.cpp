#include "ui/commun/icones_commandes.h"

#include "ui/commun/icone_peinte.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// Each on a square of 16 units.

void triangle(QPainter& p) {
    p.setBrush(p.pen().color());
    p.drawPolygon(QPolygonF({{4.5, 3}, {4.5, 13}, {13, 8}}));
}

void carre(QPainter& p) {
    p.setBrush(p.pen().color());
    p.drawRect(QRectF(4, 4, 8, 8));
}

void disque(QPainter& p) {
    remplir(p);
    p.drawEllipse(QPointF(8, 8), 5, 5);
}

void dossier(QPainter& p) {
    p.drawPolygon(
        QPolygonF({{1.5, 13}, {1.5, 3.5}, {6, 3.5}, {7.5, 5.5}, {14.5, 5.5}, {14.5, 13}}));
}

// A pad with its four arrows.
void croix(QPainter& p) {
    p.drawPolygon(QPolygonF({{6, 1.5},
                             {10, 1.5},
                             {10, 6},
                             {14.5, 6},
                             {14.5, 10},
                             {10, 10},
                             {10, 14.5},
                             {6, 14.5},
                             {6, 10},
                             {1.5, 10},
                             {1.5, 6},
                             {6, 6}}));
    p.setBrush(p.pen().color());
    p.drawEllipse(QPointF(8, 8), 0.6, 0.6);
}

void crayon(QPainter& p) {
    p.drawPolygon(QPolygonF({{2, 14}, {3, 10}, {11, 2}, {14, 5}, {6, 13}}));
    p.drawLine(QPointF(9, 4), QPointF(12, 7));
}

void chevrons(QPainter& p) {
    p.drawPolyline(QPolygonF({{5, 4}, {1.5, 8}, {5, 12}}));
    p.drawPolyline(QPolygonF({{11, 4}, {14.5, 8}, {11, 12}}));
    p.drawLine(QPointF(9, 3), QPointF(7, 13));
}

void question(QPainter& p) {
    p.drawEllipse(QPointF(8, 8), 6.5, 6.5);
    QPainterPath point({6, 6.4});
    point.cubicTo(6, 3.4, 10.2, 3.6, 10, 6.3);
    point.cubicTo(9.9, 7.8, 8, 7.8, 8, 9.4);
    p.drawPath(point);
    remplir(p);
    p.drawEllipse(QPointF(8, 11.8), 1, 1);
}

void porte(QPainter& p) {
    p.drawPolyline(QPolygonF({{8, 2}, {2.5, 2}, {2.5, 14}, {8, 14}}));
    p.drawLine(QPointF(6.5, 8), QPointF(14, 8));
    p.drawPolyline(QPolygonF({{11, 5}, {14, 8}, {11, 11}}));
}

void (*symbole(Commande commande))(QPainter&) {
    switch (commande) {
    case Commande::demarrer:
        return triangle;
    case Commande::arreter:
        return carre;
    case Commande::enregistrer_le_trajet:
        return disque;
    case Commande::charger:
        return dossier;
    case Commande::telecommande:
        return croix;
    case Commande::creer:
        return crayon;
    case Commande::generer:
        return chevrons;
    case Commande::aide:
        return question;
    case Commande::quitter:
        return porte;
    }
    return carre;
}

} // namespace

QIcon icone(Commande commande, bool sur_l_accent) {
    return icone_peinte(16, symbole(commande),
                        sur_l_accent ? QPalette::HighlightedText : QPalette::ButtonText);
}
