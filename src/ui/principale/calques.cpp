#include "ui/principale/calques.h"

#include "analyse/trace.h"
#include "draw/table.h"
#include "ui/commun/surface_qt.h"

#include <QSettings>

namespace {

constexpr CalqueNomme calques[] = {
    {Calque::trace, "trace", "Trace du match", true},
    {Calque::trace_en_course, "trace_en_course", "Aussi pendant le match", false},
    {Calque::secondes, "trace_secondes", "Secondes", true},
    {Calque::actions, "trace_actions", "Numéros des actions", true},
    {Calque::bande, "trace_bande", "Bande balayée par le contour", false},
    {Calque::constats, "trace_constats", "Lieux des constats", true},
    {Calque::lisibles, "robots_lisibles", "Robots lisibles", true},
};
static_assert(std::size(calques) == nombre_de_calques);

QString cle(const CalqueNomme& c) {
    return QString("calques/") + c.nom;
}

} // namespace

std::span<const CalqueNomme> calques_nommes() {
    return calques;
}

ChoixCalques::ChoixCalques() {
    const QSettings reglages;
    for (const CalqueNomme& c : calques)
        choisis_.set(std::size_t(c.calque), reglages.value(cle(c), c.d_abord).toBool());
}

void ChoixCalques::choisir(Calque calque, bool oui) {
    choisis_.set(std::size_t(calque), oui);
    QSettings().setValue(cle(calques[std::size_t(calque)]), oui);
}

void CalqueTrace::changer(const Analyse& a, std::vector<Constat> constats) {
    analyse_ = &a;
    constats_ = std::move(constats);
    ++version_;
}

void CalqueTrace::peindre(QPainter& peintre, const QWidget& table, const ChoixCalques& choix) {
    if (analyse_ == nullptr)
        return;
    peintre.drawPixmap(0, 0, couche_.image(table, {version_, choix}, [&](QPainter& p) {
        peindre_trace(p, table.size(), choix);
    }));
}

void CalqueTrace::peindre_trace(QPainter& peintre, QSizeF taille, const ChoixCalques& choix) const {
    SurfaceQt surface(peintre, taille);
    surface.coordonnees(-marge_table, e_.YMax + marge_table, e_.XMax + marge_table, -marge_table);
    OptionsTrace o;
    o.secondes = choix[Calque::secondes];
    o.actions = choix[Calque::actions];
    o.bande = choix[Calque::bande];
    if (choix[Calque::constats])
        o.constats = constats_;
    dessiner_trace(e_, analyse_->match, o, surface);
}
