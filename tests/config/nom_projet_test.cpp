#include "config/nom_projet.h"

#include "base/erreurs.h"
#include "base/texte.h"
#include "config/defauts.h"
#include "config/lecteur_general.h"
#include "config/projet.h"
#include "outils/textes.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace {

// What the settings file gives back of a name that was written into it.
std::string relu(const std::string& nom) {
    const auto e = std::make_unique<Etat>();
    Entier16 NoLigne;
    lire_general(en_utf8(general_en_texte(nom, {.nb_robot = "1"})), *e, NoLigne);
    return e->NomProjet;
}

bool sort_du_dossier(const std::filesystem::path& chemin) {
    return chemin.lexically_normal().parent_path() != "/x/Configuration";
}

} // namespace

TEST(NomProjet, refuse_avec_sa_raison_ce_qui_sort_du_dossier_ou_ne_se_relit_pas) {
    const std::pair<std::string, std::string_view> cas[] = {
        {"..", "le nom d'un dossier"},
        {"../x", "séparateur"},
        {"/etc/x", "séparateur"},
        {"a\\b", "séparateur"},
        {std::string("x\0y", 3), "caractère de contrôle"},
        {"a\tb", "caractère de contrôle"},
        {"a\x1B[31mb", "caractère de contrôle"},
        {"a\x7F", "caractère de contrôle"},
        {"a\xC2\x9B", "caractère de contrôle"},
        {"été\xE9", "UTF-8"},
        {"A#B", "commentaire"},
        {"Essai #2", "commentaire"},
        {" Essai", "blanc"},
        {"Essai ", "blanc"},
        {" ", "blanc"},
        {std::string(191, 'x'), "trop long"},
    };
    for (const auto& [nom, raison] : cas) {
        EXPECT_TRUE(contient(raison_projet_impossible(nom), raison)) << nom;
        const std::string texte =
            message_de([&n = nom] { chemin_de_projet("/x/Configuration", n, " Table.ini"); });
        EXPECT_TRUE(contient(texte, raison));
        EXPECT_FALSE(contient(texte, "\x1B"));
        EXPECT_TRUE(est_utf8(texte));
    }
    for (const std::string nom : {"", "Defaut", "Été, la finale", "a..b", "...", "Essai: 1?", "Ü"})
        EXPECT_EQ(raison_projet_impossible(nom), "") << nom;
}

TEST(NomProjet, tout_nom_accepte_reste_dans_le_dossier_et_se_relit_des_reglages) {
    const std::string nul(1, '\0');
    const std::string briques[] = {
        "a",  "É",  " ",    ".",        "..",   "/",  "\\",         "#",          ",", "\n",
        "\r", "\t", "\x1B", "\xC2\x85", "\xE9", "\"", "xxxxxxxxxx", " Table.ini", nul};
    std::mt19937 hasard(9); // NOLINT(cert-msc51-cpp,cert-msc32-c): the same names each time
    int acceptes = 0;
    for (int essai = 0; essai < 1200; ++essai) {
        std::string nom;
        for (auto n = hasard() % (essai % 100 == 0 ? 60 : 6); n > 0; --n)
            nom += briques[hasard() % std::size(briques)];
        if (!raison_projet_impossible(nom).empty())
            continue;
        ++acceptes;
        EXPECT_EQ(relu(nom), nom);
        EXPECT_FALSE(sort_du_dossier(chemin_de_projet("/x/Configuration", nom, " Robot1.ini")));
        EXPECT_FALSE(sort_du_dossier(chemin_de_projet("/x/Configuration", nom, "GENERE.BAS")));
    }
    EXPECT_GT(acceptes, 100);
}

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
        {" Essai Table", table, "", "Essai Table", false},
        {"Essai  Table", table, "", "Essai Table", false},
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
