#include "ui/commun/gestes.h"

#include <utility>

Gestes::Suite Gestes::presser(Qt::MouseButton bouton, QPointF ici) {
    if (en_cours())
        return couper();
    aller(ici);
    vue_ = bouton == Qt::MiddleButton || (espace_ && bouton == Qt::LeftButton);
    if (!vue_ && bouton != Qt::LeftButton)
        return Suite::rien;
    bouton_ = bouton;
    depart_ = ici;
    return vue_ ? Suite::prendre_la_vue : Suite::presser;
}

Gestes::Suite Gestes::bouger(Qt::MouseButtons boutons, QPointF ici) {
    aller(ici);
    if (!en_cours())
        return Suite::survoler;
    if (!boutons.testFlag(bouton_))
        return couper();
    return vue_ ? Suite::deplacer_la_vue : Suite::glisser;
}

Gestes::Suite Gestes::relacher(Qt::MouseButton bouton, QPointF ici) {
    if (!en_cours() || bouton != bouton_)
        return Suite::rien;
    aller(ici);
    bouton_ = Qt::NoButton;
    return vue_ ? Suite::lacher_la_vue : Suite::relacher;
}

Gestes::Suite Gestes::couper() {
    if (std::exchange(bouton_, Qt::NoButton) == Qt::NoButton)
        return Suite::rien;
    return vue_ ? Suite::lacher_la_vue : Suite::abandonner;
}
