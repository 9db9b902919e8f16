#include "ui/editeurs/vue_table.h"

#include "draw/table.h"
#include "edition/objets_table.h"
#include "ui/commun/boites.h"
#include "ui/commun/surface_qt.h"
#include "ui/editeurs/formes.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr double portee = 6; ///< how near the mouse must be, logical pixels
constexpr QRectF table_vide{0, 0, 200, 320};
} // namespace

VueTable::VueTable(Historique<DocumentTable>& historique, Foutil& outils, QWidget* parent)
    : VueEdition(historique, outils, parent), e_(std::make_unique<Etat>()) {
    setObjectName("vueTable");
    setAccessibleName("Table à dessiner");
}

void VueTable::rafraichir() {
    VueEdition::rafraichir();
    h_.doc().remplir(*e_);
}

QRectF VueTable::etendue() const {
    if (e_->XMax < 1 || e_->YMax < 1)
        return table_vide;
    return {-double(marge_table), -double(marge_table), e_->XMax + 2.0 * marge_table,
            e_->YMax + 2.0 * marge_table};
}

void VueTable::peindre(QPainter& peintre) {
    SurfaceQt surface(peintre, size());
    orienter(surface);
    const Entier16 Echelle = arrondir16(std::min(pixels_par_cm() * 15, 32000.0));
    peindre_table(*e_, surface, Echelle);
}

void VueTable::peindre_dessus(QPainter& peintre) {
    peindre_legende(peintre);
    peindre_choix(peintre);
    peindre_ebauche(peintre);
}

void VueTable::peindre_choix(QPainter& peintre) const {
    const DocumentTable& d = montre();
    const QColor teinte = palette().color(QPalette::Highlight);
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen(teinte, 2));
    for (const std::size_t i : h_.selection()) {
        const bool ligne = d[i].cle == "LN";
        peintre.setRenderHint(QPainter::Antialiasing, ligne); // boxes need none: much faster
        if (ligne)
            peintre.drawLine(en_pixels(QPointF(d[i].v[0], d[i].v[1])),
                             en_pixels(QPointF(d[i].v[2], d[i].v[3])));
        else if (d[i].cle != "M")
            peintre.drawRect(en_pixels(formes::cadre(d[i])));
    }
    peintre.setRenderHint(QPainter::Antialiasing);
    if (h_.selection().size() != 1)
        return;
    peintre.setPen(QPen(teinte, 1));
    peintre.setBrush(Qt::white);
    for (const Vecteur p : formes::poignees(d[h_.selection().front()]))
        peintre.drawRect(QRectF(en_pixels(en_point(p)) - QPointF(3.5, 3.5), QSizeF(7, 7)));
}

// Where the main window shows it, on a light ground: it stays readable on any floor.
void VueTable::peindre_legende(QPainter& peintre) const {
    QString texte;
    for (std::size_t i = 0; i < montre().nombre(); ++i)
        if (montre()[i].cle == "M")
            texte = texte_qt(montre()[i].texte).trimmed();
    if (texte.isEmpty())
        return;
    const QRectF table = en_pixels(QRectF(0, 0, e_->XMax, e_->YMax));
    const QRectF place = peintre.boundingRect(table, Qt::AlignCenter, texte);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(QColor(255, 255, 255, 170));
    peintre.drawRoundedRect(place.adjusted(-6, -3, 6, 3), 4, 4);
    peintre.setPen(Qt::black);
    peintre.drawText(table, Qt::AlignCenter, texte);
}

Choix VueTable::prenables() const {
    return objets(h_.doc(), sans_zones_);
}

std::optional<std::size_t> VueTable::objet_sous(QPointF pixels) const {
    return ::objet_sous(h_.doc(), en_vecteur(en_cm(pixels)), portee / pixels_par_cm(), sans_zones_);
}

std::optional<std::size_t> VueTable::poignee_sous(QPointF pixels) const {
    const Choix& s = h_.selection();
    if (s.size() != 1 || (sans_zones_ && !choisi(prenables(), s.front())))
        return std::nullopt;
    const std::vector<Vecteur> points = formes::poignees(h_.doc()[s.front()]);
    for (std::size_t k = 0; k < points.size(); ++k)
        if ((en_pixels(en_point(points[k])) - pixels).manhattanLength() <= portee + 2)
            return k;
    return std::nullopt;
}

// Only what is chosen is moved: a rectangle may begin anywhere, on a floor of one zone too.
VueTable::Geste VueTable::saisir(QPointF pixels, bool) {
    sous_ = objet_sous(pixels);
    if (const auto k = poignee_sous(pixels)) {
        poignee_ = *k;
        pris_ = h_.selection().front();
        return Geste::poignee;
    }
    if (!sous_ || !choisi(h_.selection(), *sous_))
        return Geste::cadre;
    pris_ = *sous_;
    return Geste::deplacer;
}

// Pulled to nothing, it stays as it was before.
bool VueTable::tirer_poignee(DocumentTable& d, QPointF pixels,
                             Qt::KeyboardModifiers touches) const {
    return redimensionner(d, pris_, poignee_, en_vecteur(aimanter(en_cm(pixels), touches)));
}

Choix VueTable::dans(const Bornes& cm) const {
    return objets_dans(h_.doc(), cm, sans_zones_);
}

QString VueTable::nom_du_geste(Geste geste) const {
    return geste == Geste::poignee ? "Redimensionner" : "Déplacer";
}

QString VueTable::nom_de_l_ajout(const Fiche& fiche) const {
    return "Ajouter : " + formes::nom(fiche.cle);
}

void VueTable::poser(const Outil& outil, QPointF cm) {
    if (outil.forme == Outil::Forme::legende)
        a_la_legende();
    else if (outil.forme != Outil::Forme::selection)
        ajouter({outils_.creer(outil, cm)});
}

Qt::CursorShape VueTable::curseur(QPointF pixels) const {
    if (poignee_sous(pixels))
        return Qt::SizeAllCursor;
    return objet_sous(pixels) ? Qt::PointingHandCursor : Qt::ArrowCursor;
}
