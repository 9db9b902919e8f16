#include "base/fichiers.h"

#include "banc_projet.h"

namespace fs = std::filesystem;

namespace {

class Installation : public BancProjet {
protected:
    std::string lire(const std::string& nom) const { return d.lire("Configuration/" + nom); }
};

std::string remplacer(std::string texte, std::string_view motif, std::string_view valeur) {
    for (std::size_t i = texte.find(motif); i != std::string::npos; i = texte.find(motif, i))
        texte.replace(i, motif.size(), valeur);
    return texte;
}

std::string attendu(const std::string& nom) {
    const std::string modele = lire_octets(fs::path(DONNEES) / "defaut" / nom);
    return remplacer(remplacer(modele, "@CONTACT@", TAVOLMEX_CONTACT), "@SITE@", TAVOLMEX_SITE);
}

} // namespace

TEST_F(Installation, ecrit_les_vingt_fichiers_par_defaut_et_les_relit_sans_message) {
    projet.Installe();
    EXPECT_EQ(fichiers(), 20);
    for (const char* nom : {"Tavolmex.ini", "Defaut Table.ini", "Defaut Robot4.ini",
                            "Defaut Trajet1.ini", "Defaut Trajet9.ini"})
        EXPECT_EQ(lire(nom), attendu(nom)) << nom;
    for (const std::string n : {"1", "9"})
        EXPECT_EQ(lire("Defaut Robot" + n + ".ini"),
                  remplacer(attendu("Defaut Robot4.ini"), "Robot4", "Robot" + n));

    projet.LoadGeneral();
    projet.LoadTable();
    projet.Init_Robot();
    projet.Init_Jeu();
    EXPECT_TRUE(f.messages.empty());
    EXPECT_EQ(f.LNom, "\r\n\r\n\r\nFichier de configuration par défaut");
    EXPECT_EQ(e.NbZones, 13);
    EXPECT_EQ(e.XMax, 200);
    EXPECT_EQ(e.YMax, 320);
    EXPECT_EQ(e.NbPoints(9), 12);
    EXPECT_EQ(e.TrajNbActions(9), 33);
    EXPECT_EQ(e.YRobot(9), 270);
}

TEST_F(Installation, ne_recree_que_ce_qui_manque) {
    projet.Installe();
    fs::remove(d / "Configuration/Defaut Trajet3.ini");
    ecrire("Defaut Robot2.ini", "");
    fs::rename(d / "Configuration/Defaut Table.ini", d / "Configuration/DEFAUT TABLE.INI");
    fs::remove(d / "Configuration/Defaut Robot5.ini");
    fs::create_symlink("nulle part", d / "Configuration/Defaut Robot5.ini");
    e.XMax = 5;
    e.TrajNbActions(1) = 5;
    projet.Installe();
    EXPECT_EQ(fichiers(), 20);
    EXPECT_EQ(lire("Defaut Robot2.ini"), "");
    EXPECT_NE(lire("Defaut Trajet3.ini"), "");
    EXPECT_EQ(e.XMax, 5) << "the table was there";
    EXPECT_EQ(e.TrajNbActions(1), 1) << "a trajectory was missing";
}

TEST_F(Installation, seul_le_nom_est_juge_pas_le_dossier_devant_lui) {
    fs::create_directory(d / "a");
    Projet par_un_detour(e, f, d / "a" / "..");
    par_un_detour.Installe();
    EXPECT_EQ(fichiers(), 20);
}

TEST_F(Installation, dossier_relatif_au_dossier_courant_fichiers_sous_l_application) {
    fs::create_directory(d / "courant");
    fs::current_path(d / "courant");
    projet.Installe();
    EXPECT_TRUE(fs::is_directory(d / "courant/Configuration"));
    EXPECT_FALSE(fs::exists(d / "Configuration"));
    fs::create_directory(d / "Configuration");
    projet.Installe();
    EXPECT_EQ(fichiers(), 20);
}
