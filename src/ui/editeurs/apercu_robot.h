#pragma once

#include "config/document_robot.h"
#include "sim/contour.h"
#include "ui/commun/vue_echelle.h"

#include <QTimer>

#include <memory>

/// The robot on the table at its initial pose, drawn as the simulator draws it. Dragging it moves
/// the pose, dragging the end of its arrow turns it, the wheel of the mouse zooms; it can be seen
/// turning about its reference point at its own speed.
class ApercuRobot final : public VueEchelle {
public:
    struct Pose {
        float x, y; ///< cm
        float cap;  ///< degrees, -179..180
    };

    explicit ApercuRobot(QWidget* parent);

    /// A drag ended. @param nom  what it did, for the undo menu
    std::function<void(const Pose& pose, const QString& nom)> a_la_pose;

    void montrer(const DocumentRobot& robot);
    /// Puts the robot on the table of that state, upright.
    void regler_table(const Etat& table);
    double largeur_table() const { return e_->XMax; } ///< cm
    void tourner(bool oui);

protected:
    QRectF etendue() const override;
    void peindre(QPainter& peintre) override;
    void peindre_dessus(QPainter& peintre) override;
    void presser(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void glisser(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void relacher(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void survoler(QPointF pixels) override;
    void abandonner() override;

private:
    enum class Geste { aucun, deplacer, orienter };

    void avancer();
    QPointF pointe() const; ///< end of the arrow, pixels
    bool sur_la_pointe(QPointF pixels) const;

    std::unique_ptr<Etat> e_;
    Contour contour_;
    QTimer horloge_;
    Geste geste_ = Geste::aucun;
    bool change_ = false; ///< the present drag has moved something
};
