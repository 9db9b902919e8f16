#include "config/projets.h"

#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

using Noms = std::vector<std::string>;

TEST(Projets, seuls_les_fichiers_de_table_comptent_sans_regard_a_la_casse) {
    const DossierTemporaire d;
    for (const char* nom :
         {"Essai Table.ini", "Defaut Table.ini", "élan table.INI", "a b  TABLE.INI",
          "Deux Table.ini Table.ini", "Defaut Robot1.ini", "Table.ini", "EssaiTable.ini",
          "Essai Table.ini~", "Essai Table.ini.bak", "Essai  Table.txt"})
        d.ecrire(nom, "");
    std::filesystem::create_directory(d / "Dossier Table.ini");
    EXPECT_EQ(lister_projets(d.chemin()),
              (Noms{"a b", "Defaut", "Deux", "Dossier", "Essai", "élan"}));
}

TEST(Projets, le_nom_vide_est_un_projet) {
    const DossierTemporaire d;
    d.ecrire(" Table.ini", "");
    EXPECT_EQ(lister_projets(d.chemin()), Noms{""});
}

TEST(Projets, un_dossier_vide_ou_absent_n_a_pas_de_projet) {
    const DossierTemporaire d;
    EXPECT_EQ(lister_projets(d.chemin()), Noms{});
    EXPECT_EQ(lister_projets(d / "absent"), Noms{});
    EXPECT_EQ(lister_projets(d.ecrire("fichier", "")), Noms{});
}
