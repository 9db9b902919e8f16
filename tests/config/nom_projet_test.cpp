#include "config/nom_projet.h"

#include <gtest/gtest.h>

TEST(NomProjet, ce_qui_serait_liste_et_ce_qui_est_propose) {
    struct Cas {
        std::string nom;
        GenreFichier genre;
        std::string_view projet, propose;
        bool possible = true;
    };
    constexpr auto table = GenreFichier::table;
    constexpr auto robot = GenreFichier::robot;
    const Cas cas[] = {
        {"Essai Table", table, "Essai", "Essai Table"},
        {"essai TABLE", table, "essai", "essai TABLE"},
        {"Defaut", table, "", "Defaut Table"},
        {"Essai Table.ini", table, "", "Essai Table"},
        {" Essai Table", table, "", "Essai Table"},
        {"Table", table, "", "Projet Table"},
        {" Table", table, "", "Projet Table"},
        {"", table, "", "Projet Table", false},
        {"  ", robot, "", "Projet Robot1", false},
        {"a/b\\c Table", table, "", "abc Table", false},
        {"n#2 Table", table, "", "n2 Table", false},
        {std::string("a\0b", 3), table, "", "ab Table", false},
        {"Essai Robot9", robot, "Essai", "Essai Robot9"},
        {"Essai Robot0", robot, "", "Essai Robot0 Robot1"},
        {"Essai Table", robot, "", "Essai Table Robot1"},
    };
    for (const Cas& c : cas) {
        EXPECT_EQ(projet_du_nom(c.nom, c.genre), c.projet) << c.nom;
        EXPECT_EQ(proposer_nom(c.nom, c.genre), c.propose) << c.nom;
        EXPECT_EQ(raison_nom_impossible(c.nom).empty(), c.possible) << c.nom;
    }
    const std::string longue = proposer_nom(std::string(900, 'x'), table);
    EXPECT_EQ(raison_nom_impossible(longue), "");
    EXPECT_NE(raison_nom_impossible(std::string(900, 'x')), "");
}
