#include "analyse/frise.h"

#include "analyse/banc_analyse.h"
#include "analyse/deroulement.h"

#include <gtest/gtest.h>

namespace {

/// Robot 1 goes from 1 to 21, waits from 22 to 123, turns from 124 to 214; robot 2 waits beyond the
/// match's end.
struct DeuxRobots : BancAnalyse {
    DeuxRobots() {
        e.NbRobot = 2;
        ajouter(1, actions::AVANCE, 20);
        ajouter(1, actions::PAUSE, 100);
        ajouter(1, actions::GAUCHE, 90);
        ajouter(1, actions::FIN);
        ajouter(2, actions::PAUSE, 20000);
        a = analyser();
    }
    Analyse a;
    const MatchCalcule& m = a.match;
};

TEST(Frise, chaque_action_a_ses_bornes_jusqu_au_tick) {
    const DeuxRobots b;
    std::vector<std::int32_t> bornes;
    for (std::int32_t t = 0; t < b.m.duree; bornes.push_back(t))
        t = limite_suivante(b.m, 1, t);
    EXPECT_EQ(bornes, (std::vector<std::int32_t>{1, 22, 124, 214, 9001}));
    bornes.clear();
    for (std::int32_t t = 9001; t > 0; bornes.push_back(t))
        t = limite_precedente(b.m, 1, t);
    EXPECT_EQ(bornes, (std::vector<std::int32_t>{124, 22, 1, 0}));
    EXPECT_EQ(limite_suivante(b.m, 2, 1), 9001) << "it has not ended";
    const std::pair<std::int32_t, int> cas[] = {{0, 0},   {1, 1},   {21, 1},  {22, 2},
                                                {123, 2}, {124, 3}, {214, 3}, {215, 0}};
    for (const auto& [temps, numero] : cas) {
        const ActionJouee* const action = action_au(b.m, 1, temps);
        EXPECT_EQ(action == nullptr ? 0 : int{action->numero}, numero) << temps;
    }
    EXPECT_EQ(description(b.e, b.m, 1, 25), "action 2 sur 3 : Pause 1,00 s");
    EXPECT_EQ(description(b.e, b.m, 1, 300), "à l'arrêt");
}

TEST(Frise, une_action_se_trouve_par_numero_nom_ou_genre_et_la_suivante_apres_elle) {
    const DeuxRobots b;
    struct Cas {
        const char* texte;
        int robot;
        std::int32_t temps;
        std::pair<int, int> trouvee; ///< robot, number; 0 for none
    };
    for (const Cas& c :
         {Cas{"2", 1, 0, {1, 2}}, Cas{" ava", 1, 0, {1, 1}}, Cas{"GAUCHE", 2, 9001, {1, 3}},
          Cas{"rotation", 1, 0, {1, 3}}, Cas{"pause", 1, 0, {2, 1}}, Cas{"pause", 2, 1, {1, 2}},
          Cas{"pause", 1, 22, {2, 1}}, Cas{"virage", 1, 0, {0, 0}}, Cas{"3x", 1, 0, {0, 0}},
          Cas{" ", 1, 0, {0, 0}}}) {
        const auto t = chercher_action(b.m, c.texte, c.robot, c.temps);
        EXPECT_EQ(t ? std::pair(t->robot, int{t->action->numero}) : std::pair(0, 0), c.trouvee)
            << c.texte << " after " << c.temps;
    }
}

TEST(Frise, un_constat_sans_instant_a_celui_de_l_action_sur_sa_ligne) {
    DeuxRobots b;
    b.a.lignes(1) = {4, 5, 7, 8};
    EXPECT_EQ(instant_de(b.a, {.robot = 1, .ligne = 7}), 124);
    EXPECT_EQ(instant_de(b.a, {.robot = 1, .temps = 50, .ligne = 7}), 50);
    EXPECT_EQ(instant_de(b.a, {.robot = 1, .ligne = 8}), std::nullopt) << "never played";
    EXPECT_EQ(instant_de(b.a, {.robot = 2, .ligne = 4}), std::nullopt) << "in no file";
    EXPECT_EQ(texte_pose({12.34F, -0.06F, -90}), "x = 12,3 cm, y = -0,1 cm, cap = 270,0°");
    EXPECT_EQ(texte_pose({0, 0, 719.97F}), "x = 0,0 cm, y = 0,0 cm, cap = 0,0°");
}

TEST(Deroulement, se_lit_a_sa_vitesse_jusqu_au_bout_puis_du_debut) {
    Deroulement d;
    d.regler(9001, 1);
    d.lire();
    const std::tuple<double, double, std::int32_t> etapes[] = {
        {1, 0.5, 50},
        {0.1, 0.25, 52},
        {0.1, 0.25, 55},
        {Deroulement::au_plus_vite, 0.001, 155},
        {100, 0.5, 5155}};
    for (const auto& [vitesse, secondes, temps] : etapes) {
        d.regler_vitesse(vitesse);
        d.passer(secondes);
        EXPECT_EQ(d.temps(), temps) << vitesse;
    }
    d.passer(1);
    EXPECT_EQ(d.temps(), 9001);
    EXPECT_FALSE(d.en_lecture());
    d.passer(1);
    EXPECT_EQ(d.temps(), 9001);
    d.lire();
    EXPECT_EQ(d.temps(), 0);
}

TEST(Deroulement, tourne_entre_a_et_b_et_survit_a_un_autre_match) {
    Deroulement d;
    d.regler(9001, 1);
    d.aller(1000);
    d.poser_debut_boucle();
    d.aller(1200);
    d.poser_fin_boucle();
    d.aller(20000);
    EXPECT_EQ(d.temps(), 9001);
    d.lire();
    EXPECT_EQ(d.temps(), 1000);
    d.passer(1.5);
    EXPECT_EQ(d.temps(), 1150);
    d.passer(1);
    EXPECT_EQ(d.temps(), 1000);
    EXPECT_TRUE(d.en_lecture());
    d.aller(3000);
    d.poser_debut_boucle();
    EXPECT_EQ(d.fin_boucle(), std::nullopt) << "it would end before it begins";
    d.regler(2003, 5);
    EXPECT_EQ(d.temps(), 2003);
    EXPECT_EQ(d.debut_boucle(), std::nullopt) << "beyond the match";
    for (const std::int32_t temps : {2000, 1995})
        EXPECT_EQ((d.avancer(-1), d.temps()), temps);
    EXPECT_EQ((d.avancer(1), d.temps()), 2000);
    d.aller(0);
    EXPECT_EQ((d.avancer(-1), d.temps()), 0);
}

} // namespace
