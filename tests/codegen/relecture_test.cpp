#include "base/erreurs.h"
#include "codegen/outils_generation.h"
#include "codegen/relecture.h"
#include "outils/commande.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// "8 AVANCE 120" for a move, "9 ?" for a line that was not understood.
std::vector<std::string> lu(const CodeRelu& code) {
    std::vector<std::string> textes;
    for (const MouvementRelu& m : code.mouvements)
        textes.push_back(std::to_string(m.ligne) + " " + m.texte());
    for (const CodeRelu::Incomprise& i : code.incomprises)
        textes.push_back(std::to_string(i.ligne) + " ?");
    return textes;
}

} // namespace

TEST(Relecture, un_programme_ecrit_a_la_main_autour_de_la_fonction) {
    const Programme programme("' Trajectoire: en commentaire\n"
                              "TRAJECTOIRE2:\n"
                              "\tGosub Action_Recule\n"
                              "\tReturn\n"
                              "  trajectoire: val_action = 12 : GOSUB Action_Avance ' 12 cm\n"
                              "\n"
                              "\tgosub action_gauche ; la valeur est restee\n"
                              "suite:\n"
                              "\tNBRE_CARREAUX =7\n"
                              "\tVal_Action=-3\n"
                              "\tGosub VERIFIER_NBRE_CARREAUX\n"
                              "\tGosub Action_Droite\n"
                              "\tDelay 50\n"
                              "\tGosub position_balise\n"
                              "\tGosub position_balise_g\n"
                              "\tReturn\n"
                              "\tGosub Action_Avance\n");
    EXPECT_EQ(
        lu(relire_fonction(programme, "Trajectoire")),
        (std::vector<std::string>{"5 AVANCE 12", "7 GAUCHE 12", "11 CARREAUX 7", "12 DROITE -3",
                                  "13 DELAY 50", "14 BALDROITE", "15 BALGAUCHE"}));
    EXPECT_THROW(relire_fonction(programme, "absente"), ErreurExecution);
}

TEST(Relecture, rien_n_est_devine_et_chaque_ligne_incomprise_est_nommee) {
    const Programme programme("T:\n"
                              "\tGosub Action_Avance\n"                  // no value yet
                              "\tVal_Action=5\n"                         //
                              "\tVal_Action=Val_Action*2\n"              // a sum
                              "\tGosub Action_Avance\n"                  // whose value is lost
                              "\tVal_Action=$1F\n"                       // another notation
                              "\tDelay Temps\n"                          //
                              "\tDelay50\n"                              //
                              "\tIf x = 1 Then Return\n"                 //
                              "\tPrint \"a:return\" : Gosub clignoter\n" //
                              "\tVal_Action=99999\n"                     //
                              "\tVal_Action=8\n"
                              "\tGosub Action_Recule\n");
    EXPECT_EQ(lu(relire_fonction(programme, "t")),
              (std::vector<std::string>{"13 RECULE 8", "2 ?", "4 ?", "5 ?", "6 ?", "7 ?", "8 ?",
                                        "9 ?", "10 ?", "10 ?", "11 ?", "13 ?"}));

    // A header says nothing; a bad value ends the input as it ends a generation.
    EXPECT_EQ(lu(relire_entree("AVANCE:1\n# x\n\nRECULE:2.5\nToupie\nDELAY :\nAVANCE:4\n", "f")),
              (std::vector<std::string>{"4 RECULE 2", "5 ?", "6 ?"}));
}

// Straight runs, turns and pauses come back from the program as they were driven.
TEST(Relecture, le_code_d_un_trajet_au_hasard_finit_ou_finit_l_ecran) {
    std::mt19937 hasard(11);
    const auto entier = [&hasard](int bas, int haut) {
        return std::uniform_int_distribution(bas, haut)(hasard);
    };
    constexpr const char* mouvements[] = {"Avance ", "Recule ", "Droite ", "Gauche ", "Pause "};
    for (int essai = 0; essai < 5; ++essai) {
        std::string commandes;
        for (int n = entier(1, 12); n > 0; --n)
            commandes += mouvements[entier(0, 4)] + std::to_string(entier(0, 255)) + "\n";
        const Atelier a("PRINCIPAL:\r\n\tGosub TRAJECTOIRE\r\n\tEnd\r\n", "");
        const std::string dossier = a.dossier.chemin();
        const auto entree = a.dossier / "Configuration/Defaut PourGenerer10.ini";
        ASSERT_EQ(lancer_avec_entree(a.dossier,
                                     {"piloter", "--dossier", dossier, "--robot", "2", "--damier",
                                      "--sauver", "oui"},
                                     commandes)
                      .code,
                  0);
        ASSERT_EQ(lancer({"generer", "--depart", a.demande.depart, "--entree", entree, "--cible",
                          a.demande.cible})
                      .code,
                  0);
        for (const std::string& code : {entree.string(), a.demande.cible}) {
            const Resultat r =
                lancer({"rejouer", "--dossier", dossier, "--code", code, "--robot", "2"});
            EXPECT_EQ(r.code, 0) << r.erreurs;
            EXPECT_NE(r.sortie.find("à 0,0 cm et 0,0°"), std::string::npos)
                << commandes << r.sortie;
            EXPECT_NE(r.sortie.find("Aucune action ne diffère"), std::string::npos) << r.sortie;
        }
    }
}
