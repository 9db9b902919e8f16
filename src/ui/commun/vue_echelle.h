#pragma once

#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QWidget>

#include <functional>

class SurfaceQt;

/// A drawing to scale, in centimetres, y upwards: rulers, grid, zoom at the cursor with the wheel,
/// panning with the middle button or the space bar. What is drawn and what the left button does is
/// up to the derived view. Positions in pixels are this widget's logical ones.
class VueEchelle : public QWidget {
public:
    explicit VueEchelle(QWidget* parent);

    std::function<void(QPointF cm)> au_deplacement; ///< the cursor moved

    /// @param pas  1, 5 or 10 cm
    void regler_grille(int pas);
    int grille() const { return grille_; }
    /// Shows the whole drawing, and again whenever the window's size changes.
    void ajuster();
    void zoomer(double facteur, QPointF autour);

    QPointF en_cm(QPointF pixels) const;
    QPointF en_pixels(QPointF cm) const;
    QRectF en_pixels(QRectF cm) const;
    double pixels_par_cm() const { return echelle_; }
    /// The nearest point of the grid; without it the nearest whole centimetre.
    QPointF aimanter(QPointF cm, Qt::KeyboardModifiers touches) const;
    /// Alt or Ctrl held suspends the grid: many window managers keep Alt and the mouse to
    /// themselves.
    static bool sans_grille(Qt::KeyboardModifiers touches) {
        return (touches & (Qt::AltModifier | Qt::ControlModifier)) != 0;
    }

protected:
    /// What "fit" shows (cm).
    virtual QRectF etendue() const = 0;
    virtual void peindre(QPainter& peintre) = 0;
    virtual void peindre_dessus(QPainter& peintre) = 0;
    virtual void presser(QPointF pixels, Qt::KeyboardModifiers touches) = 0;
    virtual void glisser(QPointF pixels, Qt::KeyboardModifiers touches) = 0;
    virtual void relacher(QPointF pixels, Qt::KeyboardModifiers touches) = 0;
    virtual void survoler(QPointF) {}
    virtual void abandonner() = 0; ///< Escape, or a gesture that was cut short

    /// Sets a surface to this view's coordinates.
    void orienter(SurfaceQt& surface) const;

    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void keyReleaseEvent(QKeyEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;

private:
    /// What the grid and the rulers depend on.
    struct Cadrage {
        QSize taille;
        QPointF centre;
        double echelle = 0, densite = 0;
        int grille = 0;
        qint64 couleurs = 0;
        bool operator==(const Cadrage&) const = default;
    };

    void preparer_fonds();
    void peindre_grille(QPainter& peintre) const;
    void peindre_regles(QPainter& peintre) const;
    void peindre_curseur(QPainter& peintre) const;
    void cadrer();
    void couper_le_geste();

    QPointF centre_{100, 160}; ///< cm, in the middle of the view
    double echelle_ = 2;       ///< logical pixels per cm
    int grille_ = 5;
    bool ajuste_ = true;
    bool espace_ = false;                   ///< the space bar is held
    Qt::MouseButton bouton_ = Qt::NoButton; ///< that holds the present gesture
    bool panoramique_ = false;              ///< it moves the view
    QPointF dernier_;                       ///< last position of the cursor (pixels)
    // Painted once a framing: their many translucent lines cost more than the whole drawing.
    Cadrage cadrage_;
    QPixmap fond_grille_, fond_regles_;
};
