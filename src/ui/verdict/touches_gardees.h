#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QWidget>

#include <functional>
#include <utility>

/// Keys that a control keeps for itself although a command of its window has them.
class TouchesGardees final : public QObject {
public:
    using Garde = std::function<bool(const QKeyEvent&)>;

    /// Belongs to the control.
    TouchesGardees(QWidget& controle, Garde garde) : QObject(&controle), garde_(std::move(garde)) {
        controle.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* evenement) override {
        if (evenement->type() != QEvent::ShortcutOverride ||
            !garde_(*static_cast<const QKeyEvent*>(evenement)))
            return false;
        evenement->accept();
        return true;
    }

private:
    Garde garde_;
};
