#pragma once

#include "ui/banc.h"
#include "ui/principale/editeurs.h"

#include <QAction>
#include <QListWidget>

/// Presses at a point of a view (cm), pulls and releases at another.
inline void tirer(VueEchelle& vue, QPointF a, QPointF b, Qt::KeyboardModifiers touches = {}) {
    const auto en = [&vue](QPointF cm) { return vue.en_pixels(cm).toPoint(); };
    QTest::mousePress(&vue, Qt::LeftButton, touches, en(a));
    for (const QPointF& p : {(a + b) / 2, b}) {
        QMouseEvent e(QEvent::MouseMove, en(p), vue.mapToGlobal(en(p)), Qt::NoButton,
                      Qt::LeftButton, touches);
        QApplication::sendEvent(&vue, &e);
    }
    QTest::mouseRelease(&vue, Qt::LeftButton, touches, en(b));
}

/// An editor and its view, driven by the mouse.
template <typename Editeur, typename Vue>
class BancEditeur : public Banc {
protected:
    BancEditeur(const char* editeur, const char* vue, const char* liste)
        : editeur_(editeur), vue_(vue), liste_(liste) {
        demarrer();
        cliquer("dessinAire");
    }

    Editeur& editeur() { return trouver<Editeur>(editeur_); }
    Vue& vue() { return trouver<Vue>(vue_); }
    const auto& doc() { return editeur().document(); }
    void commande(const char* nom) {
        editeur().template findChild<QAction*>(nom)->trigger();
        QCoreApplication::sendPostedEvents(&editeur(), QEvent::MetaCall);
    }
    QPoint en(double x, double y) { return vue().en_pixels(QPointF(x, y)).toPoint(); }
    void clic(double x, double y, Qt::KeyboardModifiers touches = {}) {
        QTest::mouseClick(&vue(), Qt::LeftButton, touches, en(x, y));
    }
    void tirer(QPointF a, QPointF b, Qt::KeyboardModifiers touches = {}) {
        ::tirer(vue(), a, b, touches);
    }
    /// The rows chosen in the list.
    std::string choisis() {
        QStringList textes;
        for (const QListWidgetItem* item : trouver<QListWidget>(liste_).selectedItems())
            textes += item->text();
        return textes.join(" | ").toStdString();
    }

private:
    const char *editeur_, *vue_, *liste_;
};
