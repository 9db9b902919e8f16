#include "config/document_robot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>

TEST(DocumentRobot, regler_change_la_derniere_ligne_ou_en_ajoute_une) {
    DocumentRobot d =
        DocumentRobot::depuis("A,1,2,3\nA , 1.25,2,3 # deux\nPas compris 1\nR,0,0,1,1");
    d.regler("A", {0.1F, 5, 12, 0});
    d.regler("I", {100, -30, 90, 0});
    d.ajouter({"R", {1, 1, -2, 2}, ""});
    EXPECT_EQ(d.incomprises(), std::vector<int>{3});
    const std::string ecrit = d.ecrire();
    EXPECT_EQ(ecrit, "A,1,2,3\nA , 0.1, 5, 12 # deux\nPas compris 1\nR,0,0,1,1\n"
                     "R , 1, 1, -2, 2\nI , 100, -30, 90\n");
    EXPECT_EQ(DocumentRobot::relire(ecrit)->ligne, 3);
}

TEST(DocumentRobot, au_plus_50_segments) {
    DocumentRobot d = DocumentRobot::nouveau();
    while (d.compter({"R"}) < DocumentRobot::segments_max)
        d.ajouter({"R", {-32768, 1, 2, 32767}, ""});
    EXPECT_THROW(d.ajouter({"R", {1, 1, 2, 2}, ""}), ErreurExecution);
    EXPECT_FALSE(DocumentRobot::relire(d.ecrire()));
    const std::string trop = d.ecrire() + "R,1,1,2,2\r\n";
    EXPECT_THROW(static_cast<void>(DocumentRobot::depuis(trop).ecrire()), ErreurExecution);
}

// Random robots, edited at random: what is written is what the simulator then simulates.
TEST(DocumentRobot, des_robots_au_hasard_sont_relus_tels_quels) {
    std::mt19937 hasard(7);
    const auto nombre = [&] {
        return static_cast<float>(static_cast<int>(hasard() % 4001) - 2000);
    };
    const auto e = std::make_unique<Etat>();
    for (int essai = 0; essai < 200; ++essai) {
        DocumentRobot d =
            DocumentRobot::depuis("# début\n\nR,1,2,3,4 # c\nV,100,90\nétrange ici\n");
        for (int k = 0; k < 40; ++k) {
            const Fiche segment{"R", {nombre(), nombre(), nombre(), nombre()}, ""};
            const std::size_t i = hasard() % d.nombre();
            const auto geste = hasard() % 6;
            if (geste == 0 && d[i].cle == "R" && i > 0)
                d.retirer(i);
            else if (geste == 1 && d[i].cle == "R" && i > 0)
                d.remplacer(i, segment);
            else if (geste > 3)
                d.regler(std::array{"V", "A", "E", "I"}.at(hasard() % 4),
                         {nombre(), nombre(), nombre(), 0});
            else
                d.ajouter(segment);
        }
        d.regler("A", {nombre() / 8, nombre(), nombre(), 0}); // its first number has a fraction
        d.regler("V", {nombre(), nombre(), 0, 0});
        const std::string octets = d.ecrire();
        EXPECT_TRUE(octets.starts_with("# début\n\nR,1,2,3,4 # c\n")) << octets;
        const DocumentRobot relu = DocumentRobot::depuis(octets);
        relu.remplir(*e);
        const auto A = d.valeurs("A");
        EXPECT_EQ(e->NbPoints(1), 2 * d.compter({"R"}));
        EXPECT_EQ(e->Entraxe(1), A[2]);
        EXPECT_FLOAT_EQ(e->VitesseRot(1), d.valeurs("V")[1] / 100);
        EXPECT_EQ(e->XmInit(1), A[0]);
        int point = 0;
        for (std::size_t i = 0; i < d.nombre(); ++i) {
            if (d[i].cle != "R")
                continue;
            for (const std::size_t bout : {0U, 2U})
                EXPECT_FLOAT_EQ(e->RobotDist(1, ++point),
                                std::hypot(d[i].v[bout] - A[0], d[i].v[bout + 1] - A[1]))
                    << octets;
        }
    }
}
