#include "ui/principale/logo.h"

#include <QIcon>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

#include <utility>

namespace {

constexpr int plus_petite_police = 6;
constexpr int marge_banniere = 8; ///< logical pixels around the banner's text
// Lines of the banner's card painted at a time: for more Qt starts threads, which takes longer.
constexpr int bande = 32;
constexpr int apres_les_fenetres_ms = 20;
constexpr int drapeaux = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

// Through Qt's SVG plugin, which is loaded only then.
QPixmap dessiner(QSize taille, qreal densite) {
    return QIcon(":/logo.svg").pixmap(taille, densite);
}

} // namespace

Logo::Logo(QWidget* parent) : QWidget(parent) {
    setCursor(Qt::PointingHandCursor);
}

void Logo::paintEvent(QPaintEvent*) {
    if (image_.size() == size() * devicePixelRatioF()) {
        QPainter peintre(this);
        peintre.setOpacity(fantome_ ? opacite_fantome : 1);
        peintre.drawPixmap(0, 0, image_);
    } else if (!attendue_) {
        // The windows first: reading the picture takes longer than painting them.
        attendue_ = true;
        QTimer::singleShot(apres_les_fenetres_ms, this, [this] {
            attendue_ = false;
            image_ = dessiner(size(), devicePixelRatioF());
            update();
        });
    }
}

void Logo::estomper(bool fantome) {
    if (std::exchange(fantome_, fantome) == fantome)
        return;
    setAttribute(Qt::WA_TransparentForMouseEvents, fantome);
    update();
}

void Logo::mouseReleaseEvent(QMouseEvent* evenement) {
    if (evenement->button() == Qt::LeftButton && au_clic)
        au_clic();
}

Banniere::Banniere(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void Banniere::estomper(bool fantome) {
    if (std::exchange(fantome_, fantome) == fantome)
        return;
    setAttribute(Qt::WA_TransparentForMouseEvents, fantome);
    update();
}

void Banniere::placer(const QRect& logo) {
    haut_du_texte_ = logo.height();
    setGeometry(logo);
    setFont({});
    QRect texte = place_du_texte();
    for (int taille = font().pointSize();
         taille > plus_petite_police && texte.width() > zone_du_texte().width(); --taille) {
        setFont(QFont(font().family(), taille - 1));
        texte = place_du_texte();
    }
    resize(logo.width(), haut_du_texte_ + texte.height() + marge_banniere);
}

// Wider than its zone where a line break cannot but cut a word.
QRect Banniere::place_du_texte() const {
    return fontMetrics().boundingRect(zone_du_texte(), drapeaux, text().trimmed());
}

QRect Banniere::zone_du_texte() const {
    return {marge_banniere, haut_du_texte_, width() - 2 * marge_banniere, 1 << 14};
}

void Banniere::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setOpacity(fantome_ ? opacite_fantome : 1);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(QColor(6, 58, 26, 235));
    const QRect zone = evenement->rect();
    for (int y = zone.top(); y <= zone.bottom(); y += bande) {
        peintre.setClipRect(0, y, width(), bande);
        peintre.drawRoundedRect(rect(), 10, 10);
    }
    peintre.setClipping(false);
    peintre.setPen(Qt::white);
    peintre.drawText(zone_du_texte(), drapeaux, text().trimmed());
}
