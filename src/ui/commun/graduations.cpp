#include "ui/commun/graduations.h"

#include "ui/commun/style.h"

#include <QPainter>
#include <QPalette>

namespace {

// As many decimals as the numbers' distance asks for.
QString nombre_gradue(double valeur, double pas) {
    const int decimales = pas >= 1 ? 0 : pas >= 0.1 ? 1 : 2;
    return QString::number(valeur, 'f', decimales).replace('.', ',');
}

void ecrire_nombre(QPainter& peintre, double pixel, Qt::Orientation sens, const QString& texte) {
    if (sens == Qt::Horizontal)
        return peintre.drawText(QRectF(pixel - 30, 1, 60, 12), Qt::AlignCenter, texte);
    peintre.save();
    peintre.translate(7, pixel);
    peintre.rotate(-90);
    peintre.drawText(QRectF(-30, -6, 60, 12), Qt::AlignCenter, texte);
    peintre.restore();
}

} // namespace

void peindre_regle(QPainter& peintre, const Axe& axe, Qt::Orientation sens, int longueur,
                   const QPalette& couleurs, const QFont& police, double pas) {
    const bool couchee = sens == Qt::Horizontal;
    const QSize taille(longueur, epaisseur_regle);
    peintre.setRenderHint(QPainter::Antialiasing, false);
    peintre.fillRect(QRect({}, couchee ? taille : taille.transposed()),
                     couleurs.color(QPalette::Window));
    peintre.setPen(couleurs.color(QPalette::WindowText));
    peintre.setFont(style::petite_police(police));
    const double entre = axe.pas_lisible(pas, 48); // two numbers
    const double petit = entre / 5;
    axe.graduer(petit, [&](double valeur, double pixel) {
        const bool nombre = std::fabs(std::remainder(valeur, entre)) < petit / 2;
        const QPointF a(pixel, nombre ? epaisseur_regle - 10 : epaisseur_regle - 4);
        const QPointF b(pixel, epaisseur_regle - 1);
        peintre.drawLine(couchee ? a : a.transposed(), couchee ? b : b.transposed());
        if (nombre)
            ecrire_nombre(peintre, pixel, sens, nombre_gradue(valeur, entre));
    });
}

void peindre_grille(QPainter& peintre, const Camera& camera, int pas_voulu, QSize taille) {
    const double pas = camera.x().pas_lisible(pas_voulu, 7);
    peintre.setRenderHint(QPainter::Antialiasing, false);
    const auto crayon = [&](double valeur) {
        const bool forte = std::fmod(std::round(std::fabs(valeur / pas)), 10) == 0;
        peintre.setPen(QPen(QColor(128, 128, 128, forte ? 130 : 60), 0));
    };
    camera.x().graduer(pas, [&](double valeur, double x) {
        crayon(valeur);
        peintre.drawLine(QPointF(x, epaisseur_regle), QPointF(x, taille.height()));
    });
    camera.y().graduer(pas, [&](double valeur, double y) {
        crayon(valeur);
        peintre.drawLine(QPointF(epaisseur_regle, y), QPointF(taille.width(), y));
    });
}
