// The verbs "generer" and "etiquettes", as their words reach them from a shell.
#include "codegen/outils_generation.h"
#include "outils/commande.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> generer(const Atelier& a, const std::vector<std::string>& de_plus) {
    std::vector<std::string> mots = {"generer",        "--dossier",      a.dossier.chemin(),
                                     "--depart",       a.demande.depart, "--entree",
                                     a.demande.entree, "--cible",        a.demande.cible};
    mots.insert(mots.end(), de_plus.begin(), de_plus.end());
    return mots;
}

} // namespace

TEST(VerbeGenerer, ecrit_la_cible_sous_le_nom_demande_et_annonce_les_copies) {
    const Atelier atelier("Tour:\nReturn\nfin\n", "#\nBALGAUCHE\n");
    const Resultat s = lancer(generer(atelier, {"--fonction", "TOUR", "--ecraser", "oui"}));
    EXPECT_EQ(s.code, 0) << s.erreurs;
    EXPECT_EQ(atelier.dossier.lire("depart.bas"), "fin\n");
    EXPECT_TRUE(atelier.dossier.lire("cible.bas")
                    .ends_with("TOUR:\n\tGosub position_balise_g\n\tReturn\n"));
    ASSERT_EQ(atelier.copies("depart.bas.").size(), 1U);
    EXPECT_TRUE(contient(s.sortie, atelier.copies("depart.bas.").front()));
}

TEST(VerbeGenerer, refuse_avec_le_message_et_le_code_1) {
    Atelier atelier("TRAJECTOIRE:\n", "#\nAVANCE:x\n");
    EXPECT_EQ(lancer(generer(atelier, {"--ecraser", "oui"})).code, 1);
    EXPECT_TRUE(atelier.dossier.lire("cible.bas").ends_with("TRAJECTOIRE:\n"));
    atelier.demande.cible += ".old";
    const Resultat s = lancer(generer(atelier, {}));
    EXPECT_EQ(s.code, 1);
    EXPECT_TRUE(s.erreurs.starts_with("Nom de fichier incorrect" +
                                      atelier.dossier.chemin().string() + "\n"))
        << s.erreurs;
    EXPECT_EQ(lancer(generer(atelier, {"--ecraser", "bof"})).code, 2);
}

TEST(VerbeGenerer, les_avertissements_sont_dits_sans_rien_empecher) {
    Atelier atelier("A:\n", "# Fichier Finale Trajet1.ini\nInit,1,2,3\nDroite, 90\nFIN\n");
    const Resultat s = lancer(generer(atelier, {"--fonction", "DEUX MOTS", "--menu"}));
    EXPECT_EQ(s.code, 0) << s.erreurs;
    for (const char* phrase :
         {"entree.ini n'est pas un fichier de génération", "('***) : 2, dont hors de l'en-tête : 2",
          "« DEUX MOTS » n'est pas un nom", "Menu : « Const NUM_MENU_MAX » est introuvable",
          "Les tours sur place sont croisés", "Le sous-programme Action_Droite n'existe pas"}) {
        const std::size_t place = s.erreurs.find(phrase);
        ASSERT_NE(place, std::string::npos) << phrase << "\n" << s.erreurs;
        EXPECT_NE(s.erreurs.rfind("Avertissement : ", place), std::string::npos);
    }
    EXPECT_TRUE(atelier.dossier.lire("cible.bas").ends_with("\t'*** FIN\n\tReturn\n"));
}

TEST(VerbeGenerer, l_apercu_n_ecrit_rien) {
    const Atelier atelier("TRAJECTOIRE:\nReturn\n", "#\nDELAY :300\n");
    const Resultat s = lancer(generer(atelier, {"--apercu", "--ecraser", "oui"}));
    EXPECT_EQ(s.code, 0);
    EXPECT_TRUE(s.sortie.starts_with("-TRAJECTOIRE:\n-Return\n+'***")) << s.sortie;
    EXPECT_TRUE(contient(s.erreurs, "Avertissement : entree.ini, ligne 2"));
    EXPECT_FALSE(std::filesystem::exists(atelier.demande.cible));
}

TEST(VerbeEtiquettes, liste_les_etiquettes_ou_affiche_un_corps) {
    const Atelier atelier("debut:\r\n\tEnd\r\nTour:\r\n\tReturn\r\nfin\r\n", "");
    const std::string fichier = atelier.demande.depart.string();
    EXPECT_EQ(lancer({"etiquettes", fichier}).sortie, "DEBUT:\nTOUR:\n");
    EXPECT_EQ(lancer({"etiquettes", fichier, "tour"}).sortie, "Tour:\n\tReturn\n");
    const Resultat absente = lancer({"etiquettes", fichier, "absente"});
    EXPECT_EQ(absente.code, 1);
    EXPECT_NE(absente.erreurs, "");
    EXPECT_TRUE(lancer({"etiquettes", fichier + "x"})
                    .erreurs.starts_with("Erreur lors de la lecture du fichier " + fichier + "x"));
}
