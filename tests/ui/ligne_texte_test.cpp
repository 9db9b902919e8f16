#include "ui/commun/ligne_texte.h"

#include <QAccessible>
#include <QImage>
#include <gtest/gtest.h>

namespace {

TEST(LigneTexteTest, se_lit_a_l_ecran_et_par_un_outil_d_assistance) {
    LigneTexte ligne(LigneTexte::Sorte::capteur, nullptr);
    ligne.resize(400, 30);
    const QImage vide = ligne.grab().toImage();
    LigneInfo info;
    info.Xm = 12.4F;
    ligne.ecrire(info);
    EXPECT_EQ(ligne.texte(), "Xm=12 Ym=00 Xextr=00 Yextr=00");
    EXPECT_NE(ligne.grab().toImage(), vide);

    QAccessibleInterface* outil = QAccessible::queryAccessibleInterface(&ligne);
    ASSERT_NE(outil, nullptr);
    EXPECT_EQ(outil->role(), QAccessible::StaticText);
    EXPECT_EQ(outil->text(QAccessible::Name), ligne.texte());
    ligne.ecrire("Été\r\n");
    EXPECT_EQ(outil->text(QAccessible::Name), "Été\n");
}

// A beacon search writes twice as much: it goes on below.
TEST(LigneTexteTest, rien_n_est_coupe_sur_une_table_etroite) {
    LigneInfo info;
    info.Xm = info.Ym = info.Xextr = info.Yextr = 188;
    info.d = info.dmin = info.d2 = 188;
    info.avec_balise = true;
    LigneTexte ligne(LigneTexte::Sorte::capteur, nullptr);
    const QFontMetrics lettres = ligne.fontMetrics();
    const int entiere = lettres.horizontalAdvance("Xm=188 Ym=188 Xextr=188 Yextr=188d=188 dmin=188 "
                                                  "d2=188") +
                        20;
    const int etroite = lettres.horizontalAdvance("Xm=188 Ym=188 Xextr=188 Yextr=188") + 20;
    EXPECT_GE(ligne.hauteur(etroite), ligne.hauteur(entiere) + lettres.height() - 1);
    ligne.resize(etroite, ligne.hauteur(etroite));
    const QImage vide = ligne.grab().toImage();
    ligne.ecrire(info);
    const QImage image = ligne.grab().toImage();
    const QRect dessous(0, image.height() / 2, image.width(), image.height() / 2);
    EXPECT_NE(image.copy(dessous), vide.copy(dessous)) << "the distances, in the second row";
    EXPECT_EQ(image.copy(image.width() - 4, 0, 4, image.height()),
              vide.copy(vide.width() - 4, 0, 4, vide.height()))
        << "nothing runs out of the line";
}

} // namespace
