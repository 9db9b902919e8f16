#include "ui/ligne_texte.h"

#include <QAccessible>
#include <QImage>
#include <gtest/gtest.h>

namespace {

TEST(LigneTexteTest, se_lit_a_l_ecran_et_par_un_outil_d_assistance) {
    LigneTexte ligne(nullptr);
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

} // namespace
