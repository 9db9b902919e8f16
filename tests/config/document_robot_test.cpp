#include "config/document_robot.h"

#include "config/defauts.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

TEST(DocumentRobot, le_robot_par_defaut_garde_ses_octets_et_ses_valeurs) {
    const std::string octets = robot_par_defaut("Defaut", 3);
    const DocumentRobot d = DocumentRobot::depuis(octets);
    EXPECT_EQ(d.ecrire(), octets);
    EXPECT_EQ(d.compter({"R"}), 6);
    EXPECT_EQ(d.valeurs("A"), (std::array<float, 4>{10, 14, 10, 0}));
    EXPECT_EQ(d.valeurs("I"), (std::array<float, 4>{}));
    const auto e = std::make_unique<Etat>();
    d.remplir(*e);
    EXPECT_EQ(e->NbPoints(1), 12);
    EXPECT_EQ(e->Entraxe(1), 10);
}

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
    std::mt19937 hasard(5);
    const auto nombre = [&] {
        return static_cast<float>(static_cast<int>(hasard() % 65536) - 32768);
    };
    while (d.compter({"R"}) < DocumentRobot::segments_max)
        d.ajouter({"R", {nombre(), nombre(), nombre(), nombre()}, ""});
    EXPECT_THROW(d.ajouter({"R", {1, 1, 2, 2}, ""}), ErreurExecution);
    const std::string octets = d.ecrire();
    const DocumentRobot relu = DocumentRobot::depuis(octets);
    ASSERT_EQ(relu.nombre(), d.nombre());
    for (std::size_t i = 0; i < d.nombre(); ++i)
        EXPECT_EQ(relu[i], d[i]);
    EXPECT_FALSE(DocumentRobot::relire(octets));
    const std::string trop = octets + "R,1,1,2,2\r\n";
    EXPECT_THROW(static_cast<void>(DocumentRobot::depuis(trop).ecrire()), ErreurExecution);
}
