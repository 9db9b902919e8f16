#include "ui/editeurs/vue_table.h"

#include "draw/table.h"
#include "edition/objets_table.h"
#include "ui/commun/boites.h"
#include "ui/commun/surface_qt.h"
#include "ui/editeurs/formes.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr double portee = 6; ///< how near the mouse must be, logical pixels
constexpr QRectF table_vide{0, 0, 200, 320};
} // namespace

VueTable::VueTable(Historique<DocumentTable>& historique, Foutil& outils, QWidget* parent)
    : VueEchelle(parent), h_(historique), outils_(outils), e_(std::make_unique<Etat>()) {
    setObjectName("vueTable");
    setAccessibleName("Table à dessiner");
    setAcceptDrops(true);
}

void VueTable::rafraichir() {
    provisoire_.reset();
    geste_ = Geste::aucun;
    h_.doc().remplir(*e_);
    update();
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
    const DocumentTable& d = montre();
    peindre_legende(peintre);
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
    if (h_.selection().size() == 1) {
        peintre.setPen(QPen(teinte, 1));
        peintre.setBrush(Qt::white);
        for (const Vecteur p : formes::poignees(d[h_.selection().front()]))
            peintre.drawRect(QRectF(en_pixels(en_point(p)) - QPointF(3.5, 3.5), QSizeF(7, 7)));
    }
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen(teinte, 1, Qt::DashLine));
    if (ebauche_) {
        if (ebauche_->cle == "LN")
            peintre.drawLine(en_pixels(QPointF(ebauche_->v[0], ebauche_->v[1])),
                             en_pixels(QPointF(ebauche_->v[2], ebauche_->v[3])));
        else if (nombre_de_champs(ebauche_->cle) == 3 || ebauche_->cle == "LE")
            peintre.drawEllipse(en_pixels(formes::cadre(*ebauche_)));
        else
            peintre.drawRect(en_pixels(formes::cadre(*ebauche_)));
    }
    if (geste_ == Geste::cadre)
        peintre.drawRect(QRectF(gestes().depart(), gestes().ici()).normalized());
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

// The topmost shape: what is drawn last, first.
std::optional<std::size_t> VueTable::objet_sous(QPointF cm) const {
    const DocumentTable& d = h_.doc();
    const auto& sortes = sortes_table();
    for (std::size_t s = sortes.size(); s-- > 0;)
        for (std::size_t i = d.nombre(); i-- > 0;)
            if (sorte_table(d[i].cle) == &sortes[s] && !verrouille(d[i]) &&
                formes::touchee(d[i], en_vecteur(cm), portee / pixels_par_cm()))
                return i;
    return std::nullopt;
}

std::optional<std::size_t> VueTable::poignee_sous(QPointF pixels) const {
    if (h_.selection().size() != 1 || verrouille(h_.doc()[h_.selection().front()]))
        return std::nullopt;
    const std::vector<Vecteur> points = formes::poignees(h_.doc()[h_.selection().front()]);
    for (std::size_t k = 0; k < points.size(); ++k)
        if ((en_pixels(en_point(points[k])) - pixels).manhattanLength() <= portee + 2)
            return k;
    return std::nullopt;
}

bool VueTable::verrouille(const Fiche& e) const {
    const SorteTable* sorte = sorte_table(e.cle);
    return zones_verrouillees_ && sorte != nullptr && sorte->nom == "zones";
}

bool VueTable::choisi(std::size_t i) const {
    return std::binary_search(h_.selection().begin(), h_.selection().end(), i);
}

// Only what is chosen is moved: a rectangle may begin anywhere, on a floor of one zone too.
void VueTable::presser(QPointF pixels, Qt::KeyboardModifiers) {
    sous_ = objet_sous(en_cm(pixels));
    if (outils_.en_main().forme != Outil::Forme::selection) {
        geste_ = Geste::placer;
    } else if (const auto k = poignee_sous(pixels)) {
        geste_ = Geste::tirer;
        poignee_ = *k;
        pris_ = h_.selection().front();
    } else if (sous_ && choisi(*sous_)) {
        geste_ = Geste::deplacer;
        pris_ = *sous_;
    } else {
        geste_ = Geste::cadre;
    }
}

void VueTable::choisir_un(std::size_t i, bool en_plus) {
    Selection s = en_plus ? h_.selection() : Selection{};
    const auto place = std::lower_bound(s.begin(), s.end(), i);
    if (place != s.end() && *place == i)
        s.erase(place);
    else
        s.insert(place, i);
    h_.choisir(s);
}

void VueTable::glisser(QPointF pixels, Qt::KeyboardModifiers touches) {
    const Outil& outil = outils_.en_main();
    if (!provisoire_ && !ebauche_ && !gestes().loin())
        return;
    if (geste_ == Geste::placer && outil.forme != Outil::Forme::legende) {
        ebauche_ = Foutil::tracer(outil, aimanter(en_cm(gestes().depart()), touches),
                                  aimanter(en_cm(pixels), touches));
    } else if (geste_ == Geste::tirer) {
        changer_forme(aimanter(en_cm(pixels), touches));
    } else if (geste_ == Geste::deplacer) {
        deplacer(en_cm(pixels), touches);
    }
    update();
}

// Pulled to nothing, it stays as it was before.
void VueTable::changer_forme(QPointF cm) {
    DocumentTable d = h_.doc();
    if (redimensionner(d, pris_, poignee_, en_vecteur(cm)))
        montrer(std::move(d));
}

void VueTable::deplacer(QPointF cm, Qt::KeyboardModifiers touches) {
    DocumentTable d = h_.doc();
    const QPointF repere(d[pris_].v[0], d[pris_].v[1]);
    const QPointF ecart = aimanter(repere + cm - en_cm(gestes().depart()), touches) - repere;
    ::deplacer(d, h_.selection(), en_vecteur(ecart));
    montrer(std::move(d));
}

void VueTable::montrer(DocumentTable d) {
    provisoire_ = std::move(d);
    provisoire_->remplir(*e_);
}

void VueTable::relacher(QPointF pixels, Qt::KeyboardModifiers touches) {
    const Geste geste = std::exchange(geste_, Geste::aucun);
    const Outil outil = outils_.en_main();
    if (geste == Geste::placer) {
        const auto ebauche = std::exchange(ebauche_, std::nullopt);
        const QPointF fin = aimanter(en_cm(pixels), touches);
        if (ebauche &&
            fin != aimanter(en_cm(gestes().depart()), touches)) // else a click that slipped
            ajouter(*ebauche, QString("Ajouter : ") + formes::nom(outil.cle));
        else
            poser(outil, fin);
        if (!touches.testFlag(Qt::ShiftModifier))
            outils_.reposer();
        return;
    }
    const bool en_plus = (touches & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
    if (provisoire_) {
        DocumentTable d = std::move(*provisoire_);
        provisoire_.reset();
        h_.changer(geste == Geste::tirer ? "Redimensionner" : "Déplacer", std::move(d),
                   h_.selection());
    } else if (geste == Geste::cadre && gestes().loin()) {
        choisir_dans(QRectF(en_cm(gestes().depart()), en_cm(pixels)).normalized(), en_plus);
    } else if (geste != Geste::tirer && !gestes().loin()) { // a click
        if (sous_)
            choisir_un(*sous_, en_plus);
        else if (!en_plus)
            h_.choisir({});
    }
    update();
}

void VueTable::choisir_dans(const QRectF& cm, bool en_plus) {
    Selection s = en_plus ? h_.selection() : Selection{};
    const DocumentTable& d = h_.doc();
    for (std::size_t i = 0; i < d.nombre(); ++i) {
        const QRectF r = formes::cadre(d[i]);
        if (d[i].cle != "M" && !verrouille(d[i]) && cm.left() <= r.left() &&
            cm.right() >= r.right() && cm.top() <= r.top() && cm.bottom() >= r.bottom())
            s.push_back(i);
    }
    std::sort(s.begin(), s.end());
    s.erase(std::unique(s.begin(), s.end()), s.end());
    h_.choisir(s);
}

void VueTable::poser(const Outil& outil, QPointF cm) {
    if (outil.forme == Outil::Forme::legende)
        a_la_legende();
    else if (outil.forme != Outil::Forme::selection)
        ajouter(outils_.creer(outil, cm), QString("Ajouter : ") + formes::nom(outil.cle));
}

void VueTable::ajouter(Fiche e, const QString& nom) {
    DocumentTable d = h_.doc();
    try {
        const std::size_t i = creer(d, std::move(e));
        h_.changer(nom, std::move(d), {i});
    } catch (const ErreurExecution& erreur) {
        update();
        au_refus(erreur.what());
    }
}

void VueTable::survoler(QPointF pixels) {
    if (outils_.en_main().forme != Outil::Forme::selection)
        setCursor(Qt::CrossCursor);
    else if (poignee_sous(pixels))
        setCursor(Qt::SizeAllCursor);
    else
        setCursor(objet_sous(en_cm(pixels)) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void VueTable::abandonner() {
    ebauche_.reset();
    outils_.reposer();
    rafraichir();
}

void VueTable::dragEnterEvent(QDragEnterEvent* evenement) {
    if (evenement->mimeData()->hasFormat(BoutonOutil::format))
        evenement->acceptProposedAction();
}

void VueTable::dropEvent(QDropEvent* evenement) {
    const Outil* outil = Foutil::outil(evenement->mimeData()->data(BoutonOutil::format));
    if (outil == nullptr)
        return;
    evenement->acceptProposedAction();
    outils_.reposer();
    poser(*outil, aimanter(en_cm(evenement->position()), evenement->modifiers()));
}
