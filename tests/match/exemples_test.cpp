// The projects that ship with the program are what a team starts from: nothing to find in them.
#include "config/creation_projet.h"
#include "outils/commande.h"

namespace {

const std::filesystem::path exemples = RACINE_DU_PROJET "/exemples";

class Exemple : public testing::TestWithParam<const char*> {
protected:
    Exemple() {
        const std::filesystem::path configuration = d / "Configuration";
        std::filesystem::create_directory(configuration);
        creer_projet(configuration, "Finale", copie_de_projet(exemples, GetParam(), "Finale"));
        lancer({"installer", "--dossier", d.chemin()});
    }
    Resultat faire(std::vector<std::string> verbe) const {
        verbe.insert(verbe.end(), {"--dossier", d.chemin()});
        return lancer(std::move(verbe));
    }

    DossierTemporaire d;
};

TEST_P(Exemple, la_verification_n_y_trouve_rien) {
    const Resultat fichiers = faire({"verifier", "--projet", "Finale"});
    EXPECT_EQ(fichiers.code, 0) << fichiers.erreurs;
    for (const char* robots : {"1", "2", "9"}) {
        const Resultat match =
            faire({"verifier", "--match", "--projet", "Finale", "--robots", robots});
        EXPECT_EQ(match.code, 0) << robots << " robots\n" << match.sortie;
    }
}

TEST_P(Exemple, son_code_se_genere_avec_son_menu) {
    const std::string configuration = (d / "Configuration").string();
    const std::string entree = d.lire("Configuration/Finale PourGenerer10.ini");
    EXPECT_EQ(faire({"preparer", "--projet", "Finale", "--robot", "1", "--damier"}).code, 0);
    EXPECT_EQ(d.lire("Configuration/Finale PourGenerer10.ini"), entree) << "made by the console";
    const Resultat r = faire({"generer", "--depart", configuration + "/Finale.bas", "--entree",
                              configuration + "/Finale PourGenerer10.ini", "--cible",
                              (d / "code.bas").string(), "--menu", "--ecraser", "oui"});
    EXPECT_EQ(r.code, 0) << r.erreurs;
    EXPECT_FALSE(contient(r.erreurs, "n'existe pas dans le programme")) << r.erreurs;
    EXPECT_FALSE(contient(r.erreurs, "n'est pas déclarée")) << r.erreurs;
    const std::string code = d.lire("code.bas");
    for (const char* morceau : {"Const NUM_MENU_MAX = 4\r\n", "GOSUB TRAJECTOIRE\r\n",
                                "\tGosub position_balise", "\tGosub VERIFIER_NBRE_CARREAUX\r\n"})
        EXPECT_TRUE(contient(code, morceau)) << morceau;
}

INSTANTIATE_TEST_SUITE_P(Livres, Exemple, testing::Values("Phares", "Port", "Verger"));

} // namespace
