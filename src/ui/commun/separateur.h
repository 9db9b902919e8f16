#pragma once

#include <QFrame>

/// A horizontal line between two groups of controls.
inline QFrame* separateur() {
    auto* trait = new QFrame;
    trait->setFrameStyle(int(QFrame::HLine) | int(QFrame::Sunken));
    return trait;
}
