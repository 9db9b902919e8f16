#include "ui/principale/table.h"

#include "draw/couleurs_robots.h"
#include "draw/robot.h"
#include "draw/table.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <cmath>
#include <cstring>
#include <utility>

namespace {

constexpr int remplir_apres_ms = 20; ///< the first painting has outlines alone: it is to be quick
constexpr int bord_du_trait = 2;     ///< logical pixels that a line reaches beyond its end points

void regler(Surface& s, const Etat& e) {
    s.coordonnees(-marge_table, e.YMax + marge_table, e.XMax + marge_table, -marge_table);
}

// Gives a rectangle (device pixels) of one picture the look it has in another of the same size.
void copier(QImage& vers, const QImage& de, const QRect& rectangle) {
    const QRect r = rectangle.intersected(de.rect());
    const auto octets = static_cast<std::size_t>(r.width()) * sizeof(QRgb);
    for (int y = r.top(); y <= r.bottom(); ++y)
        std::memcpy(reinterpret_cast<QRgb*>(vers.scanLine(y)) + r.left(),
                    reinterpret_cast<const QRgb*>(de.constScanLine(y)) + r.left(), octets);
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
    Repere r;
    r.regler(size(), -marge_table, e.YMax + marge_table, e.XMax + marge_table, -marge_table);
    return r;
}

void Table::Dessine_Table() {
    if (cle() == cle_dessinee_)
        return;
    if (image_.isNull()) {
        const ZoneEntiere zone(e);
        SurfaceVide surface; // the errors alone; the drawing comes with the next painting
        if (!::Dessine_Table(e, surface, f, Echelle))
            return;
        cle_dessinee_ = cle();
    } else if (!peindre_fond())
        return;
    peindre_robots();
    update();
}

void Table::Dessine_Robot() {
    if (e.en_course && image_.isNull() && !peindre_fond()) // a run begins
        return;
    effacer_robots();
    signaler_robots(); // what they leave
    contours_.vider();
    poses_.clear();
    if (::Dessine_Robot(e, contours_, f))
        noter_poses();
    peindre_robots();
    signaler_robots(); // what they cover
}

Table::Cle Table::cle() const {
    return {e.version_table, Echelle, (QSizeF(size()) * devicePixelRatioF()).toSize()};
}

bool Table::peindre_fond() {
    const Cle nouvelle = cle();
    QImage image(nouvelle.taille.expandedTo({1, 1}), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(couleur_qt(couleurs::vert));
    QPainter peintre(&image);
    SurfaceQt surface(peintre, size());
    const ZoneEntiere zone(e);
    regler(surface, e);
    if (!::Dessine_Table(e, surface, f, Echelle))
        return false;
    peintre.end();
    fond_ = image;
    image_ = image.copy();
    cle_dessinee_ = nouvelle;
    return true;
}

void Table::peindre_robots() {
    calculer_rectangles();
    if (image_.isNull() || nombre_rectangles_ == 0)
        return;
    QPainter peintre(&image_);
    peindre_contours(peintre);
}

void Table::peindre_contours(QPainter& peintre) {
    SurfaceQt surface(peintre, size());
    regler(surface, e);
    peindre_silhouettes(peintre, surface);
    surface.lignes(contours_.traits(), couleurs::cyan);
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
        poses_.push_back({i, e.XRobot(i), e.YRobot(i), e.CapRobot(i)});
    }
}

void Table::peindre_silhouettes(QPainter& peintre, SurfaceQt& surface) {
    for (const PoseDessinee& p : poses_) {
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
    const QPointF ici = repere().point(r[0].x, r[0].y) - QPointF(demi, demi);
    peintre.drawImage(ici.toPoint(), numero);
}

void Table::redessiner_robots() {
    effacer_robots();
    peindre_robots();
    signaler_robots();
}

void Table::montrer_lisibles(bool oui) {
    if (std::exchange(lisibles_, oui) != oui && !contours_.vide())
        Dessine_Robot();
}

void Table::peindre_directement(QPainter& peintre) {
    const ZoneEntiere zone(e);
    SurfaceQt surface(peintre, size());
    regler(surface, e);
    peindre_table(e, surface, Echelle);
    surface.lignes(contours_.traits(), couleurs::cyan);
}

void Table::effacer_robots() {
    if (image_.isNull())
        return;
    const double densite = image_.devicePixelRatio();
    for (int i = 0; i < nombre_rectangles_; ++i) {
        const QRect& r = rectangles_[static_cast<std::size_t>(i)];
        copier(image_, fond_,
               QRectF(QPointF(r.topLeft()) * densite, QSizeF(r.size()) * densite).toAlignedRect());
    }
}

void Table::signaler_robots() {
    for (int i = 0; i < nombre_rectangles_; ++i)
        update(rectangles_[static_cast<std::size_t>(i)]);
}

void Table::calculer_rectangles() {
    nombre_rectangles_ = 0;
    const Repere r = repere();
    for (const Trait& t : contours_.traits())
        if (std::isfinite(t.a.x + t.a.y + t.b.x + t.b.y))
            ajouter_rectangle(r.boite(t.a.x, t.a.y, t.b.x, t.b.y));
    if (e.en_course) // what is painted then lies within the outline
        return;
    for (const PoseDessinee& p : poses_)
        for (const Forme& forme : silhouettes_[static_cast<std::size_t>(p.robot)].formes())
            if (const QRectF boite = r.boite(placee(forme, p.x, p.y, p.cap)); !boite.isEmpty())
                ajouter_rectangle(boite);
}

// One rectangle for outlines that touch, so that two distant robots do not repaint what lies
// between them.
void Table::ajouter_rectangle(const QRectF& boite) {
    QRect r = boite.adjusted(-bord_du_trait, -bord_du_trait, bord_du_trait, bord_du_trait)
                  .intersected(rect())
                  .toAlignedRect();
    if (r.isEmpty())
        return;
    const auto debut = rectangles_.begin();
    auto fin = debut + nombre_rectangles_;
    for (auto it = debut; it != fin;)
        if (it->intersects(r)) {
            r |= *it;
            *it = *--fin;
            it = debut; // larger now, it may meet those before
        } else
            ++it;
    if (fin == rectangles_.end())
        *(fin - 1) |= r;
    else
        *fin++ = r;
    nombre_rectangles_ = static_cast<int>(fin - debut);
}

// True while the table is as it was drawn, whatever size it is shown at: painting it again cannot
// fail.
bool Table::meme_table() const {
    return !cle_dessinee_.taille.isEmpty() && e.version_table == cle_dessinee_.version &&
           Echelle == cle_dessinee_.Echelle;
}

// A rectangle at a time: through a region of several, rows go to a pool of threads.
void Table::montrer_image(QPainter& peintre, const QRegion& region) {
    for (const QRect& r : region) {
        peintre.setClipRect(r);
        peintre.drawImage(rect(), image_);
    }
    peintre.setClipping(false);
}

void Table::paintEvent(QPaintEvent* evenement) {
    const bool a_garder = !image_.isNull() ? cle() != cle_dessinee_ : peinte_;
    if (a_garder && meme_table() && peindre_fond())
        peindre_robots();
    QPainter peintre(this);
    if (!image_.isNull())
        montrer_image(peintre, evenement->region());
    else if (meme_table()) {
        peindre_directement(peintre);
        if (!std::exchange(peinte_, true) && !poses_.empty())
            QTimer::singleShot(remplir_apres_ms, this, [this] { update(); });
    } else // before the first drawing
        peintre.fillRect(evenement->rect(), palette().window());
    if (par_dessus)
        par_dessus(peintre);
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
