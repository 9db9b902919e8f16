#include "ui/ligne_texte.h"

#include "ui/boites.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

#include <type_traits>

namespace {

constexpr int marge = 6; ///< logical pixels left and right of the text
constexpr int marge_verticale = 3;
// The status line begins with five blanks; its second half is indented likewise.
constexpr auto marge_du_texte = "     ";

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

// The status line has runs of blanks at its start, before "Action" and after the action's name.
qsizetype fin_du_nom_d_action(const QString& texte) {
    qsizetype fin = 0;
    for (int suite = 0; suite < 3; ++suite) {
        const qsizetype blancs = texte.indexOf(QStringLiteral("  "), fin);
        if (blancs < 0)
            return texte.size();
        fin = blancs;
        while (fin < texte.size() && texte[fin] == ' ')
            ++fin;
    }
    return fin;
}

} // namespace

LigneTexte::LigneTexte(QWidget* parent) : QWidget(parent) {
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

int LigneTexte::hauteur(int largeur) const {
    const auto usuel = QStringLiteral("     Durée : 1 mn 30 s     Action 100/100 en cours : "
                                      "BALISE DRO  -100/100 cm Incidence:359.5 Nbre carreaux:100");
    const bool etroit = fontMetrics().horizontalAdvance(usuel) + 2 * marge > largeur;
    const int h = fontMetrics().height() * (etroit ? 2 : 1) + 2 * marge_verticale;
    return h + h % 2; // even: the table lies on whole pixels at 150 % as well
}

void LigneTexte::changer(const Contenu& contenu) {
    contenu_ = contenu;
    update();
}

void LigneTexte::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.fillRect(rect(), palette().window());
    peintre.setPen(palette().color(QPalette::WindowText));
    const QRect place = rect().adjusted(marge, marge_verticale, -marge, -marge_verticale);
    if (std::holds_alternative<std::string>(contenu_))
        peintre.drawText(place, Qt::AlignVCenter | Qt::TextWordWrap, texte());
    else
        peindre_valeurs(peintre, place);
}

void LigneTexte::peindre_valeurs(QPainter& peintre, const QRect& place) const {
    const QFontMetrics mesure = fontMetrics();
    const QString t = texte();
    const bool sur_deux = place.height() >= 2 * mesure.height();
    const qsizetype coupe = sur_deux ? fin_du_nom_d_action(t) : t.size();
    const int y = place.top() + mesure.ascent();
    peintre.drawText(place.left(), y, t.first(coupe));
    if (coupe < t.size())
        peintre.drawText(place.left(), y + mesure.height(),
                         marge_du_texte + t.sliced(coupe).trimmed());
}
