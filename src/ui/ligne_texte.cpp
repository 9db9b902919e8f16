#include "ui/ligne_texte.h"

#include "ui/boites.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

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

QSize LigneTexte::sizeHint() const {
    // An even height keeps the table on whole pixels at 150 %.
    const int hauteur = fontMetrics().height() + 2 * marge_verticale;
    return {fontMetrics().averageCharWidth() * 60, hauteur + hauteur % 2};
}

void LigneTexte::changer(const Contenu& contenu) {
    contenu_ = contenu;
    update();
}

void LigneTexte::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.fillRect(rect(), palette().window());
    peintre.setPen(palette().color(QPalette::WindowText));
    peintre.drawText(rect().adjusted(marge, 0, -marge, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                     texte());
}
