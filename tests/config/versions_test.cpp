#include "config/versions.h"

#include "base/fichiers.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

TEST(Versions, le_nom_d_un_fichier_dit_ce_qu_il_est_pour_le_projet) {
    struct {
        const char *nom, *sorte;
    } const cas[] = {
        {"Essai Table.ini", "Table"},
        {"ESSAI robot9.INI", "Robot 9"},
        {"Essai Trajet1.ini", "Trajet du robot 1"},
        {"Essai PourGenerer10.ini", "Fichier de génération"},
        {"Essai Reprise.ini", "Enregistrement non sauvegardé"},
        {"EssaiGENERE.BAS", "Programme PICBASIC"},
        {"robot.bas", "Programme PICBASIC"},
        {"Essai bis Trajet1.ini", ""}, // another project's
        {"Finale Trajet1.ini", ""},
        {"Essai Trajet.ini", ""},
        {"Essai Trajet1a.ini", ""},
        {"Essai .ini", ""},
        {"robot.pbp", "Programme PICBASIC"},
        {"Tavolmex.ini", ""},
    };
    for (const auto& [nom, sorte] : cas)
        EXPECT_EQ(sorte_de_fichier(nom, "Essai"), sorte) << nom;
}

TEST(Versions, celles_du_projet_sont_listees_la_plus_recente_d_abord) {
    const DossierTemporaire d;
    EXPECT_TRUE(lister_versions(d.chemin(), "Essai", {}).empty()) << "nothing kept yet";
    const auto garder = [&](const char* nom, const char* octets) {
        return sauvegarder_version(d.ecrire(nom, octets), d / "Sauvegardes");
    };
    const auto premiere = garder("Essai Trajet1.ini", "un");
    const auto seconde = garder("Essai Trajet1.ini", "deux");
    for (int i = 3; i <= 10; ++i)
        garder("Essai Trajet1.ini", "trois");
    garder("Finale Trajet1.ini", "x");
    garder("ailleurs/robot.bas", "x");
    d.ecrire("Sauvegardes/Essai Table.ini.ancien", "mine");
    d.ecrire("Sauvegardes/Essai Table.ini.1999-03-01_14h05m09.0123abcd.1", "old");

    const auto versions = lister_versions(d.chemin(), "Essai", {d / "autre"});
    ASSERT_EQ(versions.size(), 12U);
    EXPECT_EQ(versions.back().fichier, "Essai Table.ini");
    EXPECT_EQ(versions.back().date, "1999-03-01 14:05:09");
    EXPECT_TRUE(versions.back().original.empty()) << "of another folder";
    const auto place = [&](const std::filesystem::path& copie) {
        return std::find_if(versions.begin(), versions.end(),
                            [&](const Version& v) { return v.copie == copie; }) -
               versions.begin();
    };
    EXPECT_EQ(place(premiere), place(seconde) + 1) << "by number within a second, ten before nine";
    const Version& v = versions.at(std::size_t(place(seconde)));
    EXPECT_EQ(v.sorte, "Trajet du robot 1");
    EXPECT_EQ(v.taille, 4U);
    EXPECT_EQ(v.original, d / "Essai Trajet1.ini");

    const auto connus = lister_versions(d.chemin(), "Essai", {d / "ailleurs"});
    const auto bas = std::find_if(connus.begin(), connus.end(),
                                  [](const Version& w) { return w.fichier == "robot.bas"; });
    ASSERT_NE(bas, connus.end());
    EXPECT_EQ(bas->original, d / "ailleurs/robot.bas");
}
