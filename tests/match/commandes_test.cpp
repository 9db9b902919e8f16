#include "outils/commande.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

long compter(const std::string& texte, char c) {
    return std::count(texte.begin(), texte.end(), c);
}

TEST(Commandes, une_ligne_mal_comprise_est_dite_en_francais_avec_le_code_2) {
    const DossierTemporaire d;
    const std::pair<std::vector<std::string>, const char*> cas[] = {
        {{}, "il manque la commande"},
        {{"danser"}, "commande inconnue : danser"},
        {{"simuler", "--vite"}, "argument inconnu : --vite"},
        {{"simuler", "--robots", "10"}, "--robots : « 10 » n'est pas un nombre de 1 à 9"},
        {{"simuler", "--duree", "abc"}, "« abc » n'est pas un nombre"},
        {{"dessiner"}, "il manque --sortie"},
    };
    for (const auto& [arguments, message] : cas) {
        const Resultat r = lancer(arguments);
        EXPECT_EQ(r.code, 2) << message;
        EXPECT_NE(r.erreurs.find(message), std::string::npos) << r.erreurs;
        EXPECT_EQ(r.sortie, "");
    }
    EXPECT_EQ(lancer({"--version"}).code, 0);
    EXPECT_NE(lancer({"simuler", "--help"}).sortie.find("Utilisation"), std::string::npos);
}

TEST(Commandes, installer_cree_ce_qui_manque_et_rien_d_autre) {
    const DossierTemporaire d;
    EXPECT_EQ(lancer({"installer", "--dossier", d.chemin(), "--projet", "Essai"}).code, 0);
    const std::string mien = "# le mien\r\n";
    d.ecrire("Configuration/Essai Trajet3.ini", mien);
    std::filesystem::remove(d / "Configuration/Essai Robot9.ini");
    EXPECT_EQ(lancer({"installer", "--dossier", d.chemin(), "--projet", "Essai"}).code, 0);
    EXPECT_EQ(d.lire("Configuration/Essai Trajet3.ini"), mien);
    EXPECT_TRUE(std::filesystem::exists(d / "Configuration/Essai Robot9.ini"));
    EXPECT_NE(d.lire("Configuration/Tavolmex.ini").find("Défaut , Defaut"), std::string::npos);
}

TEST(Commandes, installer_dit_ce_qu_il_n_a_pas_pu_ecrire) {
    const DossierTemporaire d;
    d.ecrire("Configuration", "un fichier à la place du dossier");
    const Resultat r = lancer({"installer", "--dossier", d.chemin()});
    EXPECT_EQ(r.code, 1);
    EXPECT_NE(r.erreurs.find("Defaut Robot4.ini n'a pas pu être écrit"), std::string::npos);
}

TEST(Commandes, verifier_dit_tout_et_ne_change_rien) {
    const DossierTemporaire d;
    const Resultat vide = lancer({"verifier", "--dossier", d.chemin()});
    EXPECT_EQ(vide.code, 1);
    EXPECT_TRUE(std::filesystem::is_empty(d.chemin()));

    lancer({"installer", "--dossier", d.chemin()});
    EXPECT_EQ(lancer({"verifier", "--dossier", d.chemin()}).code, 0);
    d.ecrire("Configuration/Defaut Table.ini", "L,0,0,5,5\r\nQ,1\r\n");
    d.ecrire("Configuration/Defaut Trajet2.ini", "SAUTE,3\r\n");
    const Resultat r = lancer({"verifier", "--dossier", d.chemin()});
    EXPECT_EQ(r.code, 1);
    const std::string debut =
        "Erreur lors de la lecture du fichier " + (d / "Configuration/Defaut ").string();
    EXPECT_EQ(r.erreurs,
              debut + "Table.ini Ligne 2\nRaison : enregistrement inconnu : Q\n" + debut +
                  "Trajet2.ini Ligne 43\nRaison : enregistrement inconnu : SAUTE     \nTous les "
                  "robots restent immobiles, ceux des autres fichiers aussi, tant que ce fichier "
                  "n'est pas corrigé.\n");
}

TEST(Commandes, simuler_laisse_la_trace_et_les_etats_la_ou_l_utilisateur_se_tient) {
    const DossierTemporaire d;
    const DossierTemporaire ici;
    std::filesystem::current_path(ici.chemin());
    EXPECT_EQ(lancer({"simuler", "--dossier", d.chemin(), "--robots", "2", "--duree", "50",
                      "--trace", "t.csv", "--etat", "e.txt"})
                  .code,
              0);
    const std::string trace = ici.lire("t.csv");
    EXPECT_EQ(compter(trace, '\n'), 1 + 2 * 50);
    EXPECT_NE(trace.find("\n50,2,100,60,0,10,14,"), std::string::npos);
    EXPECT_EQ(compter(ici.lire("e.txt"), '\n'), 50);
    EXPECT_NE(d.lire("Configuration/Tavolmex.ini").find("NbRobot, 1"), std::string::npos)
        << "the settings file is not changed";
}

TEST(Commandes, simuler_rend_3_apres_une_erreur_majeure_sans_sa_derniere_ligne) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    // The circle's centre under the outer wheel: Entraxe / 2 + rayon is 0.
    d.ecrire("Configuration/Defaut Trajet1.ini", "Init,100,30,0\nPause,1\nVirAvGa,90,-5\nFIN\n");
    const Resultat r = lancer({"simuler", "--dossier", d.chemin(), "--trace", d / "t.csv"});
    EXPECT_EQ(r.code, 3);
    EXPECT_EQ(r.erreurs, "Erreur majeure d'exécution : Vérifier le fichier de configuration "
                         "Trajet.ini.\n");
    EXPECT_EQ(compter(d.lire("t.csv"), '\n'), 1 + 4);
    // The drawing's faults end an unseen match too: 1e9 cm away from the reference point.
    d.ecrire("Configuration/Defaut Robot1.ini", "V,100,90\nA,1e9,0,10\nR,0,0,1,1\n");
    const Resultat dessin = lancer({"simuler", "--dossier", d.chemin()});
    EXPECT_EQ(dessin.code, 3);
    EXPECT_EQ(dessin.erreurs, "Erreur majeure d'exécution : Vérifier les fichiers de "
                              "configuration Robot.ini\n");
}

TEST(Commandes, dessiner_montre_la_table_les_robots_et_leur_chemin) {
    const DossierTemporaire d;
    const std::string image = d / "m.svg";
    EXPECT_EQ(lancer({"dessiner", "--dossier", d.chemin(), "--sortie", image}).code, 0);
    const std::string depart = d.lire("m.svg");
    EXPECT_EQ(depart.find("polyline"), std::string::npos);
    EXPECT_NE(depart.find("viewBox=\"-5 -325 210 330\""), std::string::npos);
    EXPECT_EQ(lancer({"dessiner", "--dossier", d.chemin(), "--horizontale", "--temps", "5800",
                      "--trace", "--sortie", image})
                  .code,
              0);
    const std::string svg = d.lire("m.svg");
    EXPECT_NE(svg.find("viewBox=\"-5 -205 330 210\""), std::string::npos);
    EXPECT_NE(svg.find("<title>robot 1, 58 s</title>"), std::string::npos);
    EXPECT_EQ(svg.find("<title>robot 1, 59 s</title>"), std::string::npos);
}

} // namespace
