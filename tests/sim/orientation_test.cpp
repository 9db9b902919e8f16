#include "sim/banc.h"
#include "sim/orientation.h"

#include <gtest/gtest.h>

namespace {

using Coins = std::array<int, 4>;

Coins coins(const auto& q) {
    return {q.X1, q.Y1, q.X2, q.Y2};
}

void remplir(Etat& e) {
    e.XMax = 200;
    e.YMax = 320;
    e.NbZones = 1;
    e.Zones(1) = {'L', 0, 19, 200, 21};
    e.NbLignes = 1;
    e.Lignes(1) = {0, 0, 10, 20};
    e.NbBlocs = 2;
    e.Blocs(1) = {10, 20, 30, 60};
    e.Blocs(2) = {50, 70, 15, marque_disque};
    e.NbEllipses = 1;
    e.Ellipses(1) = {100, 200, 140, 300};
    e.NbPions = 1;
    e.Pions(1) = {60, 90, 4, "PB"};
    e.ZoneRedessin = {1, 2, 3, 4};
    for (const int i : {1, 9, 10}) {
        e.XRobot(i) = 100.4F;
        e.YRobot(i) = 30.5F;
        e.CapRobot(i) = 0;
        e.XInit(i) = 12;
        e.YInit(i) = 34;
        e.CapInit(i) = 90;
    }
}

TEST(Orientation, horizontal_tourne_la_table_et_les_robots_dans_le_sens_horaire) {
    Banc b;
    remplir(b.e);
    horizontal(b.e);
    EXPECT_EQ(b.e.XMax, 320);
    EXPECT_EQ(b.e.YMax, 200);
    EXPECT_EQ(coins(b.e.Zones(1)), (Coins{19, 0, 21, 200}));
    EXPECT_EQ(coins(b.e.Lignes(1)), (Coins{0, 190, 20, 200})) << "the other diagonal";
    EXPECT_EQ(coins(b.e.Blocs(1)), (Coins{20, 170, 60, 190}));
    EXPECT_EQ(coins(b.e.Blocs(2)), (Coins{70, 150, 15, -1}));
    EXPECT_EQ(coins(b.e.Ellipses(1)), (Coins{200, 60, 300, 100}));
    EXPECT_EQ(b.e.Pions(1).X, 90);
    EXPECT_EQ(b.e.Pions(1).Y, 140);
    EXPECT_EQ(b.e.ZoneRedessin.ymax, 4);
    for (const int i : {1, 9}) {
        EXPECT_FLOAT_EQ(b.e.XRobot(i), 30.5F);
        EXPECT_FLOAT_EQ(b.e.YRobot(i), 100); // its fraction is lost
        EXPECT_FLOAT_EQ(b.e.CapRobot(i), -90);
        EXPECT_FLOAT_EQ(b.e.XInit(i), 34);
        EXPECT_FLOAT_EQ(b.e.YInit(i), 188);
    }
    EXPECT_FLOAT_EQ(b.e.XRobot(10), 100.4F) << "slot 10 is not turned";
}

TEST(Orientation, vertical_defait_horizontal_a_l_arrondi_pres) {
    Banc b;
    remplir(b.e);
    horizontal(b.e);
    vertical(b.e);
    Banc temoin;
    remplir(temoin.e);
    EXPECT_EQ(b.e.XMax, 200);
    EXPECT_EQ(coins(b.e.Zones(1)), coins(temoin.e.Zones(1)));
    EXPECT_EQ(coins(b.e.Lignes(1)), coins(temoin.e.Lignes(1)));
    EXPECT_EQ(coins(b.e.Blocs(1)), coins(temoin.e.Blocs(1)));
    EXPECT_EQ(coins(b.e.Blocs(2)), coins(temoin.e.Blocs(2)));
    EXPECT_EQ(coins(b.e.Ellipses(1)), coins(temoin.e.Ellipses(1)));
    EXPECT_EQ(b.e.Pions(1).Y, 90);
    EXPECT_FLOAT_EQ(b.e.XRobot(1), 100);
    EXPECT_FLOAT_EQ(b.e.YRobot(1), 30) << "30.5 goes to the even neighbour";
    EXPECT_FLOAT_EQ(b.e.CapRobot(1), 0);
}

TEST(Orientation, une_coordonnee_hors_de_16_bits_est_une_erreur) {
    Banc b;
    b.e.XMax = 30000;
    b.e.NbPions = 1;
    b.e.Pions(1).X = -30000;
    EXPECT_THROW(horizontal(b.e), Debordement);
    EXPECT_EQ(b.e.XMax, 30000) << "nothing is turned";
    EXPECT_EQ(b.e.Pions(1).X, -30000);
    Banc c;
    c.e.XRobot(3) = 40000;
    EXPECT_THROW(horizontal(c.e), Debordement);
    c.e.XRobot(3) = -32700; // H - x
    EXPECT_THROW(horizontal(c.e), Debordement);
}

} // namespace
