#include "ui/commun/editeur_code.h"
#include "ui/commun/lisible.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextBlock>
#include <QTextLayout>
#include <gtest/gtest.h>

namespace {

QPalette systeme(QColor fenetre, QColor champ, QColor encre, QColor accent) {
    QPalette p(fenetre);
    for (const auto groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        p.setColor(groupe, QPalette::Window, fenetre);
        p.setColor(groupe, QPalette::Button, fenetre);
        p.setColor(groupe, QPalette::Base, champ);
        p.setColor(groupe, QPalette::AlternateBase, melange(fenetre, champ, 0.5));
        p.setColor(groupe, QPalette::Highlight, accent);
        p.setColor(groupe, QPalette::HighlightedText, Qt::white);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            p.setColor(groupe, role,
                       groupe == QPalette::Disabled ? melange(encre, fenetre, 0.3) : encre);
        p.setColor(groupe, QPalette::PlaceholderText, QColor(0, 0, 0, 128)); // even on black
    }
    return p;
}

/// Palettes of systems: Qt's own, light and dark ones, pale accents.
const std::vector<std::pair<const char*, QPalette>>& systemes() {
    static const std::vector<std::pair<const char*, QPalette>> toutes{
        {"Qt", QApplication::style()->standardPalette()},
        {"clair", systeme({239, 240, 241}, {252, 252, 252}, {35, 38, 41}, {61, 174, 233})},
        {"sombre", systeme({42, 46, 50}, {27, 30, 32}, {252, 252, 252}, {61, 174, 233})},
        {"gris", systeme({118, 118, 118}, {128, 128, 128}, {0, 0, 0}, {255, 200, 0})},
    };
    return toutes;
}

TEST(Lisible, le_contraste_est_celui_de_l_oeil) {
    EXPECT_NEAR(contraste(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contraste(Qt::white, Qt::white), 1, 0.01);
    EXPECT_NEAR(contraste(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    EXPECT_NEAR(contraste(QColor(0, 0, 0, 128), Qt::white),
                contraste(QColor(127, 127, 127), Qt::white), 0.05);
    EXPECT_EQ(lisible(Qt::red, {Qt::black}), QColor(Qt::red)) << "already readable: as it was";
}

TEST(Lisible, tout_texte_des_palettes_se_lit_meme_inactif) {
    using P = QPalette;
    const std::vector<std::pair<P::ColorRole, std::vector<P::ColorRole>>> paires{
        {P::WindowText, {P::Window}},
        {P::Text, {P::Base, P::AlternateBase, P::Window}},
        {P::ButtonText, {P::Button, P::Window}},
        {P::PlaceholderText, {P::Base, P::AlternateBase}}, // line numbers too
        {P::Link, {P::Window, P::Base}},
        {P::LinkVisited, {P::Window, P::Base}},
        {P::ToolTipText, {P::ToolTipBase}},
        {P::HighlightedText, {P::Highlight}},
    };
    for (const auto& [nom, systeme] : systemes()) {
        P p = systeme;
        rendre_lisible(p);
        for (const auto groupe : {P::Active, P::Inactive, P::Disabled})
            for (const auto& [texte, fonds] : paires)
                for (const P::ColorRole fond : fonds)
                    EXPECT_GE(contraste(p.color(groupe, texte), p.color(groupe, fond)),
                              contraste_lisible)
                        << nom << ", groupe " << groupe << ", texte " << texte << ", fond " << fond;
        EXPECT_EQ(p.color(P::Active, P::WindowText), systeme.color(P::Active, P::WindowText))
            << nom << ": what could be read stays";
        for (const P::ColorRole fond : {P::Window, P::Base, P::AlternateBase})
            EXPECT_GE(contraste(couleur_d_alerte(p), p.color(fond)), contraste_lisible) << nom;
    }
}

// As the whole program does, whatever the platform says.
TEST(Lisible, l_application_a_une_palette_lisible) {
    const QPalette p = QApplication::palette();
    QPalette voulue = p;
    rendre_lisible(voulue);
    EXPECT_EQ(p, voulue);
}

template <typename Coloration>
void verifier_couleurs(const char* nom, const QPalette& p, const QString& texte) {
    QPlainTextEdit vue(texte);
    const Coloration coloration(vue);
    vue.setPalette(p); // while it is shown
    for (QTextBlock bloc = vue.document()->begin(); bloc.isValid(); bloc = bloc.next())
        for (const QTextLayout::FormatRange& partie : bloc.layout()->formats()) {
            const QTextCharFormat& f = partie.format;
            const QColor fond = f.hasProperty(QTextFormat::BackgroundBrush)
                                    ? f.background().color()
                                    : p.color(QPalette::Base);
            EXPECT_GE(contraste(f.foreground().color(), fond), contraste_lisible)
                << nom << " : " << bloc.text().toStdString();
        }
}

TEST(Lisible, les_couleurs_du_code_se_lisent_sur_chaque_fond) {
    for (const auto& [nom, systeme] : systemes()) {
        QPalette p = systeme;
        rendre_lisible(p);
        verifier_couleurs<ColorationPicbasic>(nom, p, "A:\n\tGosub B\n\tDelay 5 ' mot");
        verifier_couleurs<ColorationDifference>(nom, p, "@ ...\n+ A\n- B");
    }
}

} // namespace
