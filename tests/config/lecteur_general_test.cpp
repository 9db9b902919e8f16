#include "config/lecteur_general.h"

#include "lecture.h"

#include <gtest/gtest.h>

namespace {

std::string lire(Etat& e, std::string_view texte) {
    return arret([&](Entier16& NoLigne) { lire_general(texte, e, NoLigne); });
}

} // namespace

TEST(LireGeneral, casse_blancs_commentaires_et_lignes_sans_portee) {
    struct Cas {
        std::string_view texte, projet;
        int rapide, robots;
    };
    // Options start at 7, so that a line that is skipped shows.
    const Cas cas[] = {{"", "avant", 7, 7},
                       {"# Rapide, 1\n\n , ;\nrapide, x\ndéfaut , essai", "avant", 7, 7},
                       {"Défaut , Essai # mon projet\r\n", "Essai", 7, 7},
                       {"DÉFAUT,a, b ,", "a, b ,", 7, 7},
                       {"Défaut,", "", 7, 7},
                       {"défaut, essai2", "essai2", 7, 7},
                       {"rapide , 1", "avant", 1, 7},
                       {"\t Rapide\t,\t0 \rNBROBOT ,3", "avant", 0, 3},
                       {"NbRobot, 3\nNbRobot, -4", "avant", 7, -4},
                       {"Allege, 5\nHorizontale, 6", "avant", 7, 7}};
    for (const Cas& c : cas) {
        Etat e;
        e.NomProjet = "avant";
        e.Options.remplir(7);
        EXPECT_EQ(lire(e, c.texte), "") << c.texte;
        EXPECT_EQ(e.NomProjet, c.projet) << c.texte;
        EXPECT_EQ(e.Options(1), c.rapide) << c.texte;
        EXPECT_EQ(e.Options(3), c.robots) << c.texte;
    }
}

TEST(LireGeneral, chaque_option_va_a_sa_place) {
    Etat e;
    EXPECT_EQ(lire(e, "Horizontale, 6\nNbRobot, 5\nRapide, 3\nAllege, 4"), "");
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(e.Options(i), 2 + i);
}

TEST(LireGeneral, refuse_a_la_ligne_fautive) {
    const Refus refus[] = {{"\n#\nVitesse, 3", "3"},
                           {"Rapide", "1"},
                           {"Rapide, 1\nRapide, 40000", "2"},
                           {"Rapide,", "1"},
                           {"Rapide, 1, 0", "1"},
                           {"Rapide, # 1", "1"},
                           {"Defaut, Essai", "1"},
                           {"Ra pide, 1", "1"},
                           {", 1", "1"},
                           {"Horizontale_tres_tres_longue, 1", "1"},
                           {repeter("\n", 32767) + "#", "32767"}};
    for (const Refus& r : refus) {
        Etat e;
        EXPECT_EQ(lire(e, r.texte), r.ligne) << r.texte.substr(0, 80);
    }
}
