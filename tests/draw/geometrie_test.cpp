#include "draw/geometrie.h"

#include <gtest/gtest.h>

namespace {

TEST(Distance, des_segments_et_des_blocs) {
    struct Cas {
        const char* nom;
        Segment s, t;
        double attendu;
    };
    const Cas cas[] = {
        {"se croisent", {{0, 0}, {10, 10}}, {{0, 10}, {10, 0}}, 0},
        {"un bout touche", {{0, 0}, {10, 0}}, {{5, 0}, {5, 9}}, 0},
        {"alignes et disjoints", {{0, 0}, {10, 0}}, {{13, 0}, {20, 0}}, 3},
        {"alignes et superposes", {{0, 0}, {10, 0}}, {{4, 0}, {20, 0}}, 0},
        {"paralleles", {{0, 0}, {10, 0}}, {{2, 4}, {8, 4}}, 4},
        {"de bout en bout", {{0, 0}, {10, 0}}, {{13, 4}, {13, 9}}, 5},
        {"deux points", {{1, 1}, {1, 1}}, {{4, 5}, {4, 5}}, 5},
    };
    for (const Cas& c : cas) {
        EXPECT_DOUBLE_EQ(distance(c.s, c.t), c.attendu) << c.nom;
        EXPECT_DOUBLE_EQ(distance(c.t, c.s), c.attendu) << c.nom;
        EXPECT_DOUBLE_EQ(ecart(std::span(&c.s, 1), std::span(&c.t, 1), 100), c.attendu) << c.nom;
    }
    const Obstacle boite{{10, 10}, {20, 30}};
    const Obstacle disque{{0, 0}, {0, 0}, 5};
    EXPECT_EQ(distance(Segment{{12, 12}, {13, 13}}, boite), 0) << "inside: blocks are filled";
    EXPECT_EQ(distance(Segment{{0, 20}, {40, 20}}, boite), 0) << "through";
    EXPECT_EQ(distance(Segment{{23, 34}, {40, 40}}, boite), 5) << "past the corner";
    EXPECT_EQ(distance(Segment{{1, 1}, {2, 2}}, disque), 0);
    EXPECT_EQ(distance(Segment{{-9, 8}, {9, 8}}, disque), 3);
}

TEST(Enceinte, seul_ce_qui_est_ferme_enferme) {
    const std::vector<Segment> carre{
        {{0, 0}, {10, 0}}, {{10, 0}, {10, 10}}, {{10, 10}, {0, 10}}, {{0, 10}, {0, 0}}};
    const auto avec = [&carre](std::vector<Segment> plus) {
        plus.insert(plus.end(), carre.begin(), carre.end());
        return plus;
    };
    struct Cas {
        const char* nom;
        std::vector<Segment> contour;
        Point p;
        bool attendu;
    };
    const Cas cas[] = {
        {"dedans", carre, {5, 5}, true},
        {"dehors", carre, {15, 5}, false},
        {"ouvert d'un cote", {carre.begin(), carre.begin() + 3}, {5, 5}, false},
        {"un bout qui traine dehors", avec({{{10, 5}, {20, 5}}}), {15, 6}, false},
        {"un bout qui traine dedans", avec({{{0, 5}, {7, 5}}}), {5, 6}, true},
        {"deux crochets ne ferment rien", {{{0, 0}, {9, 0}}, {{0, 9}, {9, 9}}}, {4, 4}, false},
        // Sides that cross beyond their corners, as the built-in robot's.
        {"croises",
         {{{-1, 0}, {11, 0}}, {{-1, 10}, {11, 10}}, {{0, -1}, {0, 11}}, {{10, -1}, {10, 11}}},
         {5, 5},
         true},
        {"a moins du dixieme de millimetre de fermer",
         {{{0, 0}, {10, 0}}, {{10, 0.0005}, {10, 10}}, {{10, 10}, {0, 10}}, {{0, 10}, {0, 0}}},
         {5, 5},
         true},
        {"a un millimetre pres, non",
         {{{0, 0}, {9.9, 0}}, {{10, 0}, {10, 10}}, {{10, 10}, {0, 10}}, {{0, 10}, {0, 0}}},
         {5, 5},
         false},
        // A wall across leaves two closed rooms; a second square beside it is its own.
        {"deux chambres", avec({{{0, 4}, {10, 4}}}), {5, 2}, true},
        {"un second carre",
         avec({{{20, 0}, {30, 0}}, {{30, 0}, {30, 9}}, {{30, 9}, {20, 9}}, {{20, 9}, {20, 0}}}),
         {25, 5},
         true},
        {"entre les deux carres",
         avec({{{20, 0}, {30, 0}}, {{30, 0}, {30, 9}}, {{30, 9}, {20, 9}}, {{20, 9}, {20, 0}}}),
         {15, 5},
         false},
        {"relies par une tige",
         avec({{{10, 5}, {20, 5}},
               {{20, 0}, {30, 0}},
               {{30, 0}, {30, 9}},
               {{30, 9}, {20, 9}},
               {{20, 9}, {20, 0}}}),
         {25, 6},
         true},
        {"un segment double et un segment nul",
         avec({{{0, 0}, {10, 0}}, {{3, 3}, {3, 3}}}),
         {5, 5},
         true},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(Enceinte(c.contour).enferme(c.p), c.attendu) << c.nom;
}

} // namespace
