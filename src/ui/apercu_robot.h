#pragma once

#include "config/document_robot.h"
#include "ui/vue_echelle.h"

#include <QTimer>

#include <memory>

/// The robot on the table at its initial pose, drawn as the simulator draws it. Dragging it moves
/// the pose, the wheel of the mouse zooms; it can be seen turning about its reference point at its
/// own speed.
class ApercuRobot final : public VueEchelle {
public:
    explicit ApercuRobot(QWidget* parent);

    /// A drag ended: the new position (cm).
    std::function<void(double x, double y)> a_la_pose;

    void montrer(const DocumentRobot& robot);
    /// Extent of the table (cm).
    void regler_table(int XMax, int YMax);
    void tourner(bool oui);

protected:
    QRectF etendue() const override;
    void peindre(QPainter& peintre) override;
    void peindre_dessus(QPainter&) override {}
    void presser(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void glisser(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void relacher(QPointF pixels, Qt::KeyboardModifiers touches) override;
    void abandonner() override;

private:
    void avancer();

    std::unique_ptr<Etat> e_;
    QTimer horloge_;
    QPointF depart_;
    bool deplace_ = false;
};
