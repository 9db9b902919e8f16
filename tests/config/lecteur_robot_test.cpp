#include "config/lecteur_robot.h"

#include "lecture.h"

#include <gtest/gtest.h>

namespace {

std::string lire(LecteurRobot& lecteur, std::string_view texte, int n = 1) {
    return arret([&](Entier16& NoLigne) { lecteur.lire(texte, n, NoLigne); });
}

} // namespace

TEST(LecteurRobot, vitesses_repere_capteur_et_pose) {
    Etat e;
    LecteurRobot lecteur(e);
    EXPECT_EQ(lire(lecteur, "v,150,-90\nA,10.25,14,11\nE,1,2,3\nI,100,22,-180\n", 9), "");
    EXPECT_EQ(e.VitesseLin(9), 1.5F);
    EXPECT_EQ(e.VitesseRot(9), -0.9F);
    EXPECT_EQ(e.Entraxe(9), 11);
    for (const auto* x : {&e.XmInit, &e.Xm})
        EXPECT_EQ((*x)(9), 10.25F);
    for (const auto* y : {&e.YmInit, &e.Ym})
        EXPECT_EQ((*y)(9), 14);
    for (const auto* x : {&e.XextrInit, &e.Xextr})
        EXPECT_EQ((*x)(9), 1);
    for (const auto* y : {&e.YextrInit, &e.Yextr})
        EXPECT_EQ((*y)(9), 2);
    EXPECT_EQ(e.DistExtr(9), 3);
    EXPECT_EQ(e.XInit(9), 100);
    EXPECT_EQ(e.YInit(9), 22);
    EXPECT_EQ(e.CapInit(9), -180);
    EXPECT_EQ(e.NbPoints(9), 0);
}

// Seen from the reference point (10, 20): ahead, left, behind, right, at it, and the diagonals.
TEST(LecteurRobot, contour_en_polaire) {
    struct Point {
        int x, y;
        float distance, direction;
    };
    const Point points[] = {{10, 25, 5, 0},          {10, 15, 5, 3.14159F},
                            {7, 20, 3, 1.5708F},     {13, 20, 3, -1.5708F},
                            {10, 20, 0, 1.5708F},    {13, 24, 5, -0.643501109F},
                            {7, 16, 5, 2.49808884F}, {13, 16, 5, 3.78509116F}};
    Etat e;
    LecteurRobot lecteur(e);
    std::string texte;
    for (std::size_t i = 0; i < std::size(points); i += 2)
        texte += "R," + std::to_string(points[i].x) + "," + std::to_string(points[i].y) + "," +
                 std::to_string(points[i + 1].x) + "," + std::to_string(points[i + 1].y) + "\n";
    EXPECT_EQ(lire(lecteur, texte + "A,10,20,1"), "") << "a late reference point counts for all";
    EXPECT_EQ(e.NbPoints(1), 8);
    int k = 0;
    for (const Point& p : points) {
        ++k;
        EXPECT_EQ(e.RobotDist(1, k), p.distance) << k;
        EXPECT_FLOAT_EQ(e.RobotAngle(1, k), p.direction) << k;
    }
}

TEST(LecteurRobot, le_repere_reste_d_un_fichier_a_l_autre) {
    Etat e;
    e.Xm(1) = 50; // of an earlier reading: not the reference point
    LecteurRobot lecteur(e);
    EXPECT_EQ(lire(lecteur, "R,3,4,0,0", 1), "");
    EXPECT_EQ(e.RobotDist(1, 1), 5);
    EXPECT_EQ(lire(lecteur, "A,3,4,1", 2), "");
    EXPECT_EQ(lire(lecteur, "R,3,4,0,0", 3), "");
    EXPECT_EQ(e.RobotDist(3, 1), 0);
    EXPECT_EQ(e.RobotDist(3, 2), 5);
    EXPECT_EQ(e.Xm(3), 0);
}

TEST(LecteurRobot, refuse_a_la_ligne_fautive) {
    const std::string segment = "R,0,0,1,1\n";
    const Refus refus[] = {{"V,1,1\nR,1,2,3", "2"},
                           {"R,1,2,3,4,5", "1"},
                           {"\nV,100", "2"},
                           {"V,1e3,1.5\nV,100,x", "2"},
                           {"A,1.5,2", "1"},
                           {"A,10.5,20,1.2.3", "1"},
                           {"A,1e39,2,3", "1"},
                           {"A,,2,3", "1"},
                           {"E,1,2,3,4", "1"},
                           {"I,1,2,40000", "1"},
                           {"# V\nQ,1,2", "2"},
                           {"RR,1,2,3,4", "1"},
                           {"R", "1"},
                           {repeter(segment, 51) + "#\n", "52"}, // found at the end of the file
                           {repeter(segment, 101) + "#\n", "101"}};
    for (const Refus& r : refus) {
        Etat e;
        LecteurRobot lecteur(e);
        EXPECT_EQ(lire(lecteur, r.texte), r.ligne) << r.texte.substr(0, 80);
    }
    Etat e;
    LecteurRobot lecteur(e);
    EXPECT_EQ(lire(lecteur, repeter(segment, 50)), "");
    EXPECT_EQ(e.NbPoints(1), 100);
}
