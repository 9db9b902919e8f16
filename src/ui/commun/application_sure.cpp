#include "ui/commun/application_sure.h"

#include "ui/commun/boites.h"
#include "ui/commun/garde.h"

#include <QPainter>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace {

// True for what somebody has just done. Anything else may come again by itself right after the box
// is closed.
bool est_un_geste(const QObject& objet, QEvent::Type sorte) {
    switch (sorte) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::Drop:
    case QEvent::FocusOut:
    case QEvent::Close:
    case QEvent::MetaCall: // a menu's action that waited for its turn
        return true;
    case QEvent::Timer: {
        const auto* minuterie = qobject_cast<const QTimer*>(&objet);
        return minuterie != nullptr && minuterie->isSingleShot();
    }
    default:
        return false;
    }
}

// Half a picture would pass for the whole one.
void effacer(QWidget& controle) {
    QPainter(&controle).fillRect(controle.rect(), controle.palette().window());
}

} // namespace

bool ApplicationSure::notify(QObject* objet, QEvent* evenement) {
    if (QThread::currentThread() != thread())
        return QApplication::notify(objet, evenement);
    const Origine origine{objet, evenement->type()};
    try {
        const bool traite = QApplication::notify(objet, evenement);
        if (!dites_.empty())
            dites_.erase(origine);
        return traite;
    } catch (const std::exception& erreur) {
        retenir(*objet, *evenement, erreur.what());
        return true;
    }
}

void ApplicationSure::retenir(QObject& objet, QEvent& evenement, const char* raison) {
    const QEvent::Type sorte = evenement.type();
    evenement.setAccepted(sorte != QEvent::Close);
    auto* controle = objet.isWidgetType() ? static_cast<QWidget*>(&objet) : nullptr;
    if (controle != nullptr && sorte == QEvent::Paint)
        effacer(*controle);
    const std::string texte = texte_erreur_execution(raison);
    if (!est_nouvelle(objet, sorte, texte))
        return;
    a_montrer_.push_back({texte, controle != nullptr ? controle->window() : nullptr});
    QMetaObject::invokeMethod(
        this, [this] { montrer(); }, Qt::QueuedConnection);
}

// Said once: while a box says it, and, for what comes by itself, until that has gone well again.
bool ApplicationSure::est_nouvelle(QObject& objet, QEvent::Type sorte, const std::string& texte) {
    bool dite = std::any_of(a_montrer_.begin(), a_montrer_.end(),
                            [&](const Panne& p) { return p.texte == texte; });
    if (!est_un_geste(objet, sorte)) {
        Dite& derniere = dites_[{&objet, sorte}];
        dite = dite || (derniere.objet != nullptr && derniere.texte == texte);
        derniere = {&objet, texte};
    }
    return !dite;
}

void ApplicationSure::montrer() {
    if (std::exchange(ouverte_, true))
        return; // whoever shows the open box goes on with the next one
    for (; !a_montrer_.empty(); a_montrer_.pop_front()) {
        const Panne& panne = a_montrer_.front();
        QWidget* fenetre = activeModalWidget();
        if (fenetre == nullptr)
            fenetre = panne.fenetre != nullptr && panne.fenetre->isVisible() ? panne.fenetre.data()
                                                                             : activeWindow();
        montrer_message(fenetre, panne.texte);
    }
    ouverte_ = false;
}
