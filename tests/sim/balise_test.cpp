#include "banc.h"

#include <gtest/gtest.h>

namespace {

constexpr float pas = 0.0872664F; // of a search, degrees a tick

struct BancBalise : Banc {
    BancBalise() {
        e.Xm(1) = 100;
        e.Ym(1) = 100;
        e.DistExtr(1) = 20;
        e.CapRobot(1) = 10;
        e.ActionEnCours(1) = actions::BALISE_DRO;
    }
};

TEST(ChercherBalise, droit_devant_est_trouvee_apres_un_tour_de_roue) {
    BancBalise b;
    b.e.PointY = {150, 100, 0};
    b.m.Chercher_Balise(balise_droite, 1);
    EXPECT_EQ(b.e.ActionEnCours(1), actions::AUCUNE);
    EXPECT_FLOAT_EQ(b.e.CapRobot(1), 10 - pas);
    EXPECT_EQ(b.e.Progression(1), -1); // the full turn, before it is cut to the step
    EXPECT_EQ(b.e.Incidence, 10);      // the heading before the turn
    EXPECT_EQ(b.f.Info, "Xm=100 Ym=100 Xextr=120 Yextr=100d=30 dmin=50 d2=50");
}

TEST(ChercherBalise, chaque_cote_cherche_sa_balise_et_tourne_de_son_cote) {
    struct Cas {
        std::uint8_t Sens;
        float vitesse, tour;
        Nom10 nom;
    };
    const Cas cas[] = {{1, 1, -pas, actions::BD},
                       {2, 1, pas, actions::BG},
                       {0, 1, pas, actions::BG},
                       {1, 0.05F, -0.05F, actions::BD},
                       {2, 0.05F, 0.05F, actions::BG}};
    for (const Cas& c : cas) {
        BancBalise b;
        b.e.VitesseRot(1) = c.vitesse;
        // Behind the robot on the side sought, straight ahead on the other.
        b.e.PointX = {c.Sens == 1 ? 150.0F : 50.0F, 100, 0};
        b.e.PointY = {c.Sens == 1 ? 50.0F : 150.0F, 100, 0};
        b.m.Chercher_Balise(c.Sens, 1);
        EXPECT_EQ(b.e.ActionEnCours(1), c.nom) << int(c.Sens);
        EXPECT_FLOAT_EQ(b.e.CapRobot(1), 10 + c.tour);
        EXPECT_EQ(b.f.Info, "Xm=100 Ym=100 Xextr=120 Yextr=100d=70 dmin=50 d2=90");
    }
}

TEST(ChercherBalise, l_incidence_n_est_ramenee_que_d_un_cote) {
    struct Cas {
        std::uint8_t Sens;
        float cap, incidence;
    };
    for (const Cas& c : {Cas{1, 360.5F, 0.5F}, Cas{1, 360, 0}, Cas{1, 720, 0}, Cas{1, -10, -10},
                         Cas{2, -10, 350}, Cas{2, 360, 0}, Cas{2, 400, 400}, Cas{2, pas, 1}}) {
        BancBalise b;
        b.e.CapRobot(1) = c.Sens == 2 && c.cap == pas ? simple(5 * Pi / 180) : c.cap;
        b.m.Chercher_Balise(c.Sens, 1);
        EXPECT_EQ(b.e.Incidence, c.incidence) << c.cap;
    }
}

TEST(ChercherBalise, tous_les_capteurs_suivent_l_incidence_d_avant_le_tour) {
    BancBalise b;
    b.e.NbRobot = 2;
    b.e.Incidence = 90;
    b.e.Xm(1) = 12.4F;
    b.e.Ym(1) = 40;
    b.e.Xm(2) = 60;
    b.e.Ym(2) = 70;
    b.e.DistExtr(2) = 5;
    b.e.PointY = {100, 60, 0};
    b.m.Chercher_Balise(balise_droite, 1);
    EXPECT_EQ(b.f.Info, "Xm=12 Ym=40 Xextr=12 Yextr=60d=88 dmin=90 d2=108");
    EXPECT_NEAR(b.e.Xextr(2), 60, 1e-4);
    EXPECT_NEAR(b.e.Yextr(2), 75, 1e-4);

    // The incidence is now 10: robot 2's ray ends at (64.9, 70.9). The read-out's points stay robot
    // 1's, its distances are the searching robot's.
    b.e.PointY = {60, 170, 0};
    b.m.Chercher_Balise(balise_droite, 2);
    EXPECT_EQ(b.f.Info.substr(b.f.Info.find("d=")), "d=99 dmin=100 d2=104");
    EXPECT_THROW(b.m.Chercher_Balise(balise_droite, 11), HorsTable);
}

// A robot at heading 0 whose left beacon stands 30 degrees to the left, 50 cm away.
TEST(ChercherBalise, une_recherche_entiere_s_arrete_face_a_la_balise) {
    BancBalise b;
    b.e.CapRobot(1) = 0;
    b.e.PointX = {143.30127F, 125, 0};
    const int ticks = b.jouer(1, actions::BALISE_GAU, 0);
    // To two decimals the ray is straight from 1 to 1.5 degrees off.
    EXPECT_NEAR(b.e.CapRobot(1), 28.9, 0.5);
    EXPECT_NEAR(ticks, 331, 6);
}

TEST(ChercherBalise, une_balise_plus_proche_que_le_capteur_n_est_jamais_trouvee) {
    BancBalise b;
    b.e.PointY = {110, 100, 0};
    EXPECT_EQ(b.jouer(1, actions::BALISE_DRO, 0), 2000);
    EXPECT_EQ(b.e.ActionEnCours(1), actions::BD);
}

} // namespace
