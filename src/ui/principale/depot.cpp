#include "ui/principale/depot.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

/// One local file; several at once would be several projects.
QString fichier_de(const QDropEvent& depot) {
    const QList<QUrl> adresses = depot.mimeData()->urls();
    return adresses.size() == 1 ? adresses.front().toLocalFile() : QString();
}

} // namespace

void Depot::accueillir(QWidget& fenetre) {
    fenetre.setAcceptDrops(true);
    fenetre.installEventFilter(this);
}

bool Depot::eventFilter(QObject*, QEvent* evenement) {
    if (evenement->type() != QEvent::DragEnter && evenement->type() != QEvent::Drop)
        return false;
    auto& depot = *static_cast<QDropEvent*>(evenement);
    const QString fichier = fichier_de(depot);
    if (fichier.isEmpty())
        return false;
    depot.acceptProposedAction();
    if (evenement->type() == QEvent::Drop) // later: what it asks must not hold up the other program
        QMetaObject::invokeMethod(
            this, [this, chemin = fichier.toStdString()] { au_depot_(chemin); },
            Qt::QueuedConnection);
    return true;
}
