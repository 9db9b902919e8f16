#include "codegen/apercu.h"

#include "codegen/outils_generation.h"

#include <gtest/gtest.h>

namespace {

std::string dessiner(const Apercu& apercu) {
    std::string texte;
    for (const LigneApercu& l : apercu.lignes)
        texte += std::string(1, " .-+>"[static_cast<std::size_t>(l.sorte)]) +
                 std::to_string(l.avant) + "," + std::to_string(l.apres) + " " + l.texte + "\n";
    return texte;
}

bool contient(const std::vector<std::string>& liste, std::string_view debut) {
    return std::any_of(liste.begin(), liste.end(),
                       [&](const std::string& s) { return s.starts_with(debut); });
}

} // namespace

TEST(Apercu, montre_les_changements_avec_trois_lignes_autour) {
    Atelier atelier("1\n2\n3\n4\nTRAJECTOIRE:\nreturn\n7\n8\n9\n10\n11\n12\n13\n14\n", "#\n");
    const std::string texte = dessiner(preparer_apercu(atelier.demande, true));
    EXPECT_TRUE(texte.starts_with(".0,0 …\n 2,2 2\n 3,3 3\n 4,4 4\n-5,0 TRAJECTOIRE:\n-6,0 "
                                  "return\n 7,5 7\n 8,6 8\n 9,7 9\n.0,0 …\n 12,10 12\n 13,11 13\n"
                                  " 14,12 14\n>0,13 '***"))
        << texte;
    EXPECT_TRUE(texte.ends_with(">0,20 TRAJECTOIRE:\n>0,21 \tReturn\n"));
    EXPECT_FALSE(std::filesystem::exists(atelier.demande.cible));
}

TEST(Apercu, montre_les_insertions_du_menu_a_leur_place) {
    Atelier atelier("Const NUM_MENU_MAX = 1\naction_selectionnee: i_menu = 1\nCHGT_AFFICHAGE\n"
                    "affichage_menu: i_menu = 1\nfin",
                    "#\n");
    atelier.demande.menu = true;
    const std::string texte = dessiner(preparer_apercu(atelier.demande, true));
    EXPECT_TRUE(texte.starts_with(
        "-1,0 Const NUM_MENU_MAX = 1\n+0,1 Const NUM_MENU_MAX = 2\n 2,2 action_selectionnee: "
        "i_menu = 1\n 3,3 CHGT_AFFICHAGE\n+0,4 \t'Généré automatiquement par le simulateur\n"))
        << texte;
    EXPECT_TRUE(contient(texte, " 5,11 fin\n+0,12 \t'Généré"));
}

TEST(Apercu, avertit_de_ce_qui_ne_compilera_pas) {
    const char* const menu_fait = "Const NUM_MENU_MAX = 1\n'AFF_CHAR = \"TRAJECTOIRE\"\n"
                                  "AFF_CHAR = \"AUTRE\"\n\tAff_Char=\"Trajectoire\" ' ici\n";
    struct {
        const char* faute;
        const char* depart;
        const char* entree;
        bool menu;
        const char* avertissement;
    } const cas[] = {
        {"sub missing", "", "#\nAVANCE:1", false, "Le sous-programme Action_Avance n'existe pas"},
        {"variable missing", "", "#\nAVANCE:1", false, "La variable ou constante Val_Action"},
        {"tiles", "", "#\nCARREAUX:1", false, "La variable ou constante NBRE_CARREAUX"},
        {"menu's names", "", "#", true, "La variable ou constante AFFICHER_RESULTAT"},
        {"anchor", "Const NUM_MENU_MAX = 1\n", "#", true, "Menu : « action_selectionnee: »"},
        {"constant", "Const NUM_MENU_MAX = 1\n'Const NUM_MENU_MAX = 1\n", "#", true,
         "Menu : NUM_MENU_MAX est défini 2 fois"},
        {"double", "A:\na:\n", "#", false, "a: est en double (lignes 1 et 2 "},
        {"range", "", "#\nDELAY :256", false, "entree.ini, ligne 2 : la valeur 256 est hors"},
        {"error", "", "#\nDELAY :x", false, "La génération s'arrêtera avant la fin : "},
        {"exists", "TRAJECTOIRE:\nReturn\n", "#", false, "La fonction TRAJECTOIRE existe déjà"},
        {"no return", "TRAJECTOIRE:\n", "#", false, "L'ancienne fonction n'a pas de « return »"},
        {"eats a label", "TRAJECTOIRE:\nB: x\n", "#", false,
         "Le retrait emporte aussi l'étiquette B: (ligne 2)"},
        {"entry there already", menu_fait, "#", true,
         "Menu : « TRAJECTOIRE » y est déjà (ligne 4 du"},
        {"counter without entries", "Const NUM_MENU_MAX = 1\n", "#", true,
         "Menu : « action_selectionnee: » est introuvable, NUM_MENU_MAX augmente sans qu'aucune"},
        {"half an entry", "Const NUM_MENU_MAX = 1\naction_selectionnee: i_menu = 1\nCHGT_AFFICHAGE",
         "#", true,
         "Menu : « affichage_menu » est introuvable, NUM_MENU_MAX augmente, mais l'entrée de menu "
         "sera sans affichage"},
        {"nothing at all", "", "#", true,
         "Menu : « Const NUM_MENU_MAX » est introuvable, l'entrée de menu sera absente"},
        {"turn", "", "#\ndroite:90", false, "Les tours sur place sont croisés"},
        {"trajectory", "", "# Trajet\n#\n\nInit,1,2,3\nAvance,80\nVirAvDr,90,40\nFIN\n", false,
         "entree.ini : lignes qui deviennent des commentaires ('***) : 5, dont hors de l'en-tête : "
         "3 ; ce ne sont pas des mouvements (la première est la ligne 4)"},
    };
    for (const auto& c : cas) {
        Atelier atelier(c.depart, c.entree);
        atelier.demande.menu = c.menu;
        const Apercu apercu = preparer_apercu(atelier.demande, true);
        EXPECT_TRUE(contient(apercu.avertissements, c.avertissement)) << c.faute;
    }
}

// The lengths are those of R = 40, A = 1 and of A = 0.
TEST(Apercu, un_avertissement_par_virage_et_aucun_pour_ce_qui_est_tape) {
    const std::vector<std::string> virages = {
        "AVANCE:33.6588393923159\nGAUCHE:90\nAVANCE:18.3879077652744\n",
        "RECULE:33.6588393923159\nDROITE:90\nRECULE:18.3879077652744\n",
        "AVANCE:0\nDROITE:90\nAVANCE:0\n",
    };
    for (const std::string& virage : virages) {
        Atelier deux("", std::string("#\nAVANCE:5\n").append(virage).append(virage));
        const Apercu apercu = preparer_apercu(deux.demande, true);
        EXPECT_TRUE(contient(apercu.avertissements, "entree.ini, lignes 3 à 5 : le virage"))
            << virage;
        EXPECT_TRUE(contient(apercu.avertissements, "entree.ini, lignes 6 à 8 : le virage"))
            << virage;
        EXPECT_FALSE(contient(apercu.avertissements, "entree.ini, lignes 5 à")) << virage;
        EXPECT_FALSE(contient(apercu.avertissements, "Les tours sur place")) << "a quarter turn";
    }
    Atelier melange("", "#\nAVANCE:120\nGAUCHE:90\n" + virages.front());
    const auto phrases = preparer_apercu(melange.demande, true).avertissements;
    EXPECT_TRUE(contient(phrases, "entree.ini, lignes 4 à 6 : le virage")) << "not 120, 90, 34";
    EXPECT_FALSE(contient(phrases, "entree.ini, lignes 2 à 4"));
    EXPECT_TRUE(contient(phrases, "Les tours sur place"));
    for (const std::string tape :
         {"AVANCE:30\nGAUCHE:90\nAVANCE:30\n", "AVANCE:0\nGAUCHE:89\nAVANCE:0\n",
          "AVANCE:1.5\nGAUCHE:90\nRECULE:1.5\n", "AVANCE:1.5\nGAUCHE:90\nDELAY :1\nAVANCE:1.5\n"}) {
        Atelier atelier("", "#\n" + tape);
        const Apercu apercu = preparer_apercu(atelier.demande, true);
        EXPECT_FALSE(contient(apercu.avertissements, "entree.ini, lignes")) << tape;
        EXPECT_TRUE(contient(apercu.avertissements, "Les tours sur place")) << tape;
    }
}

TEST(Apercu, l_etiquette_qui_suit_la_fonction_retiree_reste) {
    Atelier atelier("TRAJECTOIRE:\nReturn\nSUIVANTE: x\n", "#\n");
    EXPECT_FALSE(
        contient(preparer_apercu(atelier.demande, true).avertissements, "Le retrait emporte"));
}

TEST(Apercu, un_nom_qui_n_en_est_pas_un_est_signale) {
    for (const char* nom : {"", "A:", "DEUX MOTS", " A", "été", "1A"}) {
        Atelier atelier("", "#\n");
        atelier.demande.fonction = nom;
        const auto phrases = preparer_apercu(atelier.demande, true).avertissements;
        ASSERT_EQ(phrases.size(), 1U) << nom;
        EXPECT_TRUE(contient(phrases.front(), "il faut une lettre"));
    }
}

TEST(Apercu, un_programme_complet_n_a_pas_d_avertissement) {
    const std::string programme =
        "Dim Val_Action, i_menu As Byte\nDemande_Affichage Var Byte\nSymbol AFFICHER_RESULTAT = 1\n"
        "DIM AFF_CHAR As String\nConst NUM_MENU_MAX = 1\nAction_avance: Return\nAFFICHER_LCD:\n"
        "Return\naction_selectionnee:\n' i_menu = 1\n' CHGT_AFFICHAGE\naffichage_menu:\n"
        "' i_menu = 1\nReturn\n";
    Atelier atelier(programme, "#\nAVANCE:255\nDELAY :0\n");
    atelier.demande.menu = true;
    EXPECT_EQ(preparer_apercu(atelier.demande, true).avertissements, std::vector<std::string>{});
    EXPECT_TRUE(contient(
        preparer_apercu(
            {atelier.demande.depart, atelier.demande.entree, "t.bas", "été 1", false, ""}, true)
            .avertissements,
        "« été 1 » n'est pas un nom"));
}

TEST(Apercu, la_fonction_gardee_laisse_un_doublon_et_les_listes_restent_courtes) {
    std::string entree = "#\n";
    for (int i = 0; i < 30'000; ++i)
        entree += "AVANCE:300\n";
    Atelier atelier("trajectoire:\nReturn\n", entree);
    const Apercu apercu = preparer_apercu(atelier.demande, false);
    EXPECT_TRUE(contient(apercu.avertissements, "TRAJECTOIRE: est en double (lignes 1 et 10 "));
    EXPECT_LT(apercu.avertissements.size(), 40U);
    EXPECT_EQ(apercu.lignes.back().texte, "… 40011 autres lignes");
}
