#include "ui/verdict/icones_transport.h"

#include "ui/commun/icone_peinte.h"

#include <QPainter>

#include <initializer_list>

namespace {

// Drawn on a square of 16 units.
void triangle(QPainter& p, double pointe, double base) {
    p.drawPolygon(QPolygonF({{pointe, 8}, {base, 3}, {base, 13}}));
}

void barre(QPainter& p, double gauche, double largeur = 2) {
    p.drawRect(QRectF(gauche, 3, largeur, 10));
}

void lettre(QPainter& p, const char* texte) {
    QFont police;
    police.setPixelSize(12);
    police.setBold(true);
    p.setFont(police);
    p.setPen(p.brush().color());
    p.drawText(QRectF(0, 0, 16, 16), Qt::AlignCenter, texte);
}

void dessiner_boucle_otee(QPainter& p) {
    p.setPen(QPen(p.brush().color(), 1.6));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(8, 8), 5, 5);
    p.drawLine(QPointF(2, 14), QPointF(14, 2));
}

void dessiner_cadre(QPainter& p) {
    p.setPen(QPen(p.brush().color(), 1.6));
    for (const double x : {2.0, 14.0})
        p.drawLine(QPointF(x, 3), QPointF(x, 13));
    p.drawLine(QPointF(4, 8), QPointF(12, 8));
    p.setPen(Qt::NoPen);
    p.drawPolygon(QPolygonF({{3, 8}, {6, 5.5}, {6, 10.5}}));
    p.drawPolygon(QPolygonF({{13, 8}, {10, 5.5}, {10, 10.5}}));
}

void dessiner(QPainter& p, Symbole symbole) {
    switch (symbole) {
    case Symbole::debut:
        barre(p, 2);
        triangle(p, 4.5, 14);
        return;
    case Symbole::action_precedente:
        triangle(p, 1, 8);
        triangle(p, 8, 15);
        return;
    case Symbole::pas_precedent:
        triangle(p, 3, 10);
        barre(p, 11.5);
        return;
    case Symbole::lecture:
        triangle(p, 14, 3);
        return;
    case Symbole::pause:
        barre(p, 3.5, 3.5);
        barre(p, 9, 3.5);
        return;
    case Symbole::pas_suivant:
        triangle(p, 13, 6);
        barre(p, 2.5);
        return;
    case Symbole::action_suivante:
        triangle(p, 8, 1);
        triangle(p, 15, 8);
        return;
    case Symbole::fin:
        triangle(p, 11.5, 2);
        barre(p, 12);
        return;
    case Symbole::boucle_debut:
        return lettre(p, "A");
    case Symbole::boucle_fin:
        return lettre(p, "B");
    case Symbole::sans_boucle:
        return dessiner_boucle_otee(p);
    case Symbole::ajuster:
        return dessiner_cadre(p);
    }
}

} // namespace

QIcon icone(Symbole symbole) {
    return icone_peinte(16, [symbole](QPainter& p) {
        remplir(p);
        dessiner(p, symbole);
    });
}
