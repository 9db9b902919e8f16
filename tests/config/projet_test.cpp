#include "base/fichiers.h"

#include "banc_projet.h"

#include <sys/stat.h>

#include <algorithm>

namespace fs = std::filesystem;

namespace {

class LireProjet : public BancProjet {
protected:
    LireProjet() { projet.Installe(); }
};

} // namespace

TEST_F(LireProjet, un_autre_projet_est_installe_un_seul_nom_apres_l_autre) {
    ecrire("Tavolmex.ini", "Défaut, Essai\nRapide, 1\nFaute, 1\nAllege, 1");
    projet.LoadGeneral();
    EXPECT_EQ(f.messages, std::vector{message("Tavolmex.ini", 3)});
    EXPECT_TRUE(contient(f.explications[0], "FAUTE"));
    EXPECT_EQ(e.NomProjet, "Essai");
    EXPECT_EQ(e.Options(1), 1);
    EXPECT_EQ(e.Options(2), 0);
    EXPECT_EQ(fichiers(), 39) << "installed in spite of the fault";

    fs::remove(d / "Configuration/Essai Table.ini");
    projet.LoadGeneral();
    EXPECT_EQ(fichiers(), 38) << "the name did not change";
    ecrire("Tavolmex.ini", "#\r\n\r\n");
    projet.LoadGeneral();
    EXPECT_EQ(e.NomProjet, "Defaut");
}

TEST_F(LireProjet, un_nom_refuse_donne_le_message_sa_ligne_et_sa_raison) {
    e.NomProjet = "Essai";
    ecrire("Tavolmex.ini", "Rapide, 0\nDéfaut , ../../.bashrc\nAllege, 1");
    projet.LoadGeneral();
    EXPECT_EQ(f.messages, std::vector{message("Tavolmex.ini", 2)});
    EXPECT_EQ(f.explications[0],
              "Raison : « ../../.bashrc » ne peut pas être celui d'un projet : il "
              "contient un séparateur de dossiers, / ou \\");
    EXPECT_EQ(e.NomProjet, "Defaut");
    EXPECT_EQ(e.Options(1), 0);
    EXPECT_EQ(e.Options(2), 0);
    EXPECT_THROW(projet.imposer_projet("A#B"), ErreurExecution);
}

TEST_F(LireProjet, le_projet_impose_remplace_celui_du_fichier) {
    ecrire("Tavolmex.ini", "Défaut, Essai\nNbRobot, 4");
    projet.imposer_projet("Autre");
    projet.LoadGeneral();
    EXPECT_EQ(e.NomProjet, "Autre");
    EXPECT_EQ(e.Options(3), 4);
    EXPECT_TRUE(fs::exists(d / "Configuration/Autre Trajet9.ini"));
    EXPECT_FALSE(fs::exists(d / "Configuration/Essai Table.ini"));
}

TEST_F(LireProjet, table_refusee_nom_puis_message_puis_table_de_secours) {
    ecrire("Defaut Table.ini", "M,Nom\r\nL,0,0,900,900\r\nL,0,0,1\r\nM,Autre\r\n");
    const auto version = e.version_table;
    projet.LoadTable();
    EXPECT_EQ(f.messages, std::vector{message("Defaut Table.ini", 3)});
    EXPECT_EQ(f.LNom, "\r\nNom");
    EXPECT_EQ(e.NbZones, 0);
    EXPECT_EQ(e.XMax, 200);
    EXPECT_EQ(e.YMax, 320);
    EXPECT_NE(e.version_table, version);
}

TEST_F(LireProjet, robot_refuse_les_suivants_prennent_le_robot_de_secours) {
    fs::remove(d / "Configuration/Defaut Robot5.ini");
    ecrire("Defaut Robot7.ini", "faux 1");
    projet.LoadRobot();
    EXPECT_EQ(f.messages, std::vector{message("Defaut Robot5.ini", 0)}) << "6 to 9 are not read";
    EXPECT_EQ(e.NbPoints(4), 12);
    EXPECT_EQ(e.VitesseRot(4), 0.9F);
    for (const int n : {5, 9}) {
        EXPECT_EQ(e.NbPoints(n), 8) << n;
        EXPECT_EQ(e.VitesseRot(n), 1) << n;
    }
}

TEST_F(LireProjet, trajet_refuse_la_ligne_compte_depuis_le_premier_fichier) {
    std::string quarante = "Init,1,2,3\n";
    for (int i = 1; i < 40; ++i)
        quarante += "FIN\n";
    ecrire("Defaut Trajet1.ini", quarante);
    ecrire("Defaut Trajet2.ini", "Init,4,5,6\nAvance,5\nBD\n");
    projet.Init_Jeu();
    EXPECT_EQ(f.messages, std::vector{message("Defaut Trajet2.ini", 43)});
    EXPECT_TRUE(contient(f.explications.at(0), "Tous les robots restent immobiles"));
    for (const int n : {1, 2, 9}) {
        EXPECT_EQ(e.TrajNbActions(n), 1) << n;
        EXPECT_EQ(e.TrajAction(n, 1), Nom10("FIN")) << n;
    }
    EXPECT_EQ(e.XRobot(1), 1) << "the poses read stay";
    EXPECT_EQ(e.CapRobot(2), 6);
    fs::remove(d / "Configuration/Defaut Trajet2.ini");
    projet.LoadTrajet();
    EXPECT_EQ(f.messages.back(), message("Defaut Trajet2.ini", 40));
}

TEST_F(LireProjet, init_robot_vide_les_trajets) {
    projet.Init_Jeu();
    EXPECT_EQ(e.TrajNbActions(3), 33);
    projet.Init_Robot();
    EXPECT_EQ(e.TrajNbActions(3), 1);
    EXPECT_EQ(e.TrajAction(3, 1), Nom10("FIN"));
}

TEST_F(LireProjet, ce_qui_n_est_pas_un_fichier_lisible_donne_le_message) {
    const fs::path table = d / "Configuration/Defaut Table.ini";
    const std::pair<const char*, void (*)(const fs::path&)> cas[] = {
        {"directory", [](const fs::path& p) { fs::create_directory(p); }},
        {"FIFO", [](const fs::path& p) { ASSERT_EQ(::mkfifo(p.c_str(), 0600), 0); }},
        {"device", [](const fs::path& p) { fs::create_symlink("/dev/zero", p); }},
        {"1 GB", [](const fs::path& p) {
             std::ofstream{p};
             fs::resize_file(p, std::uintmax_t{1} << 30);
         }}};
    for (const auto& [nom, creer] : cas) {
        fs::remove(table);
        creer(table);
        f.messages.clear();
        projet.LoadTable();
        EXPECT_EQ(f.messages, std::vector{message("Defaut Table.ini", 0)}) << nom;
    }
    fs::remove(table);
    ecrire("Defaut Table.ini", "L" + std::string(3000000, 'x'));
    projet.LoadTable();
    EXPECT_EQ(f.messages.back(), message("Defaut Table.ini", 1)) << "no line end";
}

TEST_F(LireProjet, fichier_trouve_sous_une_autre_casse_et_en_windows_1252) {
    fs::remove(d / "Configuration/Tavolmex.ini");
    ecrire("TAVOLMEX.INI", "D\xE9"
                           "faut, \xC9t\xE9\r\nVitesse, 1");
    ecrire("ÉTÉ table.ini", "M,D\xE9j\xE0 vu\rL,0,0,50,60");
    projet.LoadGeneral();
    projet.LoadTable();
    EXPECT_EQ(f.messages, std::vector{message("TAVOLMEX.INI", 2)});
    EXPECT_EQ(f.LNom, "\r\nDéjà vu");
    EXPECT_EQ(e.XMax, 50);
    EXPECT_FALSE(fs::exists(d / "Configuration/Été Table.ini"));
}

TEST_F(LireProjet, verifier_dit_tout_et_n_ecrit_rien) {
    ecrire("Tavolmex.ini", "Défaut, Essai\nFaute, 1");
    ecrire("Essai Robot1.ini", "V,1");
    projet.verifier();
    const std::vector attendus{message("Tavolmex.ini", 2), message("Essai Table.ini", 0),
                               message("Essai Robot1.ini", 1), message("Essai Trajet1.ini", 0)};
    EXPECT_EQ(f.messages, attendus);
    EXPECT_EQ(fichiers(), 21);
}

TEST_F(LireProjet, les_reglages_ecrits_se_relisent) {
    projet.SaveGeneral("Été", {false, true, "7", true});
    const std::string ecrit = d.lire("Configuration/Tavolmex.ini");
    const std::string fin = "#\r\n\r\nDéfaut , Été\r\nRapide,0\r\nAllege,1\r\nNbRobot,7\r\n"
                            "Horizontale,1\r\n\r\n";
    const std::string defaut = lire_octets(fs::path(DONNEES) / "defaut/Tavolmex.ini");
    EXPECT_TRUE(ecrit.ends_with(fin)) << ecrit;
    EXPECT_EQ(std::count(ecrit.begin(), ecrit.end(), '\n'),
              std::count(defaut.begin(), defaut.end(), '\n'));
    projet.LoadGeneral();
    EXPECT_TRUE(f.messages.empty());
    EXPECT_EQ(e.NomProjet, "Été");
    EXPECT_EQ(e.Options(1), 0);
    EXPECT_EQ(e.Options(3), 7);

    fs::remove_all(d / "Configuration");
    ecrire("Tavolmex.ini/x", ""); // a directory in its place: nothing is reported
    projet.SaveGeneral("Autre", {});
    EXPECT_TRUE(fs::is_directory(d / "Configuration/Tavolmex.ini"));
    EXPECT_TRUE(f.messages.empty());
}
