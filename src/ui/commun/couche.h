#pragma once

#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <optional>

/// A transparent part of a widget's picture that is painted once for each value of what it depends
/// on: `Cle`, and the widget's size, colours and screen.
template <typename Cle>
class Couche {
public:
    /// @param peindre  called with a painter of the widget's logical pixels when something changed
    template <typename Peindre>
    const QPixmap& image(const QWidget& vue, const Cle& cle, const Peindre& peindre) {
        const Dependances voulues{cle, vue.size(), vue.devicePixelRatioF(),
                                  vue.palette().cacheKey()};
        if (voulues != peintes_) {
            image_ = QPixmap(voulues.taille * voulues.densite);
            image_.setDevicePixelRatio(voulues.densite);
            image_.fill(Qt::transparent);
            QPainter peintre(&image_);
            peindre(peintre);
            peintes_ = voulues;
        }
        return image_;
    }

private:
    struct Dependances {
        Cle cle;
        QSize taille;
        double densite;
        qint64 couleurs;
        bool operator==(const Dependances&) const = default;
    };

    std::optional<Dependances> peintes_;
    QPixmap image_;
};
