#include "ui/commun/camera.h"

#include <algorithm>

void Camera::poser(const QRectF& pixels) {
    x_.poser(pixels.left(), pixels.right());
    y_.poser(pixels.top(), pixels.bottom());
}

void Camera::ajuster(const QRectF& cm, double marge) {
    const double echelle =
        std::min(x_.echelle_pour(cm.width(), marge), y_.echelle_pour(cm.height(), marge));
    x_.cadrer(cm.center().x(), echelle);
    y_.cadrer(cm.center().y(), echelle);
    ajustee_ = true;
}

void Camera::zoomer(double facteur, QPointF autour) {
    x_.zoomer(facteur, autour.x());
    y_.zoomer(facteur, autour.y());
    ajustee_ = false;
}

void Camera::glisser(QPointF pixels) {
    x_.glisser(pixels.x());
    y_.glisser(pixels.y());
    ajustee_ = false;
}
