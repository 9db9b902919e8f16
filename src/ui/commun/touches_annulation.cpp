#include "ui/commun/touches_annulation.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

bool annule_ou_retablit(const QKeyEvent& touche) {
    const QKeySequence frappe(touche.keyCombination());
    return touche.matches(QKeySequence::Undo) || touche.matches(QKeySequence::Redo) ||
           touches_de_retablissement().contains(frappe);
}

class Filtre final : public QObject {
public:
    explicit Filtre(QWidget& fenetre) : QObject(&fenetre), fenetre_(fenetre) {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        const bool prioritaire = evenement->type() == QEvent::ShortcutOverride;
        if (!prioritaire && evenement->type() != QEvent::KeyPress)
            return false;
        const auto* controle = qobject_cast<QWidget*>(objet);
        if (controle == nullptr || controle->window() != &fenetre_ ||
            !annule_ou_retablit(*static_cast<QKeyEvent*>(evenement)))
            return false;
        // Not taken by the field: the window's shortcut comes next. Without one to be had, nothing.
        evenement->setAccepted(!prioritaire);
        return true;
    }

private:
    QWidget& fenetre_;
};

} // namespace

QList<QKeySequence> touches_d_annulation() {
    return QKeySequence::keyBindings(QKeySequence::Undo);
}

QList<QKeySequence> touches_de_retablissement() {
    return {QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")};
}

void annuler_de_partout(QWidget& fenetre) {
    new Filtre(fenetre); // belongs to the window
}
