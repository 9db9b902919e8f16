#include "ui/commun/icones_messages.h"

#include "ui/commun/icone_peinte.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double epaisseur = 1.5;

// Leaves a pen for the sign on a ground of that colour.
void peindre_fond(QPainter& p, const QColor& fond, const QColor& signe, const QPainterPath& forme) {
    p.setBrush(fond);
    p.setPen(QPen(fond, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(forme);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(signe, epaisseur, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void peindre_rond(QPainter& p, const QColor& fond, const QColor& signe) {
    QPainterPath rond;
    rond.addEllipse(QPointF(8, 8), 7, 7);
    peindre_fond(p, fond, signe, rond);
}

void peindre_accent(QPainter& p) {
    const QPalette couleurs = QApplication::palette();
    peindre_rond(p, couleurs.color(QPalette::Highlight), couleurs.color(QPalette::HighlightedText));
}

void peindre_question(QPainter& p) {
    peindre_accent(p);
    QPainterPath signe({5.8, 6.2});
    signe.cubicTo(5.8, 3.1, 10.4, 3.3, 10.2, 6.2);
    signe.cubicTo(10.1, 7.8, 8, 7.8, 8, 9.4);
    p.drawPath(signe);
    p.drawPoint(QPointF(8, 12.2));
}

void peindre_information(QPainter& p) {
    peindre_accent(p);
    p.drawLine(QPointF(8, 7.5), QPointF(8, 12));
    p.drawPoint(QPointF(8, 4.3));
}

void peindre_avertissement(QPainter& p) {
    QPainterPath triangle({8, 1.8});
    triangle.lineTo(15, 14);
    triangle.lineTo(1, 14);
    triangle.closeSubpath();
    peindre_fond(p, QColor(255, 196, 0), QColor(30, 30, 30), triangle);
    p.drawLine(QPointF(8, 6.2), QPointF(8, 9.8));
    p.drawPoint(QPointF(8, 12.2));
}

void peindre_erreur(QPainter& p) {
    peindre_rond(p, QColor(190, 24, 24), Qt::white);
    p.drawLine(QPointF(5.4, 5.4), QPointF(10.6, 10.6));
    p.drawLine(QPointF(10.6, 5.4), QPointF(5.4, 10.6));
}

} // namespace

QIcon icone_message(QStyle::StandardPixmap image) {
    constexpr double cote = 16;
    switch (image) {
    case QStyle::SP_MessageBoxQuestion:
        return icone_peinte(cote, peindre_question);
    case QStyle::SP_MessageBoxInformation:
        return icone_peinte(cote, peindre_information);
    case QStyle::SP_MessageBoxWarning:
        return icone_peinte(cote, peindre_avertissement);
    case QStyle::SP_MessageBoxCritical:
        return icone_peinte(cote, peindre_erreur);
    default:
        return {};
    }
}
