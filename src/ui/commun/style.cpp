#include "ui/commun/style.h"

#include "ui/commun/icones_messages.h"
#include "ui/commun/lisible.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOptionButton>

namespace {

constexpr const char* en_avant = "en_avant";
constexpr const char* disposition = "disposition";
enum Disposition { habituelle, a_gauche, au_dessus };

bool est_en_avant(const QWidget* bouton) {
    return bouton != nullptr && bouton->property(en_avant).toBool();
}

int disposition_de(const QWidget* bouton) {
    return bouton != nullptr ? bouton->property(disposition).toInt() : habituelle;
}

QColor fond_du_bouton(const QStyleOption& option, bool accent) {
    const QPalette& p = option.palette;
    const QColor fond = accent ? p.color(QPalette::Highlight)
                        : est_sombre(p)
                            ? p.color(QPalette::Button)
                            : melange(p.color(QPalette::Base), p.color(QPalette::Button), 0.6);
    const QColor encre = p.color(accent ? QPalette::HighlightedText : QPalette::ButtonText);
    if ((option.state & (QStyle::State_Sunken | QStyle::State_On)) != 0)
        return melange(encre, fond, 0.2);
    const bool survol = option.state.testFlags(QStyle::State_Enabled | QStyle::State_MouseOver);
    return survol ? melange(encre, fond, 0.08) : fond;
}

void peindre_bouton(const QStyleOptionButton& option, QPainter& peintre, bool accent) {
    const QPalette& p = option.palette;
    const bool defaut = option.features.testFlag(QStyleOptionButton::DefaultButton);
    const QColor bord =
        accent || defaut ? p.color(QPalette::Highlight)
                         : melange(p.color(QPalette::WindowText), p.color(QPalette::Button), 0.3);
    constexpr double rayon = 4;
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(bord);
    peintre.setBrush(
        fond_du_bouton(option, accent && option.state.testFlag(QStyle::State_Enabled)));
    peintre.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), rayon, rayon);
    peintre.restore();
}

class Style final : public QProxyStyle {
public:
    Style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    using QProxyStyle::polish;
    void polish(QPalette& palette) override {
        QProxyStyle::polish(palette);
        rendre_lisible(palette);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                       const QWidget* w) const override {
        const auto* bouton = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (element == PE_PanelButtonCommand && bouton != nullptr &&
            !bouton->features.testFlag(QStyleOptionButton::Flat))
            peindre_bouton(*bouton, *peintre, est_en_avant(w));
        else
            QProxyStyle::drawPrimitive(element, option, peintre, w);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                     const QWidget* w) const override {
        const auto* bouton = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (element != CE_PushButtonLabel || bouton == nullptr)
            return QProxyStyle::drawControl(element, option, peintre, w);
        QStyleOptionButton o = *bouton;
        if (est_en_avant(w) && o.state.testFlag(State_Enabled))
            o.palette.setColor(QPalette::ButtonText, o.palette.color(QPalette::HighlightedText));
        if (disposition_de(w) == habituelle)
            QProxyStyle::drawControl(element, &o, peintre, w);
        else
            peindre_etiquette(o, *peintre, disposition_de(w) == au_dessus);
    }

    QSize sizeFromContents(ContentsType sorte, const QStyleOption* option, const QSize& contenu,
                           const QWidget* w) const override {
        const QSize taille = QProxyStyle::sizeFromContents(sorte, option, contenu, w);
        const auto* bouton = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (sorte != CT_PushButton || bouton == nullptr || disposition_de(w) == habituelle)
            return taille;
        const QSize texte = bouton->fontMetrics.size(Qt::TextShowMnemonic, bouton->text);
        const QSize icone = bouton->iconSize;
        if (disposition_de(w) == a_gauche)
            return {texte.width() + icone.width() + 4 * style::ecart, taille.height()};
        return {texte.width() + 3 * style::ecart,
                texte.height() + icone.height() + 2 * style::ecart};
    }

    QIcon standardIcon(StandardPixmap image, const QStyleOption* option,
                       const QWidget* w) const override {
        const QIcon icone = icone_message(image);
        return icone.isNull() ? QProxyStyle::standardIcon(image, option, w) : icone;
    }

    // A word on a button of a box says enough.
    int styleHint(StyleHint sorte, const QStyleOption* option, const QWidget* w,
                  QStyleHintReturn* retour) const override {
        return sorte == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(sorte, option, w, retour);
    }

private:
    void peindre_etiquette(const QStyleOptionButton& o, QPainter& peintre, bool dessus) const {
        const QRect dedans =
            o.rect.adjusted(style::ecart, style::ecart_serre, -style::ecart, -style::ecart_serre);
        QRect icone({}, o.iconSize);
        icone.moveCenter(o.rect.center());
        dessus ? icone.moveTop(dedans.top()) : icone.moveLeft(dedans.left() + style::ecart_serre);
        const bool actif = o.state.testFlag(State_Enabled);
        const QIcon::Mode mode = actif ? QIcon::Normal : QIcon::Disabled;
        o.icon.paint(&peintre, icone, Qt::AlignCenter, mode);
        const QRect texte =
            dessus ? dedans
                   : dedans.adjusted(icone.right() + style::ecart - dedans.left(), 0, 0, 0);
        proxy()->drawItemText(
            &peintre, texte,
            int(dessus ? Qt::AlignHCenter | Qt::AlignBottom : Qt::AlignLeft | Qt::AlignVCenter) |
                int(Qt::TextShowMnemonic),
            o.palette, actif, o.text, QPalette::ButtonText);
    }
};

} // namespace

QFont style::petite_police(const QFont& police) {
    constexpr double part = 0.83;
    QFont petite = police;
    petite.setPointSizeF(QFontInfo(police).pointSizeF() * part);
    return petite;
}

void style::installer() {
    QApplication::setStyle(new Style); // the application deletes it
}

void style::mettre_en_avant(QPushButton& bouton) {
    bouton.setProperty(en_avant, true);
}

void style::aligner_a_gauche(QPushButton& bouton) {
    bouton.setProperty(disposition, int(a_gauche));
}

void style::mettre_l_icone_au_dessus(QPushButton& bouton) {
    bouton.setProperty(disposition, int(au_dessus));
    bouton.setIconSize({cote_grande_icone, cote_grande_icone});
}
