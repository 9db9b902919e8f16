#include "draw/a_vide.h"
#include "draw/robot.h"
#include "draw/surface_notee.h"
#include "draw/table.h"
#include "outils/fausses_fenetres.h"
#include "sim/secours.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using Appels = std::vector<std::string>;

struct Feuille {
    std::unique_ptr<Etat> etat = std::make_unique<Etat>();
    Etat& e = *etat;
    SurfaceNotee s;
    FaussesFenetres f;

    Feuille() {
        Init_Table_Old(e);
        e.ZoneRedessin = {0, e.XMax, 0, e.YMax};
    }
};

TEST(DessineTable, suit_l_ordre_fond_zones_bordure_blocs_lignes_ellipses_pions) {
    Feuille t;
    t.e.NbZones = 1;
    t.e.Zones(1) = {'V', 1, 2, 3, 4};
    t.e.NbBlocs = 2;
    t.e.Blocs(1) = {10, 20, 30, 60};
    t.e.Blocs(2) = {50, 70, 15, marque_disque};
    t.e.NbLignes = 1;
    t.e.Lignes(1) = {9, 8, 7, 6};
    t.e.NbEllipses = 2;
    t.e.Ellipses(1) = {10, 20, 30, 80}; // upright: the vertical semi-axis is the radius
    t.e.Ellipses(2) = {0, 5, 10, 5};    // flat
    t.e.NbPions = 2;
    t.e.Pions(1) = {1, 2, 3, "BJ"};
    t.e.Pions(2) = {-4, -5, 6, "Y"};
    EXPECT_TRUE(Dessine_Table(t.e, t.s, t.f, 31));
    EXPECT_EQ(t.s.appels,
              (Appels{"boite_pleine 0 0 200 320 0,128,0", "boite_pleine 1 2 3 4 0,0,0",
                      "boite_pleine -5 -5 205 0 255,0,0", "boite_pleine -5 320 205 325 255,0,0",
                      "boite_pleine -5 -5 0 325 255,0,0", "boite_pleine 200 -5 205 325 255,0,0",
                      "pointille", "transparent", "boite 10 20 30 60 0,0,0",
                      "cercle 50 70 15 0,0,0/0,0,0", "plein", "continu", "ligne 9 8 7 6 0,0,0",
                      "epaisseur 5", // round(31 / 6)
                      "arc 20 50 30 0 6.28 3 255,255,255", "arc 5 5 5 0 6.28 0 255,255,255",
                      "epaisseur 1", "cercle 1 2 3 255,255,0/255,0,0",
                      "cercle -4 -5 6 255,192,128/255,0,0"}));
}

TEST(DessineTable, ne_dessine_que_les_zones_que_la_region_touche) {
    Feuille t;
    t.e.NbZones = 4;
    t.e.Zones(1) = {'L', 0, 0, 10, 10};     // touches the corner
    t.e.Zones(2) = {'L', 0, 0, 9, 9};       // 1 cm off
    t.e.Zones(3) = {'L', 0, 21, 200, 30};   // above
    t.e.Zones(4) = {'L', 20, 20, 200, 300}; // touches, drawn whole
    t.e.ZoneRedessin = {10, 20, 10, 20};
    Dessine_Table(t.e, t.s, t.f);
    EXPECT_EQ(t.s.appels[0], "boite_pleine 10 10 20 20 0,128,0");
    EXPECT_EQ(t.s.appels[1], "boite_pleine 0 0 10 10 255,255,255");
    EXPECT_EQ(t.s.appels[2], "boite_pleine 20 20 200 300 255,255,255");
    EXPECT_EQ(t.s.appels[3], "boite_pleine -5 -5 205 0 255,0,0");
}

TEST(DessineTable, donne_a_chaque_lettre_sa_couleur) {
    const std::pair<char, Couleur> zones[] = {{'L', couleurs::blanc}, {'O', couleurs::rouge},
                                              {'V', couleurs::noir},  {'T', couleurs::vert},
                                              {'U', couleurs::blanc}, {'W', couleurs::noir},
                                              {'?', couleurs::bleu}};
    for (const auto& [lettre, couleur] : zones)
        EXPECT_EQ(couleur_zone(lettre), couleur) << lettre;
    const std::pair<const char*, Couleur> pions[] = {
        {"PB", couleurs::blanc}, {"PN", couleurs::noir},     {"BJ", couleurs::jaune},
        {"BB", couleurs::bleu},  {"X", couleurs::cyan_pale}, {"Y", couleurs::orange_clair}};
    for (const auto& [cle, couleur] : pions)
        EXPECT_EQ(couleur_pion(cle), couleur) << cle;
}

TEST(DessineTable, une_faute_nomme_le_fichier_et_finit_le_programme) {
    const auto fautes = {+[](Etat& e) { e.XMax = 32763; },
                         +[](Etat& e) {
                             e.NbEllipses = 1;
                             e.Ellipses(1) = {10, 0, 10, 50};
                         },
                         +[](Etat& e) { e.NbZones = 101; }};
    for (const auto faute : fautes) {
        Feuille t;
        faute(t.e);
        EXPECT_FALSE(Dessine_Table(t.e, t.s, t.f));
        EXPECT_EQ(t.f.appels, (Appels{"Timer 0",
                                      "message Erreur majeure d'exécution : Vérifier le fichier de "
                                      "configuration Table.ini",
                                      "fin_du_programme"}));
        Feuille vide;
        faute(vide.e);
        EXPECT_FALSE(DessinAVide().table(vide.e, vide.f)) << "unseen, it ends all the same";
    }
}

TEST(DessineRobot, dessine_le_robot_integre_et_sa_boite) {
    Feuille t;
    Init_Robot_Old(t.e);
    t.e.XRobot(1) = 100;
    t.e.YRobot(1) = 22;
    t.e.CapRobot(1) = 180;
    EXPECT_TRUE(Dessine_Robot(t.e, t.s, t.f));
    EXPECT_EQ(t.s.appels.size(), 4U);
    const Region& r = t.e.ZoneRedessin;
    // 22.4 cos(0.46) = 20.07 ahead and behind, 22.4 sin(0.46) = 9.94 aside; 1 cm more.
    EXPECT_EQ((std::array<int, 4>{r.xmin, r.xmax, r.ymin, r.ymax}),
              (std::array<int, 4>{79, 121, 11, 33}));
}

TEST(DessineRobot, couvre_tous_les_robots_et_ferme_un_contour_impair) {
    Feuille t;
    t.e.NbRobot = 2;
    t.e.NbPoints(1) = 3;
    t.e.RobotDist(1, 1) = 2;
    t.e.RobotDist(1, 3) = 5;
    t.e.XRobot(2) = 100;
    t.e.YRobot(2) = 200;
    t.e.NbPoints(2) = 2;
    EXPECT_TRUE(Dessine_Robot(t.e, t.s, t.f));
    // Heading 0 and direction 0 point along +x; point 4 was never written.
    EXPECT_EQ(t.s.appels, (Appels{"ligne 2 0 0 0 0,255,255", "ligne 5 0 0 0 0,255,255",
                                  "ligne 100 200 100 200 0,255,255"}));
    EXPECT_EQ(t.e.ZoneRedessin.xmin, -1);
    EXPECT_EQ(t.e.ZoneRedessin.xmax, 101);
    EXPECT_EQ(t.e.ZoneRedessin.ymax, 201);
}

TEST(DessineRobot, une_faute_nomme_le_fichier_et_finit_le_programme) {
    const auto fautes = {+[](Etat& e) { e.XRobot(1) = 32767; },
                         +[](Etat& e) { e.YRobot(1) = -1e9F; },
                         +[](Etat& e) { e.NbPoints(1) = 101; }, +[](Etat& e) { e.XMax = 32765; },
                         +[](Etat& e) { e.RobotDist(1, 7) = 1e9F; }};
    for (const auto faute : fautes) {
        Feuille t;
        Init_Robot_Old(t.e);
        faute(t.e);
        EXPECT_FALSE(Dessine_Robot(t.e, t.s, t.f));
        EXPECT_EQ(t.f.messages, (Appels{"Erreur majeure d'exécution : Vérifier les fichiers de "
                                        "configuration Robot.ini"}));
        EXPECT_TRUE(t.f.terminee);
        FaussesFenetres f;
        EXPECT_FALSE(DessinAVide().robots(t.e, f)) << "unseen, it ends all the same";
    }
}

} // namespace
