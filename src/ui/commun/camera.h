#pragma once

#include "ui/commun/axe.h"

#include <QPointF>
#include <QRectF>

/// What a drawing to scale shows of the plane: two axes of one scale, in centimetres, y upwards.
class Camera {
public:
    /// @param min, max  limits of the scale, logical pixels per centimetre
    Camera(double min, double max) : x_(min, max), y_(min, max, Axe::Sens::contre_eux) {}

    const Axe& x() const { return x_; }
    const Axe& y() const { return y_; }
    double echelle() const { return x_.echelle(); } ///< logical pixels per centimetre
    QPointF en_cm(QPointF pixels) const { return {x_.valeur(pixels.x()), y_.valeur(pixels.y())}; }
    QPointF en_pixels(QPointF cm) const { return {x_.pixel(cm.x()), y_.pixel(cm.y())}; }
    QRectF en_pixels(QRectF cm) const {
        return QRectF(en_pixels(cm.topLeft()), en_pixels(cm.bottomRight())).normalized();
    }

    /// Where the drawing lies in its window, pixels.
    void poser(const QRectF& pixels);
    /// Shows all of that, with a margin of so many pixels.
    void ajuster(const QRectF& cm, double marge);
    void zoomer(double facteur, QPointF autour);
    void glisser(QPointF pixels);
    /// Shows the whole, from the start or since ajuster(), until the user looks elsewhere.
    bool ajustee() const { return ajustee_; }

    bool operator==(const Camera&) const = default;

private:
    Axe x_, y_;
    bool ajustee_ = true;
};
