#include "sim/banc.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct CasMouvement {
    const char* nom;
    Nom10 action;
    int p1, p2;
    float depart; ///< heading
    int ticks;
    double x, y, cap; ///< where it ends, from (100, 100)
};

// v = 1 cm, 1 degree per tick, track 10 cm, expected by plane geometry.
const CasMouvement cas[] = {
    {"avance tout droit", actions::AVANCE, 50, 0, 0, 50, 150, 100, 0},
    {"avance vers le haut", actions::AVANCE, 50, 0, 90, 50, 100, 150, 90},
    {"avance au-dela de 360", actions::AVANCE, 10, 0, 450, 10, 100, 110, 450},
    {"recule", actions::RECULE, 30, 0, 0, 30, 70, 100, 0},
    // Zero: one whole step backwards is taken, and taken back by the trimming.
    {"avance de zero", actions::AVANCE, 0, 0, 0, 1, 100, 100, 0},
    {"avance negative", actions::AVANCE, -20, 0, 0, 20, 80, 100, 0},
    {"droite", actions::DROITE, 90, 0, 0, 90, 100, 100, -90},
    {"gauche", actions::GAUCHE, 90, 0, 300, 90, 100, 100, 390},
    {"gauche de zero", actions::GAUCHE, 0, 0, 10, 1, 100, 100, 10},
    // Arcs: 180 * 1 / (3.14159 * (10 / 2 + 20)) = 2.29183 degrees a tick, 40 ticks for 90.
    {"arc avant gauche", actions::VIRAVGA, 90, 20, 0, 40, 120, 120, 90},
    {"arc avant droite", actions::VIRAVDR, 90, 20, 0, 40, 120, 80, -90},
    {"arc arriere gauche", actions::VIRARGA, 90, 20, 0, 40, 80, 80, 90},
    {"arc arriere droite", actions::VIRARDR, 90, 20, 0, 40, 80, 120, -90},
    {"tour complet", actions::VIRAVGA, 360, 20, 30, 158, 100, 100, 390},
    // On the spot about its own centre: only the track counts.
    {"arc de rayon nul", actions::VIRAVGA, 90, 0, 0, 8, 100, 100, 90},
    {"pause", actions::PAUSE, 100, 0, 0, 101, 100, 100, 0},
    {"pause nulle", actions::PAUSE, 0, 0, 0, 1, 100, 100, 0},
};

TEST(Actions, finissent_exactement_ou_la_geometrie_le_dit) {
    for (const CasMouvement& c : cas) {
        SCOPED_TRACE(c.nom);
        Banc b;
        b.e.XRobot(1) = 100;
        b.e.YRobot(1) = 100;
        b.e.CapRobot(1) = c.depart;
        EXPECT_EQ(b.jouer(1, c.action, c.p1, c.p2), c.ticks);
        EXPECT_NEAR(b.e.XRobot(1), c.x, 2e-3);
        EXPECT_NEAR(b.e.YRobot(1), c.y, 2e-3);
        EXPECT_NEAR(b.e.CapRobot(1), c.cap, 2e-3);
    }
}

TEST(ActionAvance, le_dernier_pas_est_rogne_et_le_capteur_ne_l_est_pas) {
    Banc b;
    b.e.VitesseLin(1) = 3;
    b.e.NbRobot = 2; // robot 2's sensor line moves too
    b.e.DistExtr(2) = 5;
    EXPECT_EQ(b.jouer(1, actions::AVANCE, 10), 4); // 3, 3, 3, 1
    EXPECT_FLOAT_EQ(b.e.XRobot(1), 10);
    EXPECT_FLOAT_EQ(b.e.Xm(1), 12);
    EXPECT_FLOAT_EQ(b.e.Xm(2), 12);
    EXPECT_FLOAT_EQ(b.e.Xextr(2), 17);
    EXPECT_FLOAT_EQ(b.e.Progression(1), 12);
    EXPECT_EQ(b.f.Info, "Xm=12 Ym=00 Xextr=12 Yextr=00");
}

TEST(ActionTourne, l_incidence_suit_le_cap_du_tick_precedent) {
    struct Cas {
        Nom10 action;
        int angle;
        float cap, progression, incidence;
    };
    // Left turns add 360 below 0, right turns take 360 off above 360; an equality with the heading
    // (left) or the progress (right) reads progress + 1; exactly 360 is 0.
    const Cas liste[] = {
        {actions::GAUCHE, 90, -10, 0, 350}, {actions::GAUCHE, 90, 400, 0, 400},
        {actions::GAUCHE, 90, 360, 0, 0},   {actions::GAUCHE, 90, 90, 7, 8},
        {actions::DROITE, 90, 400, 0, 40},  {actions::DROITE, 90, -10, 0, -10},
        {actions::DROITE, 90, 720, 0, 0},   {actions::DROITE, 90, 33, -90, -89},
        {actions::DROITE, 0, 33, 0, 1},     {actions::GAUCHE, 0, 33, 5, 33},
    };
    for (const Cas& c : liste) {
        SCOPED_TRACE(testing::Message() << c.action.vue() << c.angle << " cap " << c.cap);
        Banc b;
        b.e.CapRobot(1) = c.cap;
        b.e.ActionEnCours(1) = c.action;
        b.e.ParamEnCours(1) = c.angle;
        b.e.Progression(1) = c.progression;
        b.m.Executer_Actions();
        EXPECT_FLOAT_EQ(b.e.Incidence, c.incidence);
    }
}

TEST(ExecuterActions, le_robot_de_la_console_arrete_l_horloge_au_lieu_de_charger) {
    Banc b;
    b.ajouter(1, actions::AVANCE, 2);
    b.ajouter(2, actions::AVANCE, 2);
    b.e.NbRobot = 2;
    b.e.RobotTele = 2;
    b.m.Executer_Actions();
    EXPECT_EQ(b.f.appels,
              (std::vector<std::string>{"nbre_carreaux 0", "Timer 0", "Active_Desactive 1"}));
    EXPECT_EQ(b.e.NumAction(1), 1);
    EXPECT_EQ(b.e.NumAction(2), 0);
}

TEST(ExecuterActions, une_action_inconnue_est_nommee_et_finit_le_match) {
    Banc b;
    b.e.NbRobot = 2;
    b.e.NumAction(1) = 3;
    b.e.ActionEnCours(1) = Nom10("SAUTE");
    b.e.ActionEnCours(2) = actions::PAUSE;
    b.e.ParamEnCours(2) = 10;
    b.m.Executer_Actions();
    ASSERT_EQ(b.f.messages.size(), 1U);
    EXPECT_EQ(b.f.messages[0], "Erreur : L'action 3 SAUTE      du robot 1 est inconnue !");
    EXPECT_EQ(b.e.ActionEnCours(1), actions::FIN);
    EXPECT_FLOAT_EQ(b.e.Progression(2), 1) << "the other robots go on";
}

TEST(ExecuterActions, une_faute_de_calcul_nomme_le_fichier_et_finit_le_programme) {
    const char* message =
        "Erreur majeure d'exécution : Vérifier le fichier de configuration Trajet.ini.";
    const auto fautes = {+[](Banc& b) { // the circle's centre under the outer wheel
                             b.e.ActionEnCours(1) = actions::VIRAVGA;
                             b.e.Param2EnCours(1) = -5;
                         },
                         +[](Banc& b) { // -(-32768) does not exist
                             b.e.ActionEnCours(1) = actions::RECULE;
                             b.e.ParamEnCours(1) = -32768;
                         },
                         +[](Banc& b) { b.e.NumAction(1) = 32767; },
                         +[](Banc& b) { b.e.NbRobot = 11; }};
    for (const auto faute : fautes) {
        Banc b;
        b.e.ActionEnCours.remplir(actions::PAUSE);
        b.e.ActionEnCours(1) = actions::AUCUNE;
        faute(b);
        EXPECT_FALSE(b.m.Timer_Timer());
        ASSERT_EQ(b.f.messages.size(), 1U);
        EXPECT_EQ(b.f.messages[0], message);
        EXPECT_TRUE(b.f.terminee);
        EXPECT_EQ(b.f.intervalle, 0);
    }
}

} // namespace
