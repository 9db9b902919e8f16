#include "analyse/banc_analyse.h"
#include "analyse/code_attendu.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

struct Cas {
    const char* nom;
    std::function<void(BancAnalyse&)> trajet;
    std::string code; ///< lines of a generation input
    PoseTick fin;     ///< of the code
    const char* difference = "";
    bool croises = true;
    bool notable = false;
};

CodeDuRobot lire(const Cas& c) {
    return {relire_entree("#\n" + c.code, "entree.ini"), "entree.ini", c.croises};
}

void verifier(const Cas& c) {
    BancAnalyse b;
    b.poser(1, 100, 160);
    b.e.PointY = {150, 160, 0};
    b.e.XmInit(1) = 100;
    b.e.YmInit(1) = 160;
    c.trajet(b);
    const auto copie = std::make_unique<Etat>(b.e);
    const EcartDeCode ecart = comparer_au_code(b.e, calculer_match(*copie), 1, lire(c));
    EXPECT_NEAR(ecart.code.x, c.fin.x, 0.01) << c.nom;
    EXPECT_NEAR(ecart.code.y, c.fin.y, 0.01) << c.nom;
    EXPECT_NEAR(ecart.code.cap, c.fin.cap, 0.01) << c.nom;
    EXPECT_EQ(ecart.premiere ? ecart.premiere->texte : "", c.difference) << c.nom;
    EXPECT_EQ(ecart.notable(), c.notable) << c.nom;
}

const auto avance_30 = [](BancAnalyse& b) { b.ajouter(1, actions::AVANCE, 30); };
const auto droite_puis_20 = [](BancAnalyse& b) {
    b.ajouter(1, actions::DROITE, 90);
    b.ajouter(1, actions::AVANCE, 20);
    b.ajouter(1, actions::FIN);
    b.ajouter(1, actions::AVANCE, 99);
};

} // namespace

// Start (100 ; 160), heading 0.
TEST(ComparerAuCode, le_robot_finit_ou_le_calcul_a_la_main_le_dit) {
    const Cas cas[] = {
        {"tout droit", avance_30, "AVANCE:30", {130, 160, 0}},
        {"un tour a droite appelle Action_Gauche",
         droite_puis_20,
         "GAUCHE:90\nAVANCE:20",
         {100, 140, -90}},
        {"qui tourne a gauche chez une equipe qui ne croise pas",
         droite_puis_20,
         "GAUCHE:90\nAVANCE:20",
         {100, 180, 90},
         "l'action 1 (DROITE 90) : le code fait GAUCHE 90, qui tourne à gauche (ligne 2)",
         false,
         true},
        // 30 sin 90 = 26.82 and 30 (1 - cos 90) = 43.44, of radians; the arc ends in (130 ; 190).
        {"un arc a gauche devient un detour a droite, arrondi",
         [](BancAnalyse& b) { b.ajouter(1, actions::VIRAVGA, 90, 30); },
         "AVANCE:26.8198999080167\nGAUCHE:90\nAVANCE:43.4422084838751",
         {127, 117, -90},
         "l'action 1 (VIRAVGA 90, 30) : le code remplace l'arc par AVANCE 27, GAUCHE 90, AVANCE 43 "
         "(lignes 2 à 4) et tourne de l'autre côté",
         true,
         true},
        {"un arc arriere a droite, sans croiser",
         [](BancAnalyse& b) { b.ajouter(1, actions::VIRARDR, 90, 30); },
         "RECULE:26.8198999080167\nDROITE:90\nRECULE:43.4422084838751",
         {73, 203, -90},
         "l'action 1 (VIRARDR 90, 30) : le code remplace l'arc par RECULE 27, DROITE 90, RECULE 43 "
         "(lignes 2 à 4)",
         false,
         true},
        {"un arc nul n'a que son quart de tour",
         [](BancAnalyse& b) { b.ajouter(1, actions::VIRAVDR, 0, 0); },
         "AVANCE:0\nDROITE:90\nAVANCE:0",
         {100, 160, 90},
         "l'action 1 (VIRAVDR 0, 0) : le code remplace l'arc par AVANCE 0, DROITE 90, AVANCE 0 "
         "(lignes 2 à 4) et tourne de l'autre côté",
         true,
         true},
        {"une pause, des carreaux, une balise droit devant",
         [](BancAnalyse& b) {
             b.ajouter(1, actions::PAUSE, 50);
             b.ajouter(1, actions::AVANCE, 30);
             b.ajouter(1, actions::BALISE_DRO);
         },
         "DELAY :50\nAVANCE:30\nCARREAUX:2\nBALDROITE",
         {130, 160, -0.0873F}},
        {"une autre pause ne mene pas ailleurs",
         [](BancAnalyse& b) { b.ajouter(1, actions::PAUSE, 50); },
         "DELAY :40",
         {100, 160, 0},
         "l'action 1 (PAUSE 50) : le code fait ici DELAY 40 (ligne 2)"},
        {"l'arrondi vers le bas ne se voit pas", avance_30, "AVANCE:30.4", {130, 160, 0}},
        {"vers le haut il perd un centimetre, qui ne compte pas encore",
         avance_30,
         "AVANCE:30.6",
         {131, 160, 0},
         "l'action 1 (AVANCE 30) : le code fait ici AVANCE 31 (ligne 2)"},
        {"le code s'arrete avant",
         droite_puis_20,
         "GAUCHE:90",
         {100, 160, -90},
         "l'action 2 (AVANCE 20) et la suite ne sont pas dans le code",
         true,
         true},
        {"le code continue apres",
         avance_30,
         "AVANCE:30\nDROITE:2",
         {130, 160, 2},
         "après le trajet, le code fait encore DROITE 2, qui tourne à gauche (ligne 3)",
         true,
         true},
    };
    for (const Cas& c : cas)
        verifier(c);
}

TEST(ComparerAuCode, le_code_est_celui_du_robot_dont_il_a_le_plus_de_mouvements) {
    BancAnalyse b;
    b.e.NbRobot = 3;
    droite_puis_20(b);
    for (const int distance : {20, 30, 40, 50})
        b.ajouter(2, actions::AVANCE, distance);
    const auto robot = [&b](const char* code) {
        return robot_du_code(b.e, relire_entree(code, ""));
    };
    EXPECT_EQ(robot("#\nAVANCE:7\nGAUCHE:90\nAVANCE:20\n"), 1) << "trials before it";
    EXPECT_EQ(robot("#\nAVANCE:20\nAVANCE:31\nAVANCE:40\nAVANCE:50\n"), 2) << "one was changed";
    EXPECT_EQ(robot("#\nAVANCE:50\n"), 0) << "less than half of robot 2's";
    EXPECT_EQ(robot("#\n"), 0);
    b.e.NbRobot = 1;
    EXPECT_EQ(robot("#\nGAUCHE:90\nAVANCE:20\nAVANCE:30\nAVANCE:40\n"), 0)
        << "half of robot 1's, but made from robot 2's, which does not play";
}

TEST(ComparerAuCode, le_constat_attend_que_le_trajet_soit_sauve) {
    BancAnalyse b;
    b.poser(1, 100, 160);
    b.ajouter(1, actions::AVANCE, 30);
    b.ajouter(1, actions::VIRAVGA, 90, 30);
    Provenance p;
    p.code = CodeDuRobot{relire_entree("#\nAVANCE:30\nAVANCE:27\nGAUCHE:90\nAVANCE:43\nToupie", ""),
                         "Configuration/x.ini"};
    const Analyse a = analyser(b.e, p);
    ASSERT_EQ(a.constats.size(), 1U);
    const Constat& c = a.constats.front();
    EXPECT_EQ(c.genre, Genre::code);
    EXPECT_EQ(c.robot, 1);
    EXPECT_EQ(c.temps, a.match.actions(1)[1].fin) << "when the screen's arc is over";
    EXPECT_NEAR(c.ecart.value_or(0), std::hypot(3, 73), 0.01);
    EXPECT_EQ(c.texte,
              "le code de Configuration/x.ini mène le robot à 73,1 cm et 180,0° de l'écran. "
              "Première différence : l'action 2 (VIRAVGA 90, 30) : le code remplace l'arc par "
              "AVANCE 27, GAUCHE 90, AVANCE 43 (lignes 3 à 5) et tourne de l'autre côté. 1 ligne "
              "du code non comprise, à partir de la ligne 6. Remplacez les virages par des lignes "
              "droites et des tours, que le code rend exactement.");
    b.e.TrajetModifie(1) = true;
    EXPECT_TRUE(analyser(b.e, p).constats.empty());
}
