#include "ui/principale/barre_match.h"

#include "analyse/verdict.h"
#include "sim/moteur.h"
#include "ui/commun/boites.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

BarreMatch::BarreMatch(QWidget* parent) : QWidget(parent) {
    setObjectName("barre_match");
    setAccessibleName("Avancement du match");
}

void BarreMatch::avancer(std::int32_t temps) {
    const bool a_peindre = pixel(temps) != pixel(temps_) || (temps == 0) != (temps_ == 0);
    temps_ = temps;
    if (a_peindre)
        update();
}

void BarreMatch::suspendre(bool oui) {
    suspendue_ = oui;
    update();
}

void BarreMatch::montrer_fins(std::vector<std::int32_t> fins) {
    fins_ = std::move(fins);
    update();
}

int BarreMatch::pixel(std::int32_t temps) const {
    return static_cast<int>(std::min<std::int64_t>(temps, duree_du_match) * width() /
                            duree_du_match);
}

QString BarreMatch::texte() const {
    return texte_qt(secondes(std::min<std::int32_t>(temps_, duree_du_match))) + " sur 90 s" +
           (suspendue_ ? ", en pause (P)" : "");
}

bool BarreMatch::event(QEvent* evenement) {
    if (evenement->type() == QEvent::ToolTip)
        QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), texte(), this);
    return QWidget::event(evenement);
}

void BarreMatch::paintEvent(QPaintEvent*) {
    constexpr std::int32_t entre_marques = 1000;
    constexpr int largeur_fin = 3;
    const QColor couleur = palette().color(QPalette::Highlight);
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Base));
    p.fillRect(0, 0, pixel(temps_), height(),
               suspendue_ ? QBrush(couleur, Qt::BDiagPattern) : QBrush(couleur));
    for (std::int32_t t = entre_marques; t < duree_du_match; t += entre_marques)
        p.fillRect(pixel(t), 0, 1, height(), palette().color(QPalette::Mid));
    if (temps_ == 0)
        for (const std::int32_t fin : fins_)
            p.fillRect(pixel(fin) - largeur_fin, 0, largeur_fin, height(), couleur);
}
