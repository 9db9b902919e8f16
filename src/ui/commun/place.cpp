#include "ui/commun/place.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace {

/// A window manager shifts a window by its frame; only more than that is a move by the user.
constexpr int ecart_du_cadre = 60;
/// By then it has told it, and has put the window where it likes.
constexpr int cadre_connu_ms = 250;

// Controls that need more room than the screen has can be scrolled.
// @returns whether it came to that
bool rendre_defilante(QWidget& fenetre) {
    QLayout* controles = fenetre.layout();
    const QSize place = fenetre.screen()->availableGeometry().size() - cadre(fenetre);
    if (controles == nullptr || qobject_cast<QMainWindow*>(&fenetre) != nullptr ||
        controles->minimumSize().boundedTo(place) == controles->minimumSize())
        return false;
    controles->setSizeConstraint(QLayout::SetDefaultConstraint);
    auto* contenu = new QWidget;
    contenu->setLayout(controles); // takes the controls along
    auto* defilement = new QScrollArea;
    defilement->setFrameShape(QFrame::NoFrame);
    defilement->setWidgetResizable(true);
    defilement->setWidget(contenu);
    defilement->setFocusPolicy(Qt::NoFocus);
    auto* seul = new QVBoxLayout(&fenetre);
    seul->setContentsMargins({});
    seul->addWidget(defilement);
    fenetre.setMinimumSize(0, 0);
    fenetre.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const int barre = fenetre.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &fenetre);
    fenetre.resize(fenetre.size() + QSize(barre, 0));
    defilement->show(); // the window may be there already
    seul->activate();
    return true;
}

// Within the limits that its controls set.
void ramener_dans_l_ecran(QWidget& fenetre) {
    const QSize bords = cadre(fenetre);
    const QRect voulu = dans_l_ecran({fenetre.pos(), fenetre.size() + bords},
                                     fenetre.screen()->availableGeometry());
    if (voulu.size() != fenetre.size() + bords)
        fenetre.resize(voulu.size() - bords);
    if (voulu.topLeft() != fenetre.pos())
        fenetre.move(voulu.topLeft());
}

class Place final : public QObject {
public:
    explicit Place(QWidget& fenetre) : QObject(&fenetre), fenetre_(fenetre) {
        fenetre.installEventFilter(this);
        choisie_ = fenetre.restoreGeometry(QSettings().value(cle()).toByteArray());
    }

    void proposer(QPoint ou) {
        if (choisie_ || deplacee())
            return;
        fenetre_.move(ou);
        ramener_dans_l_ecran(fenetre_);
        proposee_ = fenetre_.pos();
    }

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (objet != &fenetre_ || !fenetre_.isWindow()) // docked in another one
            return false;
        if (evenement->type() == QEvent::Show && !evenement->spontaneous())
            montrer();
        if (evenement->type() == QEvent::Hide)
            retenir();
        if (objet == &fenetre_ && evenement->type() == QEvent::LayoutRequest)
            QMetaObject::invokeMethod(
                this, [this] { suivre_les_controles(); }, Qt::QueuedConnection);
        return false;
    }

private:
    QString cle() const { return "places/" + fenetre_.objectName(); }

    void montrer() {
        rendre_defilante(fenetre_);
        ramener_dans_l_ecran(fenetre_);
        QTimer::singleShot(cadre_connu_ms, &fenetre_, [this] {
            if (fenetre_.isVisible() && !fenetre_.isMaximized() && !fenetre_.isFullScreen())
                ramener_dans_l_ecran(fenetre_);
        });
        if (!taille_)
            taille_ = fenetre_.size();
    }

    // Some appear later: a note, a list of warnings.
    void suivre_les_controles() {
        if (fenetre_.isVisible() && rendre_defilante(fenetre_))
            ramener_dans_l_ecran(fenetre_);
    }

    bool deplacee() const {
        return fenetre_.isVisible() && proposee_ &&
               (fenetre_.pos() - *proposee_).manhattanLength() > ecart_du_cadre;
    }

    // What the user left as the program put it is chosen anew at the next start.
    void retenir() {
        const bool comme_propose =
            proposee_ && (fenetre_.pos() - *proposee_).manhattanLength() <= ecart_du_cadre;
        if (!comme_propose || fenetre_.size() != taille_)
            choisie_ = true;
        if (choisie_)
            QSettings().setValue(cle(), fenetre_.saveGeometry());
    }

    QWidget& fenetre_;
    bool choisie_ = false; ///< the user's own place, from now or an earlier start
    std::optional<QPoint> proposee_;
    std::optional<QSize> taille_; ///< when it was first shown
};

Place* place_de(const QWidget& fenetre) {
    for (QObject* enfant : fenetre.children())
        if (auto* place = dynamic_cast<Place*>(enfant))
            return place;
    return nullptr;
}

} // namespace

QSize cadre(const QWidget& fenetre) {
    constexpr QSize habituel{4, 38};
    return (fenetre.frameGeometry().size() - fenetre.size()).expandedTo(habituel);
}

QRect dans_l_ecran(QRect cadre, const QRect& ecran) {
    cadre.setSize(cadre.size().boundedTo(ecran.size()));
    cadre.moveLeft(std::clamp(cadre.left(), ecran.left(), ecran.right() + 1 - cadre.width()));
    cadre.moveTop(std::clamp(cadre.top(), ecran.top(), ecran.bottom() + 1 - cadre.height()));
    return cadre;
}

void retenir_place(QWidget& fenetre) {
    new Place(fenetre); // belongs to the window
}

void proposer_place(QWidget& fenetre, QPoint ou) {
    if (Place* place = place_de(fenetre))
        place->proposer(ou);
    else
        fenetre.move(ou);
}
