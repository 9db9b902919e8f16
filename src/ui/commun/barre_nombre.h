#pragma once

#include <QScrollBar>

/// A vertical scroll bar for a number: up is more, for its arrows, its groove and the keys alike.
/// The wheel does nothing: what it would change may not come back.
class BarreNombre final : public QScrollBar {
public:
    BarreNombre();

protected:
    void mousePressEvent(QMouseEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
};
