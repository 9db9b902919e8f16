#include "ui/commun/ligne_texte.h"

#include "ui/commun/boites.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace {

constexpr int marge = 6; ///< logical pixels left and right of the text
constexpr int marge_verticale = 3;

// A static text whose name is the line.
class LigneAccessible final : public QAccessibleWidget {
public:
    explicit LigneAccessible(LigneTexte& ligne)
        : QAccessibleWidget(&ligne, QAccessible::StaticText), ligne_(ligne) {}

    QString text(QAccessible::Text sorte) const override {
        return sorte == QAccessible::Name ? ligne_.texte() : QAccessibleWidget::text(sorte);
    }

private:
    LigneTexte& ligne_;
};

QAccessibleInterface* fabriquer(const QString&, QObject* objet) {
    auto* ligne = dynamic_cast<LigneTexte*>(objet);
    return ligne != nullptr ? new LigneAccessible(*ligne) : nullptr;
}

/// Where a line may go on below.
struct Coupes {
    std::size_t action; ///< a status line's "Action"
    std::size_t mesure; ///< what follows the action's name; a sensor line's distances
};

// Three runs of blanks: at the start, before "Action" and after the action's name.
Coupes coupes(std::string_view texte) {
    if (texte.starts_with("Xm="))
        return {texte.size(), std::min(texte.find("d="), texte.size())};
    std::array<std::size_t, 3> fins{};
    std::size_t fin = 0;
    for (std::size_t& f : fins) {
        fin = std::min(texte.find_first_not_of(' ', texte.find("  ", fin)), texte.size());
        f = fin;
    }
    return {fins[1], fins[2]};
}

// Breaks a text where it must, a long path inside its words too; paints it from the top of `place`
// if there is a painter. @returns its height
int ecrire_coupe(QPainter* peintre, const QFont& police, const std::string& texte,
                 const QRect& place) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    qreal y = 0;
    for (const QString& paragraphe : texte_qt(texte).split('\n')) {
        QTextLayout mise_en_page(paragraphe, police);
        mise_en_page.setTextOption(option);
        mise_en_page.beginLayout();
        for (QTextLine ligne = mise_en_page.createLine(); ligne.isValid();
             ligne = mise_en_page.createLine()) {
            ligne.setLineWidth(std::max(1, place.width()));
            ligne.setPosition({0, y});
            y += std::ceil(ligne.height());
        }
        mise_en_page.endLayout();
        if (peintre != nullptr)
            mise_en_page.draw(peintre, place.topLeft());
    }
    return static_cast<int>(y);
}

} // namespace

LigneTexte::LigneTexte(Sorte sorte, QWidget* parent) : QWidget(parent), sorte_(sorte) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void LigneTexte::installer_accessibilite() {
    QAccessible::installFactory(fabriquer);
}

QString LigneTexte::texte() const {
    return std::visit(
        [](const auto& contenu) {
            if constexpr (std::is_same_v<std::decay_t<decltype(contenu)>, std::string>)
                return texte_qt(contenu);
            else
                return texte_qt(contenu.texte());
        },
        contenu_);
}

bool LigneTexte::est_vide() const {
    const auto* libre = std::get_if<std::string>(&contenu_);
    return libre != nullptr && libre->empty();
}

int LigneTexte::fin_du_texte() const {
    if (est_texte())
        return est_vide() ? 0 : width();
    int fin = 0;
    for (const TexteCourt& rangee : rangees_)
        fin = std::max(fin, marge + fontMetrics().horizontalAdvance(texte_qt(rangee)));
    return fin;
}

void LigneTexte::mesurer() const {
    constexpr std::string_view etat =
        "     Durée : 1 mn 30 s     Action 100/100 en cours : "
        "BALISE DRO  -100/100 cm Incidence:-359.9999 Nbre carreaux:100";
    constexpr std::string_view capteur = "Xm=100 Ym=300 Xextr=100 Yextr=300d=300 dmin=300 d2=300";
    const std::string_view usuel = sorte_ == Sorte::etat ? etat : capteur;
    if (largeurs_.entiere != 0)
        return;
    const auto large = [this](std::string_view t) {
        return fontMetrics().horizontalAdvance(texte_qt(t)) + 2 * marge;
    };
    const Coupes c = coupes(usuel);
    const std::size_t milieu = std::min(c.action, c.mesure);
    largeurs_ = {.entiere = large(usuel),
                 .debut = large(rogner(usuel.substr(0, c.mesure))),
                 .coupee = std::max({large(rogner(usuel.substr(0, milieu))),
                                     large(rogner(usuel.substr(milieu, c.mesure - milieu))),
                                     large(usuel.substr(c.mesure))})};
}

int LigneTexte::largeur_minimale() const {
    mesurer();
    return largeurs_.coupee;
}

int LigneTexte::hauteur(int largeur) const {
    mesurer();
    const int au_plus = sorte_ == Sorte::etat ? rangees_max : 2;
    const int lignes = std::min(au_plus, largeurs_.entiere <= largeur ? 1
                                         : largeurs_.debut <= largeur ? 2
                                                                      : 3);
    const int h =
        std::max(fontMetrics().height() * lignes, hauteur_du_texte(largeur)) + 2 * marge_verticale;
    return h + h % 2; // even: the table lies on whole pixels at 150 % as well
}

// 0 where the values stand.
int LigneTexte::hauteur_du_texte(int largeur) const {
    const auto* libre = std::get_if<std::string>(&contenu_);
    return libre == nullptr || libre->empty()
               ? 0
               : ecrire_coupe(nullptr, font(), *libre, {marge, 0, largeur - 2 * marge, 0});
}

void LigneTexte::changeEvent(QEvent* evenement) {
    if (evenement->type() == QEvent::FontChange)
        largeurs_ = {};
    QWidget::changeEvent(evenement);
}

void LigneTexte::changer(const Contenu& contenu) {
    contenu_ = contenu;
    if (isVisible())
        ranger();
}

int LigneTexte::rangees_possibles() const {
    return std::clamp((height() - 2 * marge_verticale) / fontMetrics().height(), 1, rangees_max);
}

QRect LigneTexte::place(int numero) const {
    const int h = fontMetrics().height();
    return {0, marge_verticale + numero * h, width(), h};
}

// Lays the values out on the lines there are.
void LigneTexte::ranger() {
    if (std::holds_alternative<std::string>(contenu_)) {
        rangees_ = {};
        update();
        return;
    }
    const auto* mess = std::get_if<LigneMess>(&contenu_);
    const TexteCourt texte =
        mess != nullptr ? mess->texte() : std::get<LigneInfo>(contenu_).texte();
    const std::string_view t = texte;
    const int n = std::min(rangees_possibles(), mess != nullptr ? rangees_max : 2);
    const Coupes c = coupes(t);
    const std::size_t fin_0 = n == 1 ? t.size() : n == 2 ? c.mesure : c.action;
    const std::size_t fin_1 = n == 3 ? c.mesure : t.size();
    ecrire_rangee(0, n == 1 ? t : rogner(t.substr(0, fin_0)));
    ecrire_rangee(1, rogner(t.substr(fin_0, fin_1 - fin_0)));
    ecrire_rangee(2, rogner(t.substr(fin_1)));
}

void LigneTexte::ecrire_rangee(int numero, std::string_view texte) {
    TexteCourt& rangee = rangees_[static_cast<std::size_t>(numero)];
    if (rangee.vue() == texte)
        return;
    rangee.vider();
    rangee.ajouter(texte);
    update(place(numero));
}

void LigneTexte::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(this);
    peintre.fillRect(evenement->rect(), palette().window());
    peintre.setPen(palette().color(QPalette::WindowText));
    if (const auto* libre = std::get_if<std::string>(&contenu_)) {
        const QRect place = rect().adjusted(marge, 0, -marge, 0);
        const int h = ecrire_coupe(nullptr, font(), *libre, place);
        ecrire_coupe(&peintre, font(), *libre,
                     place.adjusted(0, std::max(marge_verticale, (height() - h) / 2), 0, 0));
        return;
    }
    for (int i = 0; i < rangees_max; ++i) {
        const QRect r = place(i);
        if (r.intersects(evenement->rect()))
            peintre.drawText(marge, r.top() + fontMetrics().ascent(),
                             texte_qt(rangees_[static_cast<std::size_t>(i)]));
    }
}
