#include "ui/commun/barre_nombre.h"

#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QWheelEvent>

BarreNombre::BarreNombre() : QScrollBar(Qt::Vertical) {
    setInvertedAppearance(true);
    setInvertedControls(false);
    setPageStep(1);
    setTracking(false); // a drag counts when it ends
    setFocusPolicy(Qt::StrongFocus);
}

void BarreNombre::mousePressEvent(QMouseEvent* evenement) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    // The style draws the groove upside down but still takes its upper half for "less".
    switch (style()->hitTestComplexControl(QStyle::CC_ScrollBar, &option, evenement->pos(), this)) {
    case QStyle::SC_ScrollBarSubLine:
    case QStyle::SC_ScrollBarSubPage:
        triggerAction(SliderSingleStepAdd);
        break;
    case QStyle::SC_ScrollBarAddLine:
    case QStyle::SC_ScrollBarAddPage:
        triggerAction(SliderSingleStepSub);
        break;
    default:
        QScrollBar::mousePressEvent(evenement);
    }
}

void BarreNombre::wheelEvent(QWheelEvent* evenement) {
    evenement->accept();
}
