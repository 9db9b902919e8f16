#pragma once

#include <QPointF>
#include <Qt>

/// The one gesture of the mouse that goes on in a view, from the press of its button to the
/// release, or to what cuts it short. It knows no window: each event is told, and what it returns
/// is left to do.
class Gestes {
public:
    enum class Suite {
        rien,
        survoler,        ///< the mouse moves, no button is held
        presser,         ///< of the drawing's button: begins,
        glisser,         ///< goes on,
        relacher,        ///< ends,
        abandonner,      ///< was cut short: as if it had not been
        prendre_la_vue,  ///< of the middle button, or with the space bar: begins,
        deplacer_la_vue, ///< moves what is seen by ecart(),
        lacher_la_vue    ///< ends, in whatever way
    };

    /// Another button than the one that holds a gesture cuts it.
    Suite presser(Qt::MouseButton bouton, QPointF ici);
    /// A gesture whose button was released where nobody told us is cut.
    Suite bouger(Qt::MouseButtons boutons, QPointF ici);
    Suite relacher(Qt::MouseButton bouton, QPointF ici);
    /// Escape, the keyboard gone elsewhere.
    Suite couper();
    void tenir_espace(bool oui) { espace_ = oui; }

    bool en_cours() const { return bouton_ != Qt::NoButton; }
    QPointF depart() const { return depart_; } ///< where the button was pressed, pixels
    QPointF ici() const { return ici_; }
    QPointF ecart() const { return ici_ - avant_; } ///< since the event before
    /// Further from the press than a click slips.
    bool loin() const { return (ici_ - depart_).manhattanLength() > 3; }

private:
    void aller(QPointF ici) {
        avant_ = ici_;
        ici_ = ici;
    }

    Qt::MouseButton bouton_ = Qt::NoButton; ///< that holds the present gesture
    bool vue_ = false;                      ///< it moves the view
    bool espace_ = false;                   ///< the space bar is held
    QPointF depart_, avant_, ici_;
};
