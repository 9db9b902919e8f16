#include "banc_console.h"

#include "sim/orientation.h"
#include "sim/textes_actions.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// Everything that an action can have changed, as text.
std::string photo(const BancConsole& b) {
    std::string texte = b.trajet(1) + b.table() + std::to_string(b.e.nb_a_generer);
    for (int i = 1; i <= 2; ++i) {
        for (const float v : {b.e.XRobot(i), b.e.YRobot(i), b.e.CapRobot(i), b.e.Xm(i), b.e.Ym(i),
                              b.e.Xextr(i), b.e.Yextr(i)})
            texte.append(" ").append(texte_simple(v).vue());
        texte += " " + std::to_string(b.e.NumAction(i));
    }
    return texte + " " + std::to_string(b.e.TempsEcoule) + " " +
           std::string(texte_simple(b.e.Incidence).vue()) + " " + std::to_string(b.e.NbreCarreaux) +
           (b.e.en_course ? " course" : " fin") + b.d.lire("Defaut Reprise.ini");
}

TEST(Annulation, chaque_action_se_reprend_jusqu_a_la_premiere) {
    BancConsole b;
    b.e.utiliDamier = true;
    b.e.TrajNbActions(2) = 2; // the other robot moves meanwhile
    b.e.TrajAction(2, 1) = actions::AVANCE;
    b.e.TrajParam1(2, 1) = 150;
    b.e.TrajAction(2, 2) = actions::FIN;
    b.debuter();
    b.jouer("Avance", "10");
    std::vector<std::string> photos;
    for (const auto& [legende, Text1, Text4] : {std::tuple{"Avance", "50", "0"},
                                                {"Pause", "20", "0"},
                                                {"VirAvGa", "30", "90"},
                                                {"Droite", "0", "45"}}) {
        photos.push_back(photo(b));
        b.jouer(legende, Text1, Text4);
    }
    while (!photos.empty()) {
        b.c.annuler();
        EXPECT_EQ(photo(b), photos.back());
        EXPECT_EQ(b.f.nbre_carreaux, std::to_string(b.e.NbreCarreaux));
        photos.pop_back();
    }
    b.jouer("Recule", "4");
    EXPECT_EQ(b.e.TrajNbActions(1), 2);
    EXPECT_EQ(b.c.etapes().size(), 2U);
}

TEST(Annulation, le_recommencement_apres_90_s_se_reprend_aussi) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "10");
    b.jouer("Recule", "3");
    const std::string avant_la_fin = photo(b);
    b.rendre_la_balise_introuvable(1);
    b.jouer("Balise Droite");
    const std::string fin_du_match = photo(b);
    b.jouer("Gauche", "0", "30");
    EXPECT_EQ(b.trajet(1), "GAUCHE    ,30,0;");
    b.c.annuler();
    EXPECT_EQ(photo(b), fin_du_match);
    EXPECT_FALSE(b.e.en_course);
    b.c.annuler();
    EXPECT_EQ(photo(b), avant_la_fin);
    b.jouer("Avance", "1");
    EXPECT_EQ(b.trajet(1), "AVANCE    ,10,0;RECULE    ,3,0;AVANCE    ,1,0;");
}

TEST(Annulation, seulement_en_enregistrant_et_au_repos) {
    BancConsole b;
    EXPECT_FALSE(b.c.annulation_possible());
    b.debuter();
    EXPECT_FALSE(b.c.annulation_possible());
    b.c.Command4_Click("Avance", "50", "0");
    b.c.annuler();
    EXPECT_EQ(b.c.phase(), Console::Phase::action);
    b.tourner();
    EXPECT_TRUE(b.c.annulation_possible());
    b.e.RobotTele = 0; // "Démarrer" plays the trajectory
    b.m.Fin_Jeu();
    b.m.Run_Jeu();
    EXPECT_FALSE(b.c.annulation_possible());
    b.m.Fin_Jeu();
    EXPECT_TRUE(b.c.annulation_possible());
    b.c.Command9_Click({});
    EXPECT_FALSE(b.c.annulation_possible());
    b.e.TrajetModifie(1) = false; // saved: nothing is lost by starting over
    b.debuter();
    EXPECT_FALSE(b.c.annulation_possible());
    EXPECT_EQ(b.trajet(1), "AVANCE    ,50,0;");
}

// "Début Enr." over a recording that is not saved: it is kept, and taking the start back, whatever
// was driven since, gives it back with its position and its list.
TEST(Annulation, le_debut_sur_un_trajet_non_sauve_se_reprend) {
    for (const bool actions_depuis : {false, true}) {
        BancConsole b;
        b.debuter();
        b.jouer("Avance", "10");
        b.jouer("Recule", "3");
        b.c.Command9_Click({});
        const std::string avant = photo(b);
        b.debuter(1, {"100", "50", "0"});
        EXPECT_TRUE(contient(b.c.annonce_du_precedent(), "Sauvegardes"));
        ASSERT_EQ(b.reprise.gardes().size(), 1U);
        EXPECT_EQ(b.reprise.gardes()[0].contenu.nb_actions(), 2U);
        if (actions_depuis) {
            b.jouer("Gauche", "0", "30");
            b.jouer("Avance", "7");
            b.c.annuler();
            b.c.annuler();
        } else {
            b.c.Command9_Click({}); // given up at once
        }
        b.c.annuler();
        EXPECT_EQ(photo(b), avant);
        EXPECT_EQ(b.e.XInit(1), 60);
        EXPECT_EQ(b.c.etapes().size(), 2U);
        EXPECT_EQ(b.c.phase(), Console::Phase::arret);
        EXPECT_EQ(b.c.annonce_du_precedent(), "");
        EXPECT_FALSE(b.c.annulation_possible());
    }
    // A start that nothing followed has replaced nothing.
    BancConsole b;
    b.debuter();
    b.c.Command9_Click({});
    b.debuter(1, {"100", "50", "0"});
    EXPECT_FALSE(b.c.annulation_possible());
    EXPECT_TRUE(b.reprise.gardes().empty());
}

// Taken back after the end: the run goes on, for the windows too, and the next action follows.
TEST(Annulation, apres_la_fin_la_course_continue_pour_tout_le_monde) {
    for (const int lent : {0, -1}) {
        BancConsole b;
        b.e.AffichageLent = vrai16(lent != 0);
        b.debuter();
        b.jouer("Avance", "10");
        b.c.Command4_Click("Avance", "50", "0");
        b.tourner(5);
        b.m.Fin_Jeu();
        b.f.appels.clear();
        b.c.annuler();
        EXPECT_EQ(b.f.appels.at(1), "course 1");
        EXPECT_EQ(b.f.appels.at(2), "logo 0");
        EXPECT_EQ(b.e.persistant, lent != 0);
        EXPECT_EQ(b.e.ZoneRedessin.xmax, b.e.XMax);
        EXPECT_EQ(b.f.appels.back(), "Dessine_Robot");
        b.jouer("Avance", "1");
        EXPECT_EQ(b.trajet(1), "AVANCE    ,10,0;AVANCE    ,1,0;");
    }
}

TEST(Annulation, la_table_tournee_entre_temps_garde_son_sens) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "10");
    b.jouer("Avance", "20");
    b.e.TableHorizontale = -1;
    horizontal(b.e);
    b.c.annuler();
    EXPECT_EQ(b.e.XMax, 320);
    // (60, 50) heading 90 on the table of 200 x 320, turned.
    EXPECT_NEAR(b.e.XRobot(1), 50, 1e-3);
    EXPECT_NEAR(b.e.YRobot(1), 140, 1e-3);
    EXPECT_NEAR(b.e.CapRobot(1), 0, 1e-3);
}

TEST(Liste, montre_valeurs_durees_et_temps_du_match) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "50"); // 50 steps and the tick that finds the robot idle, after the first one
    b.jouer("VirAvDr", "30", "90");
    b.jouer("Pause", "100");
    b.jouer("Balise Gauche");
    const LigneListe avance = ligne_de_liste(b.c.etapes().at(0));
    EXPECT_EQ(avance.numero + "|" + avance.action + "|" + avance.duree + "|" + avance.total,
              "1|Avance 50 cm|0,51 s|0,52 s");
    EXPECT_EQ(ligne_de_liste(b.c.etapes().at(1)).action, "VirAvDr 90° rayon 30 cm");
    const LigneListe pause = ligne_de_liste(b.c.etapes().at(2));
    EXPECT_EQ(pause.action + "|" + pause.duree, "Pause 1,00 s|1,02 s");
    EXPECT_EQ(ligne_de_liste(b.c.etapes().at(3)).action, "Balise Gauche");
    EXPECT_EQ(texte_duree(b.e.TempsEcoule), ligne_de_liste(b.c.etapes().back()).total);
    EXPECT_EQ(texte_duree(9005), "90,05 s");
}

std::vector<ActionConduite> au_hasard(std::mt19937& hasard, std::size_t nombre) {
    const auto n = [&](int limite) {
        return Entier16(std::uniform_int_distribution(1, limite)(hasard));
    };
    std::vector<ActionConduite> actions;
    while (actions.size() < nombre)
        switch (hasard() % 4) {
        case 0:
            actions.push_back({"AVANCE", n(60), 0});
            break;
        case 1:
            actions.push_back({"DROITE", n(200), 0});
            break;
        case 2:
            actions.push_back({"VIRARGA", n(120), n(40)});
            break;
        default:
            actions.push_back({"PAUSE", n(100), 0});
        }
    return actions;
}

void conduire(BancConsole& b, const std::vector<ActionConduite>& actions) {
    b.debuter();
    for (const ActionConduite& a : actions) {
        const bool arc = a.nom == "VIRARGA";
        b.jouer(actions::trouver_legende(a.nom)->legende.data(),
                std::to_string(arc ? a.p2 : a.p1).c_str(), std::to_string(a.p1).c_str());
    }
}

// A recording that was changed in the middle is the one that driving it so would have made.
TEST(Annulation, changer_au_milieu_est_conduire_autrement) {
    std::mt19937 hasard(5);
    for (int essai = 0; essai < 12; ++essai) {
        BancConsole b;
        b.e.utiliDamier = essai % 2 == 0;
        std::vector<ActionConduite> actions = au_hasard(hasard, 6);
        conduire(b, actions);
        for (int k = 0; k < 3; ++k) {
            const std::size_t rang = hasard() % actions.size();
            const auto la = actions.begin() + static_cast<std::ptrdiff_t>(rang);
            const ActionConduite autre = au_hasard(hasard, 1).front();
            ASSERT_TRUE(b.c.modification_possible(rang));
            switch (hasard() % 3) {
            case 0:
                b.c.supprimer(rang);
                actions.erase(la);
                break;
            case 1:
                b.c.inserer(rang, autre);
                actions.insert(la, autre);
                break;
            default:
                b.c.changer(rang, autre);
                *la = autre;
            }
        }
        BancConsole conduit;
        conduit.e.utiliDamier = b.e.utiliDamier;
        conduire(conduit, actions);
        EXPECT_EQ(photo(b), photo(conduit)) << essai;
        b.c.annuler();
        conduit.c.annuler();
        EXPECT_EQ(photo(b), photo(conduit)) << essai;
    }
}

TEST(Annulation, un_changement_qui_ne_tient_pas_dans_le_match_ne_change_rien) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "10");
    b.jouer("Recule", "3");
    const std::string avant = photo(b);
    EXPECT_THROW(b.c.inserer(1, {"PAUSE", 9000, 0}), ErreurExecution);
    EXPECT_EQ(photo(b), avant);
    EXPECT_FALSE(b.c.modification_possible(2));
}

} // namespace
