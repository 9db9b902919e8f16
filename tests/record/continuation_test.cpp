// A path that is cut short by Escape, or gone on with after a recovery: what is saved is what the
// robot did.
#include "banc_console.h"

#include "record/lignes_du_trajet.h"
#include "record/trajet.h"

#include <gtest/gtest.h>

namespace {

using Phase = Console::Phase;

// Where robots and clock stand, and what the path and the table hold.
std::string ou_en_est(const BancConsole& b) {
    std::string texte = b.trajet(1) + b.trajet(2) + b.table();
    for (int i = 1; i <= 2; ++i)
        for (const float v : {b.e.XRobot(i), b.e.YRobot(i), b.e.CapRobot(i), b.e.Xm(i), b.e.Ym(i),
                              b.e.Xextr(i), b.e.Yextr(i)})
            texte.append(" ").append(texte_simple(v).vue());
    return texte + " " + std::to_string(b.e.TempsEcoule) + " " + std::to_string(b.e.NbreCarreaux) +
           " " + std::to_string(b.e.NumAction(1));
}

// Another robot moves meanwhile.
void faire_bouger_le_robot_2(BancConsole& b) {
    b.e.TrajNbActions(2) = 2;
    b.e.TrajAction(2, 1) = actions::AVANCE;
    b.e.TrajParam1(2, 1) = 150;
    b.e.TrajAction(2, 2) = actions::FIN;
}

// Escape after some ticks leaves what driving the shorter action would have left, to the bit.
TEST(Arret, l_action_arretee_est_celle_qui_a_ete_conduite) {
    struct Cas {
        const char *legende, *Text1, *Text4;
        int ticks;
        const char *reste1, *reste4; ///< of the shorter action; null when none is left
    };
    for (const Cas& c :
         {Cas{"Avance", "50", "0", 20, "20", "0"}, Cas{"Recule", "50", "0", 7, "7", "0"},
          Cas{"Droite", "0", "90", 1, nullptr, nullptr}, Cas{"Avance", "300", "0", 30, "30", "0"},
          Cas{"Pause", "200", "0", 60, "59", "0"}, Cas{"Pause", "200", "0", 1, nullptr, nullptr},
          Cas{"Balise Droite", "0", "0", 40, nullptr, nullptr}}) {
        for (const bool damier : {false, true}) {
            BancConsole arretee;
            BancConsole conduite;
            for (BancConsole* b : {&arretee, &conduite}) {
                faire_bouger_le_robot_2(*b);
                b->e.VitesseRot(1) = 0.5F;
                b->e.utiliDamier = damier;
                b->debuter();
                b->jouer("Avance", "10");
            }
            arretee.rendre_la_balise_introuvable(1);
            conduite.rendre_la_balise_introuvable(1);
            const std::string refus =
                message_de([&] { arretee.c.Command4_Click(c.legende, c.Text1, c.Text4); });
            EXPECT_EQ(std::string_view(c.Text1) == "300", !refus.empty())
                << "beyond the table's bytes, as long as it is not cut short";
            arretee.tourner(c.ticks);
            EXPECT_TRUE(arretee.c.arreter_action());
            if (c.reste1 != nullptr)
                conduite.jouer(c.legende, c.reste1, c.reste4);
            EXPECT_EQ(ou_en_est(arretee), ou_en_est(conduite)) << c.legende << c.ticks;
            EXPECT_EQ(arretee.c.phase(), Phase::repos);
            EXPECT_EQ(arretee.f.intervalle, 0);
            EXPECT_EQ(arretee.c.etapes().size(), c.reste1 != nullptr ? 2U : 1U);
            EXPECT_EQ(arretee.d.lire("Defaut Reprise.ini"), conduite.d.lire("Defaut Reprise.ini"));
            EXPECT_FALSE(arretee.c.arreter_action());
        }
    }
}

// An arc in whole degrees; and an action that runs on after "Fin Enr." is cut short like any other.
TEST(Arret, un_virage_et_une_action_apres_la_fin_de_l_enregistrement) {
    BancConsole b;
    b.debuter();
    b.c.Command4_Click("VirAvGa", "30", "90");
    b.tourner(20);
    const float vise = b.e.CapRobot(1);
    b.c.Command9_Click({});
    EXPECT_TRUE(b.c.arreter_action());
    EXPECT_EQ(b.c.phase(), Phase::arret);
    const int angle = b.e.TrajParam1(1, 1);
    EXPECT_EQ(b.trajet(1), "VIRAVGA   ," + std::to_string(angle) + ",30;");
    EXPECT_EQ(b.table(), "5,30," + std::to_string(angle) + ";");
    EXPECT_GT(angle, 0);
    EXPECT_NEAR(b.e.CapRobot(1), 90 + angle, 1e-3);
    EXPECT_NEAR(b.e.CapRobot(1), vise, 1);
}

// The first action after the end of the match, stopped before it has moved: the old path is back.
TEST(Arret, une_action_qui_recommencait_le_trajet_rend_l_ancien) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "20");
    b.m.Fin_Jeu();
    b.c.Command4_Click("Recule", "50", "0");
    EXPECT_TRUE(b.c.arreter_action());
    EXPECT_EQ(b.trajet(1), "AVANCE    ,20,0;");
    EXPECT_FALSE(b.e.en_course);
}

// Killed, recovered, gone on with: the state is the one of the session that was never killed.
TEST(Continuation, apres_une_reprise_la_suite_est_celle_qui_n_a_pas_ete_interrompue) {
    BancConsole avant;
    BancConsole apres;
    faire_bouger_le_robot_2(avant);
    faire_bouger_le_robot_2(apres);
    avant.e.utiliDamier = true;
    avant.debuter();
    avant.jouer("Avance", "30");
    avant.jouer("VirAvGa", "40", "90");
    avant.jouer("Pause", "20");
    avant.jouer("Droite", "0", "45");

    apres.d.ecrire("Defaut Reprise.ini", avant.d.lire("Defaut Reprise.ini"));
    apres.f.reponses = {true};
    ASSERT_TRUE(apres.reprise.proposer(apres.f));
    EXPECT_EQ(apres.reprise.dernier_robot(), 1);
    ASSERT_EQ(robot_enregistre_en_dernier(apres.e), 1);
    ASSERT_TRUE(apres.c.continuation_possible(1));
    apres.c.continuer(1);
    EXPECT_EQ(apres.c.phase(), Phase::repos);
    EXPECT_EQ(apres.f.intervalle, 0);
    EXPECT_EQ(ou_en_est(apres), ou_en_est(avant));
    ASSERT_EQ(apres.c.etapes().size(), 4U);
    for (std::size_t k = 0; k < 4; ++k)
        EXPECT_EQ(
            ligne_de_liste(apres.c.etapes()[k]).action + ligne_de_liste(apres.c.etapes()[k]).total,
            ligne_de_liste(avant.c.etapes()[k]).action + ligne_de_liste(avant.c.etapes()[k]).total);

    apres.e.utiliDamier = true;
    avant.jouer("Recule", "12");
    apres.jouer("Recule", "12");
    EXPECT_EQ(ou_en_est(apres), ou_en_est(avant));
    while (avant.c.etapes().size() > 1) {
        avant.c.annuler();
        apres.c.annuler();
        EXPECT_EQ(ou_en_est(apres), ou_en_est(avant));
    }
}

TEST(Continuation, seulement_le_trajet_enregistre_en_dernier) {
    BancConsole b;
    EXPECT_EQ(robot_enregistre_en_dernier(b.e), 0);
    EXPECT_FALSE(b.c.continuation_possible(1));
    b.e.TrajAction(1, 1) = actions::PAUSE; // a path of a file
    b.e.TrajParam1(1, 1) = 300;
    EXPECT_FALSE(b.c.continuation_possible(1));
    b.debuter(1);
    b.jouer("Avance", "10");
    EXPECT_FALSE(b.c.continuation_possible(1)) << "it is going on";
    b.c.Command9_Click({});
    EXPECT_TRUE(b.c.continuation_possible(1));
    b.debuter(2);
    b.jouer("Recule", "20");
    b.c.Command9_Click({});
    EXPECT_FALSE(b.c.continuation_possible(1));
    EXPECT_EQ(robot_enregistre_en_dernier(b.e), 2);
    EXPECT_FALSE(b.c.continuation_possible(3)) << "not on the table";
    b.c.continuer(2);
    b.jouer("Avance", "1");
    EXPECT_EQ(b.trajet(2), "RECULE    ,20,0;AVANCE    ,1,0;");
    EXPECT_EQ(b.table(), "1,10,0;2,20,0;1,1,0;");
}

// Values beyond the table's bytes have no row; what comes before a foreign row cannot be undone.
TEST(Continuation, les_actions_sans_ligne_sont_marquees) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "10");
    EXPECT_THROW(b.jouer("Pause", "300"), ErreurExecution);
    b.tourner();
    b.jouer("VirArDr", "20", "30");
    EXPECT_EQ(ligne_de_liste(b.c.etapes()[1]).action, "Pause 3,00 s (absente du code généré)");
    b.c.Command9_Click({});
    b.c.continuer(1);
    ASSERT_EQ(b.c.etapes().size(), 3U);
    EXPECT_FALSE(ligne_de_liste(b.c.etapes()[0]).marquee);
    EXPECT_TRUE(ligne_de_liste(b.c.etapes()[1]).marquee);
    b.c.annuler();
    EXPECT_EQ(b.table(), "1,10,0;");
    b.c.annuler();
    EXPECT_EQ(b.table(), "1,10,0;");
    b.c.Command9_Click({});
    b.e.TableauAGenerer(0, 1) = 11; // not this path's
    b.e.TrajAction(1, 2) = actions::PAUSE;
    b.e.TrajParam1(1, 2) = 256;
    b.e.TrajNbActions(1) = 2;
    b.c.continuer(1);
    b.c.annuler();
    EXPECT_FALSE(b.c.annulation_possible());
}

// A path that does not come to its end, be it by an action that nobody knows: nothing is recorded,
// and it is left as it is.
TEST(Continuation, un_trajet_qui_ne_se_joue_pas_reste_comme_il_est) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "10");
    b.jouer("Pause", "100");
    b.c.Command9_Click({});
    const std::string trajet = b.trajet(1);
    b.e.TrajAction(2, 1) = Nom10("SAUTE");
    b.e.TrajNbActions(2) = 1;
    EXPECT_THROW(b.c.continuer(1), ErreurExecution);
    EXPECT_EQ(b.c.phase(), Phase::arret);
    EXPECT_FALSE(b.e.en_course);
    EXPECT_EQ(b.trajet(1), trajet);
    EXPECT_EQ(b.table(), "1,10,0;9,100,0;");
    EXPECT_EQ(b.e.nb_a_generer, 2);
}

} // namespace
