#include "ui/generation/vue_rejeu.h"

#include "analyse/balayage.h"
#include "analyse/trace.h"
#include "draw/table.h"
#include "ui/commun/surface_qt.h"

#include <QPainter>

#include <array>

namespace {

// Two colours that everybody tells apart; the dots do without them.
constexpr Couleur couleur_ecran{86, 180, 233};
constexpr Couleur couleur_code{230, 159, 0};

constexpr double trait_de_cle = 26; ///< logical pixels
constexpr double ecart_de_cle = 6;
constexpr std::array legendes{"écran", "code"};

constexpr float pas_d_un_virage = 2; ///< degrees

OptionsTrace trace_de(int robot, Couleur couleur, bool pointille) {
    OptionsTrace o;
    o.robot = robot;
    o.secondes = o.actions = false;
    o.couleur = couleur;
    o.pointille = pointille;
    return o;
}

} // namespace

VueRejeu::VueRejeu(QWidget* parent) : QWidget(parent) {
    setObjectName("vue_rejeu");
    setAccessibleName("Chemins de l'écran et du code sur la table");
}

void VueRejeu::montrer(std::unique_ptr<Etat> etat, MatchCalcule ecran, EcartDeCode ecart) {
    etat_ = std::move(etat);
    etat_->ZoneRedessin = {0, etat_->XMax, 0, etat_->YMax};
    ecran_ = std::move(ecran);
    ecart_ = std::move(ecart);
    chemin_du_code_.clear();
    const MatchCalcule& m = ecart_.match;
    for (const PoseTick& p : etapes(m, ecart_.robot, m.nb_ticks(), pas_d_un_virage))
        chemin_du_code_.push_back({p.x, p.y});
    update();
}

void VueRejeu::vider() {
    etat_.reset();
    update();
}

QSize VueRejeu::sizeHint() const {
    return {170, 250};
}

QSize VueRejeu::minimumSizeHint() const {
    return {110, 60};
}

void VueRejeu::paintEvent(QPaintEvent*) {
    if (!etat_)
        return;
    const QSizeF cles(trait_de_cle + ecart_de_cle + fontMetrics().horizontalAdvance(legendes[0]),
                      2.0 * fontMetrics().height());
    QSizeF table = ajuster(size());
    // Beneath the table, or beside it where a low window leaves room.
    const bool a_cote = table.width() + 2 * ecart_de_cle + cles.width() <= width();
    if (!a_cote)
        table = ajuster({double(width()), height() - cles.height() - ecart_de_cle});
    QPainter peintre(this);
    peintre.save();
    peindre_table_et_chemins(peintre, {{0, 0}, table});
    peintre.restore();
    peindre_legende(peintre, a_cote ? QPointF(table.width() + 2 * ecart_de_cle, 0)
                                    : QPointF(0, table.height() + ecart_de_cle));
}

/// The largest picture of the table that fits.
QSizeF VueRejeu::ajuster(const QSizeF& place) const {
    const QSizeF table(etat_->XMax + 2 * marge_table, etat_->YMax + 2 * marge_table);
    return table.scaled(place.expandedTo({1, 1}), Qt::KeepAspectRatio);
}

void VueRejeu::peindre_table_et_chemins(QPainter& peintre, const QRectF& place) const {
    peintre.translate(place.topLeft());
    peintre.setClipRect(QRectF({0, 0}, place.size()));
    peintre.fillRect(QRectF({0, 0}, place.size()), couleur_qt(couleurs::vert));
    SurfaceQt surface(peintre, place.size());
    surface.coordonnees(-marge_table, etat_->YMax + marge_table, etat_->XMax + marge_table,
                        -marge_table);
    try {
        peindre_table(*etat_, surface);
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The main window says what cannot be drawn.
    }
    const int robot = ecart_.robot;
    dessiner_trace(*etat_, ecart_.match, trace_de(robot, couleur_code, true), surface);
    dessiner_trace(*etat_, ecran_, trace_de(robot, couleur_ecran, false), surface);
    // Once more, so that both are seen where they go the same way.
    surface.epaisseur(2);
    surface.trait_pointille(true);
    surface.chemin(chemin_du_code_, couleur_code);
    surface.trait_pointille(false);
}

void VueRejeu::peindre_legende(QPainter& peintre, QPointF coin) const {
    const double ligne = fontMetrics().height();
    peintre.translate(coin);
    SurfaceQt surface(peintre, size());
    surface.coordonnees(0, 0, width(), height());
    double y = ligne / 2;
    for (const bool code : {false, true}) {
        const std::array points{PointTable{0, y}, PointTable{trait_de_cle, y}};
        surface.epaisseur(4);
        surface.chemin(points, couleurs::noir);
        surface.epaisseur(2);
        surface.trait_pointille(code);
        surface.chemin(points, code ? couleur_code : couleur_ecran);
        surface.trait_pointille(false);
        peintre.setPen(palette().color(QPalette::WindowText));
        peintre.drawText(QRectF(trait_de_cle + ecart_de_cle, y - ligne / 2, width(), ligne),
                         Qt::AlignVCenter, legendes[code ? 1 : 0]);
        y += ligne;
    }
}
