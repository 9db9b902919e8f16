#include "ui/place.h"

#include <QEvent>
#include <QSettings>
#include <QWidget>

#include <optional>

namespace {

/// A window manager shifts a window by its frame; only more than that is a move by the user.
constexpr int ecart_du_cadre = 60;

class Place final : public QObject {
public:
    explicit Place(QWidget& fenetre) : QObject(&fenetre), fenetre_(fenetre) {
        fenetre.installEventFilter(this);
        choisie_ = fenetre.restoreGeometry(QSettings().value(cle()).toByteArray());
    }

    void proposer(QPoint ou) {
        if (choisie_ || deplacee())
            return;
        proposee_ = ou;
        fenetre_.move(ou);
    }

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (objet == &fenetre_ && evenement->type() == QEvent::Show && !taille_)
            taille_ = fenetre_.size();
        if (objet == &fenetre_ && evenement->type() == QEvent::Hide)
            retenir();
        return false;
    }

private:
    QString cle() const { return "places/" + fenetre_.objectName(); }

    bool deplacee() const {
        return fenetre_.isVisible() && proposee_ &&
               (fenetre_.pos() - *proposee_).manhattanLength() > ecart_du_cadre;
    }

    // What the user left as the program put it is chosen anew at the next start.
    void retenir() {
        const bool comme_propose =
            proposee_ && (fenetre_.pos() - *proposee_).manhattanLength() <= ecart_du_cadre;
        if (choisie_ || !comme_propose || fenetre_.size() != taille_)
            QSettings().setValue(cle(), fenetre_.saveGeometry());
    }

    QWidget& fenetre_;
    bool choisie_ = false; ///< the user's own place, from an earlier start
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

void retenir_place(QWidget& fenetre) {
    new Place(fenetre); // belongs to the window
}

void proposer_place(QWidget& fenetre, QPoint ou) {
    if (Place* place = place_de(fenetre))
        place->proposer(ou);
    else
        fenetre.move(ou);
}
