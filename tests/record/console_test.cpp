#include "banc_console.h"

#include "sim/orientation.h"

#include <gtest/gtest.h>

namespace {

using Phase = Console::Phase;

TEST(Console, chaque_bouton_garnit_le_trajet_et_le_tableau) {
    struct Cas {
        const char *legende, *trajet, *table;
    };
    const Cas cas[] = {
        {"Avance", "AVANCE    ,30,0;", "1,30,0;"},
        {"Recule", "RECULE    ,30,0;", "2,30,0;"},
        {"Gauche", "GAUCHE    ,90,0;", "3,90,0;"},
        {"Droite", "DROITE    ,90,0;", "4,90,0;"},
        {"VirAvGa", "VIRAVGA   ,90,30;", "5,30,90;"},
        {"VirAvDr", "VIRAVDR   ,90,30;", "6,30,90;"},
        {"VirArGa", "VIRARGA   ,90,30;", "7,30,90;"},
        {"VirArDr", "VIRARDR   ,90,30;", "8,30,90;"},
        {"Pause", "PAUSE     ,30,0;", "9,30,0;"},
        {"Balise Droite", "BALISE DRO,0,0;", "10,0,0;"},
        {"Balise Gauche", "BALISE GAU,0,0;", "11,0,0;"},
    };
    for (const Cas& cas_ : cas) {
        BancConsole b;
        b.debuter();
        b.jouer(cas_.legende, "30", "90");
        EXPECT_EQ(b.trajet(1), cas_.trajet);
        EXPECT_EQ(b.table(), cas_.table);
        EXPECT_EQ(b.c.phase(), Phase::repos);
    }
}

TEST(Console, trois_etats_et_une_action_a_la_fois) {
    BancConsole b;
    EXPECT_EQ(b.c.phase(), Phase::arret);
    b.c.Command4_Click("Avance", "5", "0");
    EXPECT_EQ(b.trajet(1), "FIN       ,0,0;");
    b.debuter();
    EXPECT_EQ(b.c.phase(), Phase::repos);
    EXPECT_EQ(b.f.intervalle, 0); // the tick that found the robot idle
    b.c.Command4_Click("Avance", "50", "0");
    EXPECT_EQ(b.c.phase(), Phase::action);
    b.c.Command4_Click("Recule", "7", "0");
    b.c.VScroll1_Change(2);
    b.tourner();
    EXPECT_EQ(b.c.phase(), Phase::repos);
    EXPECT_EQ(b.trajet(1), "AVANCE    ,50,0;");
    EXPECT_NEAR(b.e.YRobot(1), 90, 1e-3);
    EXPECT_TRUE(b.e.en_course); // the run goes on between two actions

    b.c.Command4_Click("Avance", "50", "0");
    b.c.Command9_Click({});
    EXPECT_EQ(b.c.phase(), Phase::arret);
    b.tourner(); // the action ends: the buttons stay as they are when nothing is recorded
    EXPECT_EQ(b.c.phase(), Phase::arret);
    EXPECT_EQ(b.c.robot(), 1);
    EXPECT_TRUE(b.e.TrajetModifie(1));
}

TEST(Console, un_champ_refuse_est_nomme_et_rien_ne_commence) {
    BancConsole b;
    EXPECT_EQ(message_de([&] {
                  b.c.Command9_Click({"60", "", "90"});
              }),
              "champ « Y » : il est vide, il faut un nombre entier de -32768 à 32767");
    EXPECT_EQ(message_de([&] {
                  b.c.Command9_Click({"60", "40", "nord"});
              }),
              "champ « Cap » : « nord » n'est pas un nombre entier de -32768 à 32767");
    EXPECT_EQ(b.c.phase(), Phase::arret);
    EXPECT_TRUE(b.f.appels.empty());
    EXPECT_FALSE(b.e.TrajetModifie(1));

    b.debuter();
    // Both fields are read, whatever the action.
    EXPECT_TRUE(contient(message_de([&] { b.jouer("Avance", "5", ""); }),
                         "« Angle » : il est vide, il faut un nombre entier de 0 à 255"));
    EXPECT_TRUE(contient(message_de([&] { b.jouer("Balise Droite", "1e9", "0"); }), "« 1e9 »"));
    EXPECT_EQ(b.c.phase(), Phase::repos);
    EXPECT_EQ(b.trajet(1), "FIN       ,0,0;");
    EXPECT_FALSE(b.c.annulation_possible());

    b.e.NbRobot = 1;
    b.c.Command9_Click({});
    b.c.VScroll1_Change(2);
    EXPECT_TRUE(contient(message_de([&] {
                             b.c.Command9_Click({"1", "1", "1"});
                         }),
                         "le robot 2 n'est pas"));
}

TEST(Console, ce_que_le_tableau_ne_peut_garder_est_dit_et_joue) {
    BancConsole b;
    b.debuter();
    for (const char* trop : {"300", "256", "255.5", "-1"}) {
        EXPECT_TRUE(contient(message_de([&] { b.jouer("Pause", trop); }),
                             "n'est pas un nombre entier de 0 à 255"))
            << trop;
        b.tourner();
    }
    EXPECT_EQ(b.trajet(1), "PAUSE     ,300,0;PAUSE     ,256,0;PAUSE     ,256,0;PAUSE     ,-1,0;");
    EXPECT_EQ(b.table(), "");
    EXPECT_GT(b.e.TempsEcoule, 300 + 256 + 256);
    b.jouer("Avance", "255", "0");
    b.jouer("Avance", "254.5", "0"); // halves go to the even number
    EXPECT_EQ(b.table(), "1,255,0;1,254,0;");
    EXPECT_TRUE(contient(b.d.lire("Defaut Reprise.ini"), "Action,PAUSE     ,300,0"));

    b.c.tele_action(1, "SAUTE", 1, 2);
    EXPECT_EQ(b.f.messages.back(), "PB remplissage tableau à générer");
    EXPECT_EQ(b.table(), "1,255,0;1,254,0;");
}

TEST(Console, les_tableaux_pleins_le_disent) {
    BancConsole b;
    b.debuter();
    b.e.NumAction(1) = 999;
    b.e.nb_a_generer = 1000;
    b.jouer("Avance", "1");
    EXPECT_EQ(b.e.TrajNbActions(1), 1000);
    EXPECT_EQ(b.e.nb_a_generer, 1001);
    EXPECT_TRUE(contient(message_de([&] { b.jouer("Avance", "1"); }), "1000 actions au plus"));
    b.tourner();
    b.e.NumAction(1) = 3;
    EXPECT_TRUE(contient(message_de([&] { b.jouer("Avance", "1"); }), "1001 lignes au plus"));
    b.tourner();
    EXPECT_EQ(b.e.TrajNbActions(1), 4);
    EXPECT_EQ(b.c.phase(), Phase::repos);
}

// Heading 0 from (10, 10), sensor at the start: the count is that of the walk, by hand.
TEST(Console, le_damier_ajoute_le_compte_sauf_aux_pauses) {
    BancConsole b;
    b.e.utiliDamier = true;
    b.e.XextrInit(1) = b.e.XmInit(1) = 10;
    b.e.YextrInit(1) = b.e.YmInit(1) = 10;
    b.debuter(1, {"10", "10", "0"});
    b.jouer("Avance", "50"); // to x = 60: one change
    b.jouer("Pause", "4");
    b.jouer("Balise Droite", "0");
    EXPECT_EQ(b.table().substr(0, 32), "1,50,0;12,1,0;9,4,0;10,0,0;12,1,");
    EXPECT_EQ(b.f.nbre_carreaux, "1");

    b.e.NbreCarreaux = 300; // the count itself does not fit: the action's own row stays
    EXPECT_TRUE(contient(message_de([&] { b.jouer("Avance", "5"); }), "Nbre Carreaux"));
    EXPECT_EQ(b.table(), "1,50,0;12,1,0;9,4,0;10,0,0;12,1,0;1,5,0;");
}

// The clock of the match runs over all the actions; past 90 s it ends the run, and the next action
// starts over from the initial position and the first entry.
TEST(Console, apres_90_s_le_trajet_recommence_mais_pas_le_tableau) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "20");
    b.jouer("Pause", "200");
    b.rendre_la_balise_introuvable(1);
    b.jouer("Balise Droite");
    EXPECT_EQ(b.e.TempsEcoule, 9001);
    EXPECT_FALSE(b.e.en_course);
    EXPECT_EQ(b.c.phase(), Phase::repos);
    EXPECT_EQ(b.e.TrajNbActions(1), 3);
    EXPECT_TRUE(b.c.recommencera());
    EXPECT_TRUE(b.reprise.gardes().empty());

    b.jouer("Recule", "5");
    EXPECT_EQ(b.trajet(1), "RECULE    ,5,0;");
    EXPECT_EQ(b.table(), "1,20,0;9,200,0;10,0,0;2,5,0;");
    EXPECT_NEAR(b.e.YRobot(1), 35, 1e-3);
    EXPECT_TRUE(b.c.etapes().back().recommence);
    EXPECT_FALSE(b.c.recommencera());
    // The path that was there is kept, once.
    ASSERT_EQ(b.reprise.gardes().size(), 1U);
    EXPECT_EQ(b.reprise.gardes()[0].contenu.robots.at(0).actions.size(), 3U);
    b.jouer("Recule", "5");
    EXPECT_EQ(b.reprise.gardes().size(), 1U);
}

// Saved in the middle of a recording: what comes after it is offered again.
TEST(Console, ce_qui_suit_une_sauvegarde_n_est_pas_perdu) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "10");
    for (const bool annuler : {false, true}) {
        b.f.reponses = {true};
        EXPECT_TRUE(b.reprise.sauver(b.f).complete());
        EXPECT_FALSE(b.e.TrajetModifie(1) || std::filesystem::exists(b.reprise.chemin()));
        annuler ? b.c.annuler() : b.jouer("Recule", "5");
        EXPECT_TRUE(b.e.TrajetModifie(1) && std::filesystem::exists(b.reprise.chemin())) << annuler;
    }
}

TEST(Console, la_position_passe_par_le_repere_de_la_console) {
    BancConsole b;
    b.e.XInit(1) = 60.5F;
    b.e.YInit(1) = 40;
    b.e.CapInit(1) = 12.5F;
    const ChampsPose droite = tele_get_xya(b.e, 1);
    EXPECT_EQ(droite.TextX + " " + droite.TextY + " " + droite.TextA, "60.5 40 12");

    b.e.TableHorizontale = -1;
    horizontal(b.e); // 320 x 200
    b.debuter(1, {"20", "50", "0"});
    EXPECT_EQ(b.e.XInit(1), 50);
    EXPECT_EQ(b.e.YInit(1), 180);
    EXPECT_EQ(b.e.CapRobot(1), -90);
    // The way back uses the other extent: (20, 50) comes back as (140, 50).
    const ChampsPose tournee = tele_get_xya(b.e, 1);
    EXPECT_EQ(tournee.TextX + " " + tournee.TextY + " " + tournee.TextA, "140 50 0");
    EXPECT_EQ(pose_des_fichiers(b.e, 1).x, 20);
    EXPECT_EQ(pose_des_fichiers(b.e, 1).y, 50);
    b.e.CapInit(1) = 32760;
    EXPECT_THROW(tele_get_xya(b.e, 1), Debordement);
}

} // namespace
