#include "ui/apercu_robot.h"

#include "draw/robot.h"
#include "draw/table.h"
#include "ui/surface_qt.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr int intervalle = 30; ///< between two pictures of the turning robot, ms
}

ApercuRobot::ApercuRobot(QWidget* parent)
    : VueEchelle(parent), e_(std::make_unique<Etat>()), horloge_(this) {
    setObjectName("apercuRobot");
    setAccessibleName("Position initiale du robot sur la table");
    setToolTip("Tirer le robot pour changer sa position initiale.");
    setMinimumSize(160, 200);
    regler_grille(5);
    regler_table(200, 320);
    connect(&horloge_, &QTimer::timeout, this, [this] { avancer(); });
}

void ApercuRobot::regler_table(int XMax, int YMax) {
    e_->XMax = XMax;
    e_->YMax = YMax;
    ajuster();
}

void ApercuRobot::montrer(const DocumentRobot& robot) {
    const float cap = e_->CapRobot(1);
    e_->NbRobot = 1;
    e_->XInit(1) = e_->YInit(1) = e_->CapInit(1) = 0;
    e_->VitesseRot(1) = 0;
    robot.remplir(*e_);
    if (horloge_.isActive())
        e_->CapRobot(1) = cap;
    update();
}

void ApercuRobot::tourner(bool oui) {
    if (oui)
        horloge_.start(intervalle);
    else
        horloge_.stop();
    e_->CapRobot(1) = e_->CapInit(1);
    update();
}

void ApercuRobot::avancer() {
    const float pas = e_->VitesseRot(1) * intervalle / 10; // hundredths of a second
    e_->CapRobot(1) = std::fmod(e_->CapRobot(1) + pas, 360.0F);
    update();
}

QRectF ApercuRobot::etendue() const {
    return {-double(marge_table), -double(marge_table), e_->XMax + 2.0 * marge_table,
            e_->YMax + 2.0 * marge_table};
}

void ApercuRobot::peindre(QPainter& peintre) {
    SurfaceQt surface(peintre, size());
    orienter(surface);
    e_->ZoneRedessin = {-marge_table, e_->XMax + marge_table, -marge_table, e_->YMax + marge_table};
    peindre_table(*e_, surface);
    try {
        peindre_robots(*e_, surface);
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // A robot too far away for the simulator's 16 bits is not in the picture either.
    }
}

void ApercuRobot::presser(QPointF pixels, Qt::KeyboardModifiers) {
    depart_ = en_cm(pixels);
    deplace_ = false;
}

void ApercuRobot::glisser(QPointF pixels, Qt::KeyboardModifiers touches) {
    const QPointF pose =
        aimanter(QPointF(e_->XInit(1), e_->YInit(1)) + en_cm(pixels) - depart_, touches);
    e_->XRobot(1) = static_cast<float>(std::clamp(pose.x(), -32768.0, 32767.0));
    e_->YRobot(1) = static_cast<float>(std::clamp(pose.y(), -32768.0, 32767.0));
    deplace_ = true;
    update();
}

void ApercuRobot::relacher(QPointF, Qt::KeyboardModifiers) {
    if (std::exchange(deplace_, false))
        a_la_pose(e_->XRobot(1), e_->YRobot(1));
}

void ApercuRobot::abandonner() {
    deplace_ = false;
    e_->XRobot(1) = e_->XInit(1);
    e_->YRobot(1) = e_->YInit(1);
    update();
}
