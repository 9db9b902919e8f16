#include "outils/commande.h"
#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

long compter(const std::string& texte, char c) {
    return std::count(texte.begin(), texte.end(), c);
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
    EXPECT_TRUE(contient(r.erreurs, "Table.ini Ligne 2\nRaison : enregistrement inconnu : Q\n"));
    EXPECT_TRUE(
        contient(r.erreurs, "Trajet2.ini Ligne 43\nRaison : enregistrement inconnu : SAUTE"));
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
    EXPECT_TRUE(contient(trace, "\n50,2,100,60,0,10,14,"));
    EXPECT_EQ(compter(ici.lire("e.txt"), '\n'), 50);
    EXPECT_TRUE(contient(d.lire("Configuration/Tavolmex.ini"), "NbRobot, 1"))
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
    EXPECT_FALSE(contient(depart, "polyline"));
    EXPECT_TRUE(contient(depart, "viewBox=\"-5 -325 210 330\""));
    EXPECT_EQ(lancer({"dessiner", "--dossier", d.chemin(), "--horizontale", "--temps", "5800",
                      "--trace", "--sortie", image})
                  .code,
              0);
    const std::string svg = d.lire("m.svg");
    EXPECT_TRUE(contient(svg, "viewBox=\"-5 -205 330 210\""));
    EXPECT_TRUE(contient(svg, "<title>robot 1, 58 s</title>"));
    EXPECT_FALSE(contient(svg, "<title>robot 1, 59 s</title>"));
}

TEST(Commandes, exporter_ecrit_la_feuille_l_image_et_la_trace_de_simuler) {
    const DossierTemporaire d;
    lancer({"installer", "--dossier", d.chemin()});
    const Resultat r = lancer({"exporter", "--dossier", d.chemin(), "--robots", "2", "--allege",
                               "--feuille", d / "f.svg", "--image", d / "i.svg", "--largeur", "630",
                               "--temps", "3000", "--trace", d / "t.csv"});
    EXPECT_EQ(r.code, 0) << r.erreurs;
    lancer(
        {"simuler", "--dossier", d.chemin(), "--robots", "2", "--allege", "--trace", d / "s.csv"});
    EXPECT_EQ(d.lire("t.csv"), d.lire("s.csv"));
    EXPECT_NE(d.lire("f.svg").find("width=\"210mm\" height=\"297mm\""), std::string::npos);
    EXPECT_NE(d.lire("f.svg").find(">Feuille de match – Defaut<"), std::string::npos);
    EXPECT_NE(d.lire("i.svg").find("width=\"630\" height=\"990\""), std::string::npos);
    EXPECT_NE(d.lire("i.svg").find("<title>Defaut, 30,00 s</title>"), std::string::npos);

    const std::pair<std::vector<std::string>, const char*> refus[] = {
        {{}, "rien à exporter : --image, --feuille ou --trace"},
        {{"--image", "a.svg", "--feuille", "a.svg"}, "deux fois le même fichier"},
        {{"--image", "a.gif"}, "a.gif » n'a pas une extension connue (.svg)"},
    };
    for (const auto& [options, phrase] : refus) {
        std::vector<std::string> ligne{"exporter", "--dossier", d.chemin()};
        ligne.insert(ligne.end(), options.begin(), options.end());
        const Resultat refusee = lancer(ligne);
        EXPECT_EQ(refusee.code, 2);
        EXPECT_NE(refusee.erreurs.find(phrase), std::string::npos) << refusee.erreurs;
    }
}

} // namespace
