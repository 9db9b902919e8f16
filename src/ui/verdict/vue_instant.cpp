#include "ui/verdict/vue_instant.h"

#include "analyse/trace.h"
#include "draw/robot.h"
#include "draw/table.h"
#include "ui/commun/surface_qt.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace {

constexpr double opacite_de_la_suite = 0.4;

} // namespace

VueInstant::VueInstant(QWidget* parent) : VueEchelle(parent) {
    setObjectName("vueInstant");
    setAccessibleName("Table à l'instant du curseur");
    regler_grille(0);
}

void VueInstant::montrer(const Etat& e, const Analyse& a, const GenresMasques& masques) {
    e_ = &e;
    a_ = &a;
    ++version_;
    constats_.clear();
    std::ranges::copy_if(a.constats, std::back_inserter(constats_),
                         [&](const Constat& c) { return !masques.contient(c.genre); });
    modeles_.clear();
    for (const Bilan& b : a.robots)
        modeles_.push_back({Contour(e, b.robot), Silhouette(e, b.robot)});
    if (camera().ajustee())
        ajuster();
    update();
}

void VueInstant::montrer_instant(std::int32_t temps) {
    temps_ = temps;
    update();
}

void VueInstant::choisir_robot(int robot) {
    robot_ = robot;
    update();
}

void VueInstant::montrer_place(std::optional<QPointF> cm) {
    place_ = cm;
    if (cm)
        faire_voir(*cm);
    update();
}

QRectF VueInstant::etendue() const {
    constexpr QRectF table_vide{0, 0, 200, 320};
    if (e_ == nullptr || e_->XMax < 1 || e_->YMax < 1)
        return table_vide;
    return {-double(marge_table), -double(marge_table), e_->XMax + 2.0 * marge_table,
            e_->YMax + 2.0 * marge_table};
}

// What is still to come is paler.
void VueInstant::peindre(QPainter& peintre) {
    if (a_ == nullptr)
        return;
    const Cle cle{camera(), version_, 0};
    peintre.drawPixmap(0, 0, fond_.image(*this, cle, [this](QPainter& p) { peindre_la_table(p); }));
    peintre.setOpacity(opacite_de_la_suite);
    peintre.drawPixmap(0, 0,
                       suite_.image(*this, cle, [this](QPainter& p) { peindre_la_suite(p); }));
    peintre.setOpacity(1);
}

// A table that cannot be drawn is a finding.
void VueInstant::peindre_la_table(QPainter& peintre) const {
    SurfaceQt surface(peintre, size());
    orienter(surface);
    try {
        peindre_table(*e_, surface, arrondir16(std::min(pixels_par_cm() * 15, 32000.0)));
    } catch (const ErreurExecution&) {
        peintre.fillRect(rect(), palette().color(QPalette::Dark));
    }
}

void VueInstant::peindre_la_suite(QPainter& peintre) const {
    SurfaceQt surface(peintre, size());
    orienter(surface);
    dessiner_trace(*e_, a_->match, {.secondes = false, .actions = false}, surface);
}

void VueInstant::peindre_les_reperes(QPainter& peintre) const {
    SurfaceQt surface(peintre, size());
    orienter(surface);
    dessiner_trace(*e_, a_->match, {.robot = robot_, .chemin = false, .constats = constats_},
                   surface);
}

void VueInstant::peindre_dessus(QPainter& peintre) {
    if (a_ == nullptr || a_->robots.empty())
        return;
    peindre_le_passe(peintre);
    peintre.drawPixmap(0, 0,
                       reperes_.image(*this, {camera(), version_, robot_},
                                      [this](QPainter& p) { peindre_les_reperes(p); }));
    peindre_les_robots(peintre);
    if (!place_)
        return;
    peintre.setBrush(Qt::NoBrush);
    for (const auto& [couleur, largeur] :
         {std::pair{QColor(Qt::white), 5.0}, std::pair{QColor(176, 0, 32), 2.5}}) {
        peintre.setPen(QPen(couleur, largeur));
        peintre.drawEllipse(en_pixels(*place_), 16, 16);
    }
}

void VueInstant::peindre_le_passe(QPainter& peintre) const {
    SurfaceQt surface(peintre, size());
    orienter(surface);
    dessiner_trace(*e_, a_->match, {.jusqu_a = temps_, .secondes = false, .actions = false},
                   surface);
}

void VueInstant::peindre_les_robots(QPainter& peintre) const {
    SurfaceQt surface(peintre, size());
    orienter(surface);
    for (std::size_t i = 0; i < modeles_.size(); ++i) {
        const PoseTick& pose = a_->match.pose(a_->robots[i].robot, temps_);
        modeles_[i].silhouette.peindre(pose.x, pose.y, pose.cap, surface);
        surface.epaisseur(2);
        peindre_contour(modeles_[i].contour, pose.x, pose.y, pose.cap, surface);
    }
}

void VueInstant::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Escape && !gestes().en_cours())
        evenement->ignore(); // it closes the window
    else
        VueEchelle::keyPressEvent(evenement);
}
