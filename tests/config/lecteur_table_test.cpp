#include "config/lecteur_table.h"

#include "lecture.h"

#include <gtest/gtest.h>

namespace {

struct Lue {
    Etat e;
    std::string LNom = "avant";
    std::string ligne;

    explicit Lue(std::string_view texte) {
        vider_table(e);
        const auto nommer = [this](std::string_view nom) { LNom = nom; };
        ligne = arret([&](Entier16& NoLigne) { lire_table(texte, e, nommer, NoLigne); });
    }
};

std::string quatre(const auto& q) {
    return std::to_string(q.X1) + " " + std::to_string(q.Y1) + " " + std::to_string(q.X2) + " " +
           std::to_string(q.Y2);
}

constexpr std::string_view bande = "L , 0, 19, 200, 21\n"; // its fourth comma is character 15

} // namespace

TEST(LireTable, boites_remises_d_aplomb_lignes_gardees_telles) {
    const Lue t("L , 200, 21, 0, 19\nw,1,2,3,4\nDC, 9, 8, 7, 6\nLE,5,5,5,5\nLN , 300, 50, 0, 5");
    EXPECT_EQ(t.ligne, "");
    EXPECT_EQ(t.e.Zones(1).Type, 'L');
    EXPECT_EQ(quatre(t.e.Zones(1)), "0 19 200 21");
    EXPECT_EQ(t.e.Zones(2).Type, 'W');
    EXPECT_EQ(quatre(t.e.Blocs(1)), "7 6 9 8");
    EXPECT_EQ(quatre(t.e.Ellipses(1)), "5 5 5 5");
    EXPECT_EQ(quatre(t.e.Lignes(1)), "300 50 0 5");
    EXPECT_EQ(t.e.XMax, 300);
    EXPECT_EQ(t.e.YMax, 50);
}

TEST(LireTable, pions_et_balises_sans_controle_de_signe_ni_etendue) {
    const Lue t("L,0,0,5,5\nPB , -1, -900, 5\nbJ,1,2,3\nX, 10, 20, 30\nX,11,21,31\nY,900,1,-2");
    EXPECT_EQ(t.ligne, "");
    EXPECT_EQ(t.e.NbPions, 5);
    EXPECT_EQ(t.e.Pions(1).Y, -900);
    EXPECT_EQ(t.e.Pions(2).Type, "BJ");
    EXPECT_EQ(t.e.Pions(3).Taille, 30);
    EXPECT_EQ(t.e.PointX.X, 11) << "the later record replaces the point";
    EXPECT_EQ(t.e.PointX.Val, 31);
    EXPECT_EQ(t.e.PointY.Val, -2);
    EXPECT_EQ(t.e.XMax, 5);
}

TEST(LireTable, nom_du_projet) {
    const std::pair<std::string_view, std::string_view> cas[] = {
        {"M,,,Fichier par défaut # x", "\r\n\r\n\r\nFichier par défaut "},
        {"m,,,Texte", "\r\n\r\n\r\nTexte"},
        {"m,,,texte", "avant"},
        {"M", "avant"},
        {"M,", "\r\n"},
        {"M,Un\nM, Deux", "\r\n Deux"}};
    for (const auto& [texte, attendu] : cas)
        EXPECT_EQ(Lue(texte).LNom, attendu) << texte;
}

// The radius ends at the column where the latest four-field record had its fourth comma.
TEST(LireTable, rayon_coupe_a_la_quatrieme_virgule_memorisee) {
    const std::pair<std::string, std::string_view> cas[] = {
        {"DR , 50, 50, 10", "50 50 1 -1"},      // third comma 12: two characters, " 1"
        {"DR, 50, 50, 10", "50 50 10 -1"},      // third comma 11: three characters
        {"DR, 50, 50,10 ,x", "50 50 10 -1"},    // what follows is not looked at
        {"PB,1,2,3\nDR,5,5,7", "5 5 7 -1"},     // a three-field record changes nothing
        {"LN,1,1,1,1\nDR,5,5,75", "5 5 7 -1"}}; // fourth comma 9, third comma 7
    for (const auto& [texte, attendu] : cas) {
        const Lue t(std::string(bande) + texte);
        EXPECT_EQ(t.ligne, "") << texte;
        EXPECT_EQ(quatre(t.e.Blocs(1)), attendu) << texte;
    }
    EXPECT_EQ(Lue(std::string(bande) + "DR, 900, 5,10 ").e.XMax, 900) << "extent from the centre";
}

TEST(LireTable, refuse_a_la_ligne_fautive) {
    const std::string b(bande);
    const Refus refus[] = {
        {"", "0"},
        {"M,Nom\n\n#", "3"},  // no extent: the last line
        {"L,0,0,5,0\n", "1"}, // nor along y
        {"PB,5,5,5", "1"},    // pieces do not count for it
        {b + "Z, 1, 2, 3, 4", "2"},
        {b + "PZB, 1, 2, 3", "2"},
        {b + "L 1", "2"},
        {b + "L , -1, 0, 5, 5", "2"},
        {b + "L , 5, 5, 0, -1", "2"},
        {b + "LN, 1, 2, 3, -4", "2"},
        {b + "L, 1, 2, 3", "2"},
        {b + "L, 1, 2, 3, 4, 5", "2"},
        {b + "L, 1, , 3, 4", "2"},
        {b + "LE, 1, 2, 3, 32768", "2"},
        {b + "DC, 1, 2, 3, é", "2"},
        {b + "X, 1, 2", "2"},
        {b + "PN, 1, 2, 3, 4", "2"},
        {"DR , 50, 50, 10\n" + b, "1"}, // no fourth comma to remember
        {b + "DR , -1, 5,10", "2"},
        {b + "DR , 1, 5", "2"},
        {b + "DR , 12345, 123,1", "2"}, // third comma 16: behind the remembered one
        {b + "DR , 123, 123,1", "2"},   // third comma 14: no character left
    };
    for (const Refus& r : refus)
        EXPECT_EQ(Lue(r.texte).ligne, r.ligne) << r.texte;
}

TEST(LireTable, enregistrement_de_trop_refuse_a_sa_ligne_sans_etre_compte) {
    struct Cas {
        std::string_view ligne;
        Entier16 Etat::*nombre;
        int capacite;
    };
    const Cas cas[] = {{"L,0,0,9,9\n", &Etat::NbZones, 100},
                       {"LN,0,0,9,9\n", &Etat::NbLignes, 100},
                       {"DC,0,0,9,9\n", &Etat::NbBlocs, 10},
                       {"LE,0,0,9,9\n", &Etat::NbEllipses, 10}};
    for (const Cas& c : cas) {
        EXPECT_EQ(Lue(repeter(c.ligne, c.capacite)).ligne, "") << c.ligne;
        const Lue t(repeter(c.ligne, c.capacite + 2));
        EXPECT_EQ(t.ligne, std::to_string(c.capacite + 1)) << c.ligne;
        EXPECT_EQ(t.e.*c.nombre, c.capacite) << c.ligne;
    }
    const Lue t(repeter("PB,1,1,1\n", 100) + "X,5,5,5");
    EXPECT_EQ(t.ligne, "101");
    EXPECT_EQ(t.e.NbPions, 100);
    EXPECT_EQ(t.e.PointX.X, 0) << "a refused beacon is none";
}
