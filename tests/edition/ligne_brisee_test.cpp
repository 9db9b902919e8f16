// Chains of lines, and records that go through the clipboard.
#include "edition/ligne_brisee.h"
#include "edition/objets_table.h"
#include "edition/segments_robot.h"

#include <gtest/gtest.h>

TEST(LigneBrisee, se_ferme_sur_son_premier_point_et_finit_sur_le_dernier) {
    constexpr Vecteur a{0, 0};
    constexpr Vecteur b{10, 0};
    constexpr Vecteur c{10, 5};
    struct Cas {
        std::vector<Vecteur> clics;
        bool finie;
        std::size_t lignes;
    };
    for (const Cas& cas :
         {Cas{{a}, false, 0}, Cas{{a, a}, true, 0}, Cas{{a, b}, false, 1}, Cas{{a, b, b}, true, 1},
          Cas{{a, b, a}, true, 1}, Cas{{a, b, c, a}, true, 3}, Cas{{a, b, c, c}, true, 2}}) {
        LigneBrisee chaine;
        bool finie = false;
        for (const Vecteur p : cas.clics)
            finie = chaine.cliquer(p);
        EXPECT_EQ(finie, cas.finie) << cas.clics.size();
        EXPECT_EQ(chaine.lignes().size(), cas.lignes) << cas.clics.size();
    }
    LigneBrisee chaine;
    for (const Vecteur p : {a, b, c})
        EXPECT_FALSE(chaine.cliquer(p));
    chaine.reprendre();
    ASSERT_EQ(chaine.lignes().size(), 1U);
    EXPECT_EQ(chaine.lignes()[0], (Fiche{"LN", {0, 0, 10, 0}, ""}));
    for (int i = 0; i < 3; ++i)
        chaine.reprendre();
    EXPECT_TRUE(chaine.vide());
}

TEST(PressePapiers, une_table_donne_des_lignes_qu_une_autre_reprend) {
    const DocumentTable de =
        DocumentTable::depuis("M,Nom\nL , 0, 0, 200, 300\nDR,100,100,12\nPB,50,60,5 # a piece\n");
    const std::string lignes = copier(de, {0, 1, 2, 3});
    EXPECT_EQ(lignes, "L , 0, 0, 200, 300\r\nDR , 100, 100, 12\r\nPB , 50, 60, 5\r\n");
    DocumentTable vers = DocumentTable::depuis("M,Autre\nPN,1,1,1\nL,0,0,9,9\n");
    EXPECT_EQ(coller(vers, lignes, 5), (Choix{2, 4, 5}));
    EXPECT_EQ(coller(vers, "# seul\n\nDR,1,2,3\n", 5), Choix{6}) << "no four fields before it";
    EXPECT_EQ(vers[6].v, (std::array<float, 4>{1, 2, 3, 0}));
    EXPECT_TRUE(coller(vers, "M,Titre", 5).empty());
    for (const float decale : {5.0F, 10.0F}) { // beside what is there already
        const Choix copies = coller(vers, "PB,50,60,5", 5);
        ASSERT_EQ(copies.size(), 1U);
        EXPECT_EQ(vers[copies.front()].v[0], 50 + decale);
    }
    const std::string avant = vers.ecrire();
    try {
        coller(vers, "L,0,0,1,1\n\nbonjour 1\n", 5);
        FAIL();
    } catch (const LigneRefusee& refus) {
        EXPECT_EQ(refus.ligne(), 3);
    }
    EXPECT_EQ(vers.ecrire(), avant);
}

TEST(PressePapiers, un_robot_ne_donne_et_ne_prend_que_des_segments) {
    DocumentRobot r = DocumentRobot::depuis("A,10,5,8\nR,0,0,4,0\nR,16,0,20,0\nE,1,2,3\n");
    EXPECT_EQ(copier(r, {0, 1, 3}), "R , 0, 0, 4, 0\r\n");
    EXPECT_EQ(coller(r, "V,1,2\nR,0,0,4,0\nR,9,9,9,1\n", 2), (Choix{3, 4}));
    EXPECT_EQ(r.ecrire(), "A,10,5,8\nR,0,0,4,0\nR,16,0,20,0\nR , 2, 2, 6, 2\nR , 11, 11, 11, 3\n"
                          "E,1,2,3\n");
    EXPECT_THROW(coller(r, "LN,0,0,4,0\n", 2), LigneRefusee);
}
