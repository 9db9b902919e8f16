#pragma once

#include "ui/commun/camera.h"
#include "ui/commun/couche.h"
#include "ui/commun/gestes.h"

#include <QWidget>

#include <functional>

class SurfaceQt;

/// A drawing to scale, in centimetres, y upwards: rulers, grid, zoom at the cursor with the wheel
/// or in the middle with "+" and "-", panning with the middle button, the space bar, or the arrows
/// with Ctrl and Shift. What is drawn and what the left button does is up to the derived view.
/// Positions in pixels are this widget's logical ones.
class VueEchelle : public QWidget {
public:
    explicit VueEchelle(QWidget* parent);

    std::function<void(QPointF cm)> au_deplacement; ///< the cursor moved

    /// @param pas  1, 5 or 10 cm; 0: no grid is shown
    void regler_grille(int pas);
    int grille() const { return grille_; }
    void montrer_grille(bool oui);
    /// Without, whole centimetres.
    void accrocher(bool oui) { accroche_ = oui; }
    /// Shows the whole drawing, and again whenever the window's size changes.
    void ajuster();
    void zoomer(double facteur, QPointF autour);
    /// Moves the view so that a place (cm) is in it, and not at all where it is already.
    void faire_voir(QPointF cm);

    QPointF en_cm(QPointF pixels) const { return camera_.en_cm(pixels); }
    QPointF en_pixels(QPointF cm) const { return camera_.en_pixels(cm); }
    QRectF en_pixels(QRectF cm) const { return camera_.en_pixels(cm); }
    double pixels_par_cm() const { return camera_.echelle(); }
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

    const Camera& camera() const { return camera_; }
    /// Where the present gesture began and has come to.
    const Gestes& gestes() const { return gestes_; }
    /// Sets a surface to this view's coordinates.
    void orienter(SurfaceQt& surface) const;

    bool event(QEvent* evenement) override;
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
    /// What the grid's lines depend on.
    struct Quadrillage {
        Camera camera;
        int pas;
        bool operator==(const Quadrillage&) const = default;
    };

    void suivre(Gestes::Suite suite, Qt::KeyboardModifiers touches = {});
    void peindre_regles(QPainter& peintre) const;
    void peindre_curseur(QPainter& peintre) const;
    void cadrer();

    Camera camera_;
    Gestes gestes_;
    int grille_ = 5; ///< cm
    bool grille_montree_ = true;
    bool accroche_ = true; ///< what the mouse places is put onto the grid
    // Their many translucent lines cost more than the whole drawing.
    Couche<Quadrillage> fond_grille_;
    Couche<Camera> fond_regles_;
};
