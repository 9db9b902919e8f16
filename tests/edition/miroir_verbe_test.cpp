#include "outils/commande.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const std::string trajet1 = "# à moi\nInit,60,40,90\nDroite,30\nFIN\n";

Resultat miroir(const DossierTemporaire& d, std::vector<std::string> options) {
    std::vector<std::string> arguments = {"miroir", "--dossier", d.chemin()};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return lancer(std::move(arguments));
}

std::size_t sauvegardes(const DossierTemporaire& d) {
    const fs::path dossier = d / "Configuration/Sauvegardes";
    return fs::exists(dossier) ? static_cast<std::size_t>(std::distance(
                                     fs::directory_iterator(dossier), fs::directory_iterator()))
                               : 0;
}

// The table's extent is the files' own, even when the settings show it turned.
TEST(MiroirVerbe, le_fichier_est_remplace_et_sa_version_gardee) {
    const DossierTemporaire d;
    d.ecrire("Configuration/Tavolmex.ini", "Horizontale, 1\n");
    d.ecrire("Configuration/Defaut Trajet1.ini", trajet1);
    EXPECT_EQ(miroir(d, {"--robot", "1", "--axe", "horizontal"}).code, 0);
    EXPECT_EQ(d.lire("Configuration/Defaut Trajet1.ini"),
              "# à moi\nInit,60,280,-90\nGauche,30\nFIN\n");
    EXPECT_EQ(sauvegardes(d), 1U);
    EXPECT_EQ(miroir(d, {"--robot", "1", "--axe", "horizontal"}).code, 0);
    EXPECT_EQ(d.lire("Configuration/Defaut Trajet1.ini"), trajet1);
    // Into another robot's file and back.
    EXPECT_EQ(miroir(d, {"--robot", "1", "--axe", "demi-tour", "--vers", "2"}).code, 0);
    EXPECT_EQ(d.lire("Configuration/Defaut Trajet1.ini"), trajet1);
    EXPECT_EQ(d.lire("Configuration/Defaut Trajet2.ini"),
              "# à moi\nInit,140,280,270\nDroite,30\nFIN\n");
    EXPECT_EQ(sauvegardes(d), 3U);
    EXPECT_EQ(miroir(d, {"--robot", "2", "--axe", "demi-tour", "--vers", "1"}).code, 0);
    EXPECT_EQ(d.lire("Configuration/Defaut Trajet1.ini"), trajet1);
}

TEST(MiroirVerbe, un_refus_nomme_fichier_et_ligne_et_n_ecrit_rien) {
    const std::tuple<const char*, std::string, const char*> cas[] = {
        {"Defaut Trajet1.ini", "Init,60,40,90\n\nTourne,30\n",
         "Defaut Trajet1.ini Ligne 3 : enregistrement inconnu : TOURNE"},
        {"Defaut Trajet1.ini", "Droite,30\n", "Defaut Trajet1.ini il n'y a pas de ligne « Init »"},
        {"Defaut Table.ini", "L,0,0,10\n", "Defaut Table.ini Ligne 1"},
        {"Tavolmex.ini", "Vitesse,3\n", "Tavolmex.ini Ligne 1"},
    };
    for (const auto& [nom, contenu, message] : cas) {
        const DossierTemporaire d;
        const std::string chemin = std::string("Configuration/") + nom;
        d.ecrire("Configuration/Defaut Trajet1.ini", trajet1);
        d.ecrire(chemin, contenu);
        const std::string avant = d.lire("Configuration/Defaut Trajet1.ini");
        const Resultat r = miroir(d, {"--robot", "1", "--axe", "vertical"});
        EXPECT_EQ(r.code, 1);
        EXPECT_TRUE(contient(r.erreurs, message));
        EXPECT_EQ(d.lire("Configuration/Defaut Trajet1.ini"), avant);
        EXPECT_EQ(sauvegardes(d), 0U);
    }
    const DossierTemporaire d;
    EXPECT_EQ(miroir(d, {"--robot", "1"}).code, 2);
    EXPECT_EQ(miroir(d, {"--robot", "10", "--axe", "vertical"}).code, 2);
    EXPECT_EQ(miroir(d, {"--robot", "1", "--axe", "oblique"}).code, 2);
}

} // namespace
