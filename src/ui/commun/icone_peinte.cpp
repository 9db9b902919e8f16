#include "ui/commun/icone_peinte.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>

#include <utility>

namespace {

class IconePeinte final : public QIconEngine {
public:
    IconePeinte(double cote, std::function<void(QPainter&)> peindre, QPalette::ColorRole encre)
        : cote_(cote), peindre_(std::move(peindre)), encre_(encre) {}

    QIconEngine* clone() const override { return new IconePeinte(cote_, peindre_, encre_); }

    void paint(QPainter* peintre, const QRect& ou, QIcon::Mode mode, QIcon::State) override {
        const auto groupe = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor encre = QApplication::palette().color(groupe, encre_);
        peintre->save();
        peintre->setRenderHint(QPainter::Antialiasing);
        peintre->translate(ou.topLeft());
        peintre->scale(ou.width() / cote_, ou.height() / cote_);
        peintre->setPen(QPen(encre, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        peintre->setBrush(Qt::NoBrush);
        peindre_(*peintre);
        peintre->restore();
    }

    QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override {
        QPixmap image(taille);
        image.fill(Qt::transparent);
        QPainter peintre(&image);
        paint(&peintre, QRect({}, taille), mode, etat);
        return image;
    }

private:
    double cote_;
    std::function<void(QPainter&)> peindre_;
    QPalette::ColorRole encre_;
};

} // namespace

QIcon icone_peinte(double cote, std::function<void(QPainter&)> peindre, QPalette::ColorRole encre) {
    return QIcon(new IconePeinte(cote, std::move(peindre), encre)); // the icon deletes it
}

void remplir(QPainter& peintre) {
    peintre.setBrush(peintre.pen().color());
    peintre.setPen(Qt::NoPen);
}
