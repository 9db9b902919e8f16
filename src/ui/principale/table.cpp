#include "ui/principale/table.h"

#include "base/registres.h"
#include "draw/couleurs_robots.h"
#include "draw/robot.h"
#include "draw/table.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <cmath>
#include <utility>

namespace {

constexpr int remplir_apres_ms = 20; ///< the first painting has outlines alone: it is to be quick
constexpr int bord_du_trait = 2;     ///< logical pixels that a line reaches beyond its end points

void regler(Surface& s, double XMax, double YMax) {
    s.coordonnees(-marge_table, YMax + marge_table, XMax + marge_table, -marge_table);
}

Repere repere_de(QSize taille, double XMax, double YMax) {
    Repere r;
    r.regler(taille, -marge_table, YMax + marge_table, XMax + marge_table, -marge_table);
    return r;
}

bool fini(const Trait& t) {
    return std::isfinite(t.a.x + t.a.y + t.b.x + t.b.y);
}

// The whole pixels of lines within a box.
QRect pixels(const QRectF& boite) {
    return boite.adjusted(-bord_du_trait, -bord_du_trait, bord_du_trait, bord_du_trait)
        .toAlignedRect();
}

QImage image_du_numero(const Silhouette& silhouette, int cote, double densite,
                       double cm_par_pixel) {
    QImage image(cote, cote, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(densite);
    image.fill(Qt::transparent);
    QPainter peintre(&image);
    const double pixels = cote / densite;
    SurfaceQt surface(peintre, {pixels, pixels});
    const double demi = pixels * cm_par_pixel / 2;
    surface.coordonnees(-demi, demi, demi, -demi);
    silhouette.peindre_numero({0, 0}, surface);
    return image;
}

// The whole table as the region to draw, for as long as this lives.
class ZoneEntiere {
public:
    explicit ZoneEntiere(Etat& etat) : e(etat), avant_(etat.ZoneRedessin) {
        e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    }
    ZoneEntiere(const ZoneEntiere&) = delete;
    ZoneEntiere& operator=(const ZoneEntiere&) = delete;
    ~ZoneEntiere() { e.ZoneRedessin = avant_; }

private:
    Etat& e;
    Region avant_;
};

} // namespace

Table::Table(Etat& etat, Fenetres& fenetres, QWidget* parent)
    : QWidget(parent), e(etat), f(fenetres) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

Repere Table::repere() const {
    return repere_de(size(), e.XMax, e.YMax);
}

// A picture keeps the scale it was painted with until the next one.
Repere Table::repere_dessine() const {
    return repere_de(size(), cle_dessinee_.XMax, cle_dessinee_.YMax);
}

void Table::Dessine_Table() {
    if (cle() == cle_dessinee_)
        return;
    if (fond_.isNull()) {
        const ZoneEntiere zone(e);
        SurfaceVide surface; // the errors alone; the drawing comes with the next painting
        if (!::Dessine_Table(e, surface, f, Echelle))
            return;
        cle_dessinee_ = cle();
    } else if (!peindre_fond())
        return;
    calculer_rectangles();
    update();
}

void Table::Dessine_Robot() {
    liberer_registres();                                  // the last tick was painted
    if (e.en_course && fond_.isNull() && !peindre_fond()) // a run begins
        return;
    signaler_robots(); // what they leave
    contours_.vider();
    poses_.clear();
    if (::Dessine_Robot(e, contours_, f))
        noter_poses();
    calculer_rectangles();
    signaler_robots(); // what they cover
}

Table::Cle Table::cle() const {
    return {e.version_table, Echelle, (QSizeF(size()) * devicePixelRatioF()).toSize(), e.XMax,
            e.YMax};
}

bool Table::peindre_fond() {
    const Cle nouvelle = cle();
    QImage image(nouvelle.taille.expandedTo({1, 1}), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(couleur_qt(couleurs::vert));
    QPainter peintre(&image);
    SurfaceQt surface(peintre, size());
    const ZoneEntiere zone(e);
    regler(surface, e.XMax, e.YMax);
    if (!::Dessine_Table(e, surface, f, Echelle))
        return false;
    peintre.end();
    fond_ = image;
    cle_dessinee_ = nouvelle;
    return true;
}

// A rectangle at a time: what is painted goes straight to the pixels of a single one.
void Table::peindre_robots(QPainter& peintre, const QRegion& region) {
    SurfaceQt surface(peintre, size());
    regler(surface, cle_dessinee_.XMax, cle_dessinee_.YMax);
    const auto traits = contours_.traits();
    for (const QRect& r : rectangles_) {
        if (!region.intersects(r))
            continue;
        peintre.setClipRect(r);
        peindre_silhouettes(r, peintre, surface);
        ici_.clear();
        for (std::size_t i = 0; i < traits.size(); ++i)
            if (rectangles_traits_[i].intersects(r))
                ici_.push_back(traits[i]);
        surface.lignes(ici_, couleurs::cyan);
    }
    peintre.setClipping(false);
}

// While nothing runs the robot files may have changed.
void Table::noter_poses() {
    if (!lisibles_)
        return;
    if (!e.en_course || !silhouettes_a_jour_)
        for (int i = 1; i <= robots_des_fichiers; ++i)
            silhouettes_[static_cast<std::size_t>(i)] = Silhouette(e, i);
    silhouettes_a_jour_ = true;
    for (int i = 1; i <= e.NbRobot; ++i) {
        poses_.push_back({i, e.XRobot(i), e.YRobot(i), e.CapRobot(i), {}});
    }
}

void Table::peindre_silhouettes(const QRect& ici, QPainter& peintre, SurfaceQt& surface) {
    for (const PoseDessinee& p : poses_) {
        if (!p.rectangle.intersects(ici))
            continue;
        const Silhouette& silhouette = silhouettes_[static_cast<std::size_t>(p.robot)];
        if (!e.en_course)
            silhouette.peindre(p.x, p.y, p.cap, surface);
        else
            peindre_vite(p, silhouette, peintre, surface);
    }
}

// A tick has no time for more than the mark's outline and a picture of the number.
void Table::peindre_vite(const PoseDessinee& p, const Silhouette& silhouette, QPainter& peintre,
                         SurfaceQt& surface) {
    const Forme r = silhouette.reperes(p.x, p.y, p.cap);
    const double rayon = silhouette.rayon_du_numero(surface.cm_par_pixel());
    if (!(std::isfinite(r[0].x + r[0].y) && rayon > 0))
        return;
    surface.lignes(std::array{Trait{r[1], r[2]}, Trait{r[2], r[3]}, Trait{r[3], r[1]}},
                   couleur_robot(p.robot));
    QImage& numero = numeros_[static_cast<std::size_t>(p.robot)];
    const int cote = 2 * static_cast<int>(std::ceil(rayon * devicePixelRatioF()));
    if (numero.width() != cote)
        numero = image_du_numero(silhouette, cote, devicePixelRatioF(), surface.cm_par_pixel());
    const double demi = cote / devicePixelRatioF() / 2;
    const QPointF ici = repere_dessine().point(r[0].x, r[0].y) - QPointF(demi, demi);
    peintre.drawImage(ici.toPoint(), numero);
}

void Table::redessiner_robots() {
    signaler_robots();
    calculer_rectangles();
    signaler_robots();
}

void Table::montrer_lisibles(bool oui) {
    if (std::exchange(lisibles_, oui) != oui && !contours_.vide())
        Dessine_Robot();
}

void Table::peindre_directement(QPainter& peintre) {
    const ZoneEntiere zone(e);
    SurfaceQt surface(peintre, size());
    regler(surface, e.XMax, e.YMax);
    peindre_table(e, surface, Echelle);
    surface.lignes(contours_.traits(), couleurs::cyan);
}

void Table::signaler_robots() {
    for (const QRect& r : rectangles_)
        update(r);
}

void Table::calculer_rectangles() {
    rectangles_.clear();
    rectangles_traits_.clear();
    const Repere r = repere_dessine();
    for (const Trait& t : contours_.traits()) {
        rectangles_traits_.push_back(fini(t) ? pixels(r.boite(t.a.x, t.a.y, t.b.x, t.b.y))
                                             : QRect());
        ajouter_rectangle(rectangles_traits_.back());
    }
    for (PoseDessinee& p : poses_) {
        p.rectangle = rectangle(p, r);
        ajouter_rectangle(p.rectangle);
    }
}

// The number lies between what is enclosed here.
QRect Table::rectangle(const PoseDessinee& p, const Repere& r) const {
    const Silhouette& silhouette = silhouettes_[static_cast<std::size_t>(p.robot)];
    QRectF boite = r.boite(silhouette.reperes(p.x, p.y, p.cap));
    if (!e.en_course)
        for (const Forme& forme : silhouette.formes())
            boite |= r.boite(placee(forme, p.x, p.y, p.cap));
    return boite.isEmpty() ? QRect() : pixels(boite);
}

// One rectangle for outlines that touch, so that two distant robots do not repaint what lies
// between them.
void Table::ajouter_rectangle(QRect r) {
    r &= rect();
    if (r.isEmpty())
        return;
    const bool complet = rectangles_.size() == rectangles_max;
    for (std::size_t i = 0; i < rectangles_.size();)
        if (complet || rectangles_[i].intersects(r)) {
            r |= rectangles_[i];
            rectangles_[i] = rectangles_.back();
            rectangles_.pop_back();
            i = 0; // larger now, it may meet those before
        } else
            ++i;
    rectangles_.push_back(r);
}

// True while the table is as it was drawn, whatever size it is shown at: painting it again cannot
// fail.
bool Table::meme_table() const {
    return !cle_dessinee_.taille.isEmpty() && e.version_table == cle_dessinee_.version &&
           Echelle == cle_dessinee_.Echelle;
}

// Through a region of several rectangles, rows would go to a pool of threads.
void Table::montrer_fond(QPainter& peintre, const QRegion& region) {
    for (const QRect& r : region) {
        peintre.setClipRect(r);
        peintre.drawImage(rect(), fond_);
    }
    peintre.setClipping(false);
}

void Table::paintEvent(QPaintEvent* evenement) {
    const bool a_garder = !fond_.isNull() ? cle() != cle_dessinee_ : peinte_;
    if (a_garder && meme_table())
        peindre_fond();
    QPainter peintre(this);
    if (!fond_.isNull()) {
        montrer_fond(peintre, evenement->region());
        peindre_robots(peintre, evenement->region());
    } else if (meme_table()) {
        peindre_directement(peintre);
        if (!std::exchange(peinte_, true) && !poses_.empty())
            QTimer::singleShot(remplir_apres_ms, this, [this] { update(); });
    } else // before the first drawing
        peintre.fillRect(evenement->rect(), palette().window());
    if (par_dessus)
        par_dessus(peintre);
}

void Table::resizeEvent(QResizeEvent* evenement) {
    QWidget::resizeEvent(evenement);
    calculer_rectangles();
}

void Table::mouseReleaseEvent(QMouseEvent* evenement) {
    if (evenement->button() == Qt::LeftButton && rect().contains(evenement->pos()) && au_clic)
        au_clic();
}

void Table::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return)
        au_clic();
    else
        QWidget::keyPressEvent(evenement);
}
