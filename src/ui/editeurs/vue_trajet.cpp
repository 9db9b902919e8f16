#include "ui/editeurs/vue_trajet.h"

#include "analyse/trace.h"
#include "draw/robot.h"
#include "draw/table.h"
#include "sim/actions.h"
#include "ui/commun/surface_qt.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double longueur_de_fleche = 48; ///< of a heading, logical pixels
constexpr double rayon_prise = 5;         ///< of a place to pull
constexpr double portee_de_prise = 8;     ///< how near the mouse must be
constexpr Couleur gris{120, 120, 120};

bool tourne(const Fiche& f) {
    return actions::est(Nom10(f.cle), actions::Genre::rotation);
}

Vecteur en_vecteur_cm(QPointF p) {
    return {p.x(), p.y()};
}

} // namespace

VueTrajet::VueTrajet(Historique<DocumentTrajet>& historique, QWidget* parent)
    : VueEchelle(parent), h_(historique), e_(std::make_unique<Etat>()) {
    setObjectName("vueTrajet");
    setAccessibleName("Trajet sur la table");
    setToolTip("Tirer le départ, sa flèche, la fin d'une action ou le rond d'un virage sur place "
               "les change ; Échap abandonne.");
    e_->XMax = 200;
    e_->YMax = 320;
}

void VueTrajet::regler_projet(const Etat& etat, int robot) {
    const bool autre_table = e_->XMax != etat.XMax || e_->YMax != etat.YMax;
    *e_ = etat;
    ++projet_;
    contour_ = Contour(*e_, robot);
    if (autre_table)
        ajuster();
}

void VueTrajet::montrer(const DocumentTrajet& montre, const EssaiTrajet& essai,
                        const EssaiTrajet* fantome) {
    montre_ = montre;
    essai_ = &essai;
    fantome_ = fantome;
    update();
}

QRectF VueTrajet::etendue() const {
    return {-double(marge_table), -double(marge_table), e_->XMax + 2.0 * marge_table,
            e_->YMax + 2.0 * marge_table};
}

void VueTrajet::peindre_fond(QPainter& peintre) {
    SurfaceQt surface(peintre, size());
    orienter(surface);
    e_->ZoneRedessin = {-marge_table, e_->XMax + marge_table, -marge_table, e_->YMax + marge_table};
    peindre_table(*e_, surface, arrondir16(std::min(pixels_par_cm() * 15, 32000.0)));
    if (fantome_ != nullptr)
        dessiner_trace(*e_, fantome_->analyse.match,
                       {.robot = essai_->robot,
                        .secondes = false,
                        .actions = false,
                        .couleur = gris,
                        .pointille = true},
                       surface);
}

void VueTrajet::peindre(QPainter& peintre) {
    peintre.drawPixmap(0, 0,
                       fond_.image(*this, {camera(), projet_, fantome_ != nullptr},
                                   [this](QPainter& p) { peindre_fond(p); }));
    if (essai_ == nullptr)
        return;
    SurfaceQt surface(peintre, size());
    orienter(surface);
    dessiner_trace(*e_, essai_->analyse.match,
                   {.robot = essai_->robot, .constats = essai_->analyse.constats}, surface);
    peindre_robot(surface, essai_->analyse.match.poses(essai_->robot).front());
    for (const std::size_t i : h_.selection())
        if (i < essai_->numeros.size() && essai_->jouee(i) != nullptr)
            peindre_robot(surface, essai_->jouee(i)->apres);
}

void VueTrajet::peindre_robot(SurfaceQt& surface, const PoseTick& pose) const {
    peindre_contour(contour_, pose.x, pose.y, pose.cap, surface);
}

// Where the reference point goes while that action lasts.
std::vector<QPointF> VueTrajet::chemin_de(std::size_t i) const {
    std::vector<QPointF> points;
    const ActionJouee* const action = essai_->jouee(i);
    if (action == nullptr)
        return points;
    const MatchCalcule& m = essai_->analyse.match;
    const std::size_t fin = m.tick(action->finie() ? action->fin : m.duree);
    for (std::size_t t = m.tick(action->debut); t <= fin; ++t) {
        const PoseTick& p = m.poses(essai_->robot)[t];
        points.push_back(en_pixels(QPointF(p.x, p.y)));
    }
    return points;
}

void VueTrajet::peindre_choisies(QPainter& peintre) const {
    for (const std::size_t i : h_.selection()) {
        if (i >= essai_->numeros.size())
            continue;
        const std::vector<QPointF> points = chemin_de(i);
        peintre.drawPolyline(points.data(), static_cast<int>(points.size()));
    }
}

void VueTrajet::peindre_dessus(QPainter& peintre) {
    if (essai_ == nullptr)
        return;
    const QColor teinte = palette().color(QPalette::Highlight);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setBrush(Qt::NoBrush);
    for (const QPen& trait : {QPen(Qt::white, 6), QPen(teinte, 3)}) { // seen on any floor
        peintre.setPen(trait);
        peindre_choisies(peintre);
    }
    peindre_prises(peintre);
}

// Up to a thousand of the same circle: it is painted once and put down.
void VueTrajet::peindre_prises(QPainter& peintre) const {
    constexpr double cote = 2 * (rayon_prise + 2);
    const QPointF coin(cote / 2, cote / 2);
    const auto rond = [&](const QColor& bord) {
        QPixmap image((QSizeF(cote, cote) * devicePixelRatioF()).toSize());
        image.setDevicePixelRatio(devicePixelRatioF());
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(bord, 2));
        p.setBrush(Qt::white);
        p.drawEllipse(coin, rayon_prise, rayon_prise);
        return image;
    };
    const QColor teinte = palette().color(QPalette::Highlight);
    const QPixmap libre = rond(QColor(60, 60, 60));
    const QPixmap prise = rond(teinte);
    for (std::size_t i = 0; i < montre_.nombre(); ++i)
        for (const bool cap : {true, false}) {
            const auto centre = place({i, cap});
            if (!centre)
                continue;
            const bool choisie = std::ranges::binary_search(h_.selection(), i);
            peintre.setPen(QPen(choisie ? teinte : QColor(60, 60, 60), 2));
            if (cap)
                peintre.drawLine(*place({i, false}), *centre);
            peintre.drawPixmap(*centre - coin, choisie ? prise : libre);
        }
}

QPointF VueTrajet::pointe(const PoseTick& pose) const {
    const double cap = radians(pose.cap);
    return en_pixels(QPointF(pose.x, pose.y)) +
           longueur_de_fleche * QPointF(std::cos(cap), -std::sin(cap));
}

// Start poses and the ends of moves always; a turn, which moves nothing, when it is chosen.
std::optional<QPointF> VueTrajet::place(const Prise& prise) const {
    if (prise.fiche >= essai_->numeros.size())
        return std::nullopt;
    const Fiche& f = montre_[prise.fiche];
    const bool depart = essai_->numeros[prise.fiche] == 0;
    const ActionJouee* const action = essai_->jouee(prise.fiche);
    if (!depart && (action == nullptr || !action->finie() || !fin_tiree(f, {}, {1, 1}).has_value()))
        return std::nullopt;
    const PoseTick pose = depart ? essai_->avant(montre_, prise.fiche) : action->apres;
    if (tourne(f) && !std::ranges::binary_search(h_.selection(), prise.fiche))
        return std::nullopt;
    if (prise.cap)
        return depart || tourne(f) ? std::optional(pointe(pose)) : std::nullopt;
    return en_pixels(QPointF(pose.x, pose.y));
}

// What is chosen first: several actions may end in one place.
std::optional<VueTrajet::Prise> VueTrajet::prise_sous(QPointF pixels) const {
    if (essai_ == nullptr)
        return std::nullopt;
    std::optional<Prise> trouvee;
    for (std::size_t i = montre_.nombre(); i-- > 0;)
        for (const bool cap : {true, false}) {
            const auto centre = place({i, cap});
            const bool ici = centre && (*centre - pixels).manhattanLength() <= portee_de_prise;
            if (ici && !(tourne(montre_[i]) && !cap) &&
                (!trouvee || std::ranges::binary_search(h_.selection(), i)))
                trouvee = Prise{i, cap};
        }
    return trouvee;
}

void VueTrajet::presser(QPointF pixels, Qt::KeyboardModifiers touches) {
    prise_ = prise_sous(pixels);
    if (prise_ && !std::ranges::binary_search(h_.selection(), prise_->fiche))
        h_.choisir({prise_->fiche});
    else if (!prise_ && touches == Qt::NoModifier)
        h_.choisir({});
}

Fiche VueTrajet::tiree(const Prise& prise, QPointF cm, Qt::KeyboardModifiers touches) const {
    const Fiche& f = h_.doc()[prise.fiche];
    if (essai_->numeros[prise.fiche] == 0)
        return prise.cap ? depart_oriente(f, en_vecteur_cm(cm))
                         : depart_deplace(f, en_vecteur_cm(aimanter(cm, touches)));
    const PoseTick avant = essai_->avant(montre_, prise.fiche);
    return fin_tiree(f, {avant.x, avant.y, avant.cap}, en_vecteur_cm(cm)).value_or(f);
}

void VueTrajet::glisser(QPointF pixels, Qt::KeyboardModifiers touches) {
    if (!prise_ || (!provisoire_ && !gestes().loin()))
        return;
    DocumentTrajet d = h_.doc();
    d.remplacer(prise_->fiche, tiree(*prise_, en_cm(pixels), touches));
    provisoire_ = std::move(d);
    au_glissement(*provisoire_);
}

void VueTrajet::relacher(QPointF, Qt::KeyboardModifiers) {
    const auto prise = std::exchange(prise_, std::nullopt);
    auto d = std::exchange(provisoire_, std::nullopt);
    if (!prise || !d)
        return;
    const bool depart = essai_->numeros[prise->fiche] == 0;
    const QString nom = !depart      ? "Tirer la fin d'une action"
                        : prise->cap ? "Orienter le départ"
                                     : "Déplacer le départ";
    au_lacher(nom, std::move(*d));
}

void VueTrajet::survoler(QPointF pixels) {
    setCursor(prise_sous(pixels) ? Qt::SizeAllCursor : Qt::ArrowCursor);
}

void VueTrajet::abandonner() {
    prise_.reset();
    if (std::exchange(provisoire_, std::nullopt))
        a_l_abandon();
}
