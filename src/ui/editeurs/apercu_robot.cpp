#include "ui/editeurs/apercu_robot.h"

#include "draw/robot.h"
#include "draw/table.h"
#include "sim/orientation.h"
#include "ui/commun/surface_qt.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr int intervalle = 30;     ///< between two pictures of the turning robot, ms
constexpr double fleche = 56;      ///< length of the arrow, logical pixels
constexpr double rayon_pointe = 6; ///< of the disc at its end
constexpr double pas_cap = 5;      ///< degrees; 1 without the grid
const QColor teinte(200, 0, 0);
} // namespace

ApercuRobot::ApercuRobot(QWidget* parent)
    : VueEchelle(parent), e_(std::make_unique<Etat>()), horloge_(this) {
    setObjectName("apercuRobot");
    setAccessibleName("Position initiale du robot sur la table");
    setToolTip("Tirer le robot change sa position initiale, tirer la flèche son cap (Alt ou Ctrl : "
               "au centimètre, au degré).");
    setMinimumSize(160, 140);
    regler_grille(5);
    e_->XMax = 200;
    e_->YMax = 320;
    connect(&horloge_, &QTimer::timeout, this, [this] { avancer(); });
}

void ApercuRobot::regler_table(const Etat& table) {
    *e_ = table;
    e_->XRobot = e_->YRobot = e_->XInit = e_->YInit = {};
    if (e_->TableHorizontale)
        vertical(*e_);
    ajuster();
}

void ApercuRobot::montrer(const DocumentRobot& robot) {
    const float cap = e_->CapRobot(1);
    e_->NbRobot = 1;
    e_->XInit(1) = e_->YInit(1) = e_->CapInit(1) = 0;
    e_->VitesseRot(1) = 0;
    robot.remplir(*e_);
    contour_ = Contour(*e_, 1);
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
    peindre_table(*e_, surface, arrondir16(std::min(pixels_par_cm() * 15, 32000.0)));
    peindre_contour(contour_, e_->XRobot(1), e_->YRobot(1), e_->CapRobot(1), surface);
}

QPointF ApercuRobot::pointe() const {
    const double cap = radians(e_->CapRobot(1));
    return en_pixels(QPointF(e_->XRobot(1), e_->YRobot(1))) +
           fleche * QPointF(std::cos(cap), -std::sin(cap));
}

bool ApercuRobot::sur_la_pointe(QPointF pixels) const {
    return !horloge_.isActive() && (pixels - pointe()).manhattanLength() <= 2 * rayon_pointe;
}

void ApercuRobot::peindre_dessus(QPainter& peintre) {
    if (horloge_.isActive())
        return;
    const QPointF robot = en_pixels(QPointF(e_->XRobot(1), e_->YRobot(1)));
    for (const QPen& trait : {QPen(Qt::white, 4), QPen(teinte, 2)}) { // seen on any floor
        peintre.setPen(trait);
        peintre.drawLine(robot, pointe());
    }
    peintre.setBrush(Qt::white);
    peintre.drawEllipse(pointe(), rayon_pointe, rayon_pointe);
    if (geste_ == Geste::orienter)
        peintre.drawText(pointe() + QPointF(10, -8), QString("%1°").arg(e_->CapRobot(1)));
}

void ApercuRobot::presser(QPointF pixels, Qt::KeyboardModifiers) {
    geste_ = sur_la_pointe(pixels) ? Geste::orienter : Geste::deplacer;
    change_ = false;
}

void ApercuRobot::glisser(QPointF pixels, Qt::KeyboardModifiers touches) {
    const QPointF ici = en_cm(pixels);
    if (geste_ == Geste::orienter) {
        const QPointF bras = ici - QPointF(e_->XRobot(1), e_->YRobot(1));
        const double pas = sans_grille(touches) ? 1 : pas_cap;
        const double cap = std::round(std::atan2(bras.y(), bras.x()) * 180 / Pi / pas) * pas;
        e_->CapRobot(1) = static_cast<float>(cap == -180 ? 180 : cap);
    } else {
        const QPointF pose =
            aimanter(QPointF(e_->XInit(1), e_->YInit(1)) + ici - en_cm(gestes().depart()), touches);
        e_->XRobot(1) = static_cast<float>(std::clamp(pose.x(), -32768.0, 32767.0));
        e_->YRobot(1) = static_cast<float>(std::clamp(pose.y(), -32768.0, 32767.0));
    }
    change_ = true;
    update();
}

void ApercuRobot::relacher(QPointF, Qt::KeyboardModifiers) {
    const Geste geste = std::exchange(geste_, Geste::aucun);
    if (!std::exchange(change_, false))
        return;
    const float cap = geste == Geste::orienter ? e_->CapRobot(1) : e_->CapInit(1);
    a_la_pose({e_->XRobot(1), e_->YRobot(1), cap},
              geste == Geste::orienter ? "Orienter le départ" : "Déplacer le départ");
}

void ApercuRobot::survoler(QPointF pixels) {
    setCursor(sur_la_pointe(pixels) ? Qt::PointingHandCursor : Qt::SizeAllCursor);
}

void ApercuRobot::abandonner() {
    geste_ = Geste::aucun;
    change_ = false;
    e_->XRobot(1) = e_->XInit(1);
    e_->YRobot(1) = e_->YInit(1);
    e_->CapRobot(1) = e_->CapInit(1);
    update();
}
