#include "base/nombres.h"
#include "base/tableau.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Entier16, refuse_ce_qui_depasse_a_l_affectation) {
    Entier16 n = 32767;
    EXPECT_THROW(n = n + 1, Debordement);
    EXPECT_EQ(n, 32767) << "the old value stays";
    EXPECT_EQ(n * 2 - n, 32767) << "intermediates are ints";
    n = -32768;
    EXPECT_THROW(n = -n, Debordement);
    EXPECT_THROW(Entier16(65536LL), Debordement);
    EXPECT_THROW(Entier16(4294967295U), Debordement);
}

TEST(Arrondir16, moities_au_pair_puis_bornes) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infini = std::numeric_limits<double>::infinity();
    const std::pair<double, int> cas[] = {{0.5, 0},       {1.5, 2},          {2.5, 2},
                                          {-0.5, 0},      {-1.5, -2},        {-2.5, -2},
                                          {2.4999999, 2}, {32767.49, 32767}, {-32768.5, -32768}};
    for (const auto& [valeur, attendu] : cas)
        EXPECT_EQ(arrondir16(valeur), attendu) << valeur;
    for (const double valeur : {32767.5, -32768.51, 1e300, infini, -infini, nan})
        EXPECT_THROW(arrondir16(valeur), Debordement) << valeur;
}

TEST(Diviser, par_zero_leve) {
    EXPECT_EQ(diviser(1, -4), -0.25);
    EXPECT_THROW(diviser(0, 0.0), DivisionParZero);
    EXPECT_THROW(diviser(1, -0.0), DivisionParZero);
}

TEST(Tableau, seuls_les_indices_0_au_dernier_existent) {
    Tableau<int, 3> t;
    t(3) = 7;
    EXPECT_EQ(t(0) + t(3), 7);
    EXPECT_THROW(t(4), HorsTable);
    EXPECT_THROW(t(-1), HorsTable);
    Tableau2<int, 2, 5> t2;
    t2(2, 5) = 1;
    EXPECT_EQ(t2(1, 5), 0);
    EXPECT_THROW(t2(3, 0), HorsTable);
    EXPECT_THROW(t2(0, 6), HorsTable) << "not the next row's slot";
}
