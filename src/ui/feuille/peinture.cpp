#include "ui/feuille/peinture.h"

#include "feuille/largeur_texte.h"
#include "feuille/page_svg.h"
#include "ui/commun/boites.h"
#include "ui/commun/surface_qt.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr double mm_par_pouce = 25.4;
constexpr double pixels_par_pouce = 96;
constexpr int resolution = 1200; ///< of a PDF: places are whole points of it

// Nothing outside the picture is painted: a robot may have left the table.
void peindre_image(QPainter& p, const Etat& e, const Analyse& a, const VueDuMatch& vue,
                   TailleImage taille) {
    const QSizeF pixels(taille.largeur, taille.hauteur);
    p.save();
    p.setClipRect(QRectF({0, 0}, pixels), Qt::IntersectClip);
    p.setRenderHint(QPainter::Antialiasing);
    SurfaceQt surface(p, pixels);
    peindre_vue(e, a, vue, surface);
    p.restore();
}

void peindre_textes(QPainter& p, const Page& page, double par_mm) {
    p.setPen(Qt::black);
    for (const TexteDePage& t : page.textes) {
        QFont police("DejaVu Sans");
        police.setPointSizeF(t.corps);
        police.setBold(t.gras);
        p.setFont(police);
        p.drawText(QPointF(t.x, t.y) * par_mm, texte_qt(t.texte));
    }
}

void peindre_filets(QPainter& p, const Page& page, double par_mm) {
    constexpr double epaisseur = 0.2;
    for (const FiletDePage& f : page.filets) {
        p.setPen(QPen(couleur_qt(f.couleur), epaisseur * par_mm));
        p.drawLine(QPointF(f.x1, f.y1) * par_mm, QPointF(f.x2, f.y2) * par_mm);
    }
}

QPageLayout page_entiere(const QPageSize& taille) {
    QPageLayout page(taille, QPageLayout::Portrait, {});
    page.setMode(QPageLayout::FullPageMode);
    return page;
}

// `peindre` is given the writer of a PDF with one page.
template <typename Peindre>
std::string en_pdf(const QString& titre, const QPageSize& taille, Peindre peindre) {
    QBuffer octets;
    octets.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&octets);
        pdf.setTitle(titre);
        pdf.setCreator("Tavolmex");
        pdf.setResolution(resolution);
        pdf.setPageLayout(page_entiere(taille));
        peindre(pdf);
    }
    return octets.data().toStdString();
}

} // namespace

void imprimer_page(QPagedPaintDevice& papier, const Page& page, const Etat& e, const Analyse& a) {
    papier.setPageLayout(page_entiere(QPageSize(QPageSize::A4)));
    QPainter p(&papier);
    const double par_mm = papier.logicalDpiX() / mm_par_pouce;
    p.save();
    p.translate(QPointF(page.image_x, page.image_y) * par_mm);
    p.scale(pixel_de_page * par_mm, pixel_de_page * par_mm);
    peindre_image(p, e, a, vue_de_feuille(a), taille_sur_page(page));
    p.restore();
    peindre_filets(p, page, par_mm);
    peindre_textes(p, page, par_mm);
}

std::string page_en_pdf(const Page& page, const Etat& e, const Analyse& a) {
    return en_pdf("Feuille de match " + texte_qt(a.projet), QPageSize(QPageSize::A4),
                  [&](QPdfWriter& pdf) { imprimer_page(pdf, page, e, a); });
}

std::string vue_en_pdf(const Etat& e, const Analyse& a, const VueDuMatch& vue, TailleImage taille) {
    const QSizeF mm = QSizeF(taille.largeur, taille.hauteur) * mm_par_pouce / pixels_par_pouce;
    return en_pdf(texte_qt(a.projet),
                  QPageSize(mm, QPageSize::Millimeter, {}, QPageSize::ExactMatch),
                  [&](QPdfWriter& pdf) {
                      QPainter p(&pdf);
                      p.scale(resolution / pixels_par_pouce, resolution / pixels_par_pouce);
                      peindre_image(p, e, a, vue, taille);
                  });
}

std::string vue_en_png(const Etat& e, const Analyse& a, const VueDuMatch& vue, TailleImage taille) {
    QImage image(taille.largeur, taille.hauteur, QImage::Format_RGB32);
    if (image.isNull())
        throw ErreurExecution("la mémoire manque pour une image de cette taille");
    image.fill(Qt::white);
    QPainter p(&image);
    peindre_image(p, e, a, vue, taille);
    p.end();
    QBuffer octets;
    octets.open(QIODevice::WriteOnly);
    image.save(&octets, "PNG");
    return octets.data().toStdString();
}
