#include "ui/editeurs/colonne_palette.h"

#include "ui/editeurs/foutil.h"

#include <QStyle>

ColonnePalette::ColonnePalette(Foutil& outils) : outils_(outils) {
    place_.setFrameShape(QFrame::NoFrame);
    place_.setFocusPolicy(Qt::NoFocus);
    place_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ailleurs_.setText("La palette est dans l'autre éditeur.");
    ailleurs_.setWordWrap(true);
    ailleurs_.setAlignment(Qt::AlignTop);
    ailleurs_.setMargin(12);
    addWidget(&place_);
    addWidget(&ailleurs_);
    suivre();
}

void ColonnePalette::accueillir() {
    outils_.loger(place_);
}

void ColonnePalette::suivre() {
    setFixedWidth(outils_.sizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    setCurrentWidget(outils_.est_dans(place_) ? static_cast<QWidget*>(&place_) : &ailleurs_);
    setVisible(outils_.ancree());
}
