#pragma once

#include "analyse/code.h"
#include "draw/surface.h"
#include "sim/etat.h"

#include <QWidget>

#include <memory>
#include <vector>

/// The table with the way of the screen (solid) and that of the code (dotted), and what is which.
class VueRejeu final : public QWidget {
public:
    explicit VueRejeu(QWidget* parent = nullptr);

    /// @param etat  its table  @param ecran  the match as the screen plays it
    void montrer(std::unique_ptr<Etat> etat, MatchCalcule ecran, EcartDeCode ecart);
    void vider();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void peindre_table_et_chemins(QPainter& peintre, const QRectF& place) const;
    void peindre_legende(QPainter& peintre, QPointF coin) const;
    QSizeF ajuster(const QSizeF& place) const;

    std::unique_ptr<Etat> etat_; ///< none: nothing to show
    MatchCalcule ecran_;
    EcartDeCode ecart_;
    std::vector<PointTable> chemin_du_code_;
};
