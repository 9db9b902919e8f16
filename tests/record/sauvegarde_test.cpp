#include "banc_console.h"

#include "base/brouillon.h"
#include "outils/pannes.h"
#include "outils/trajet_essai.h"
#include "record/generation.h"
#include "sim/orientation.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace {

const std::string entete_generation =
    "# Fichier Defaut PourGenerer10.iniréalisé par " TAVOLMEX_CONTACT "\r\n"
    "# Projet Ardanel. Equipe Brindalo\r\n"
    "# Site : " TAVOLMEX_SITE "\r\n"
    "\r\n"
    "# Fichier de description du déplacement du robot: POUR GENERATION DU CODE PICBASIC.\r\n"
    "#\r\n";

struct BancSauvegarde : BancConsole {
    /// The lines after the header of a trajectory file, "/" between them.
    std::string lignes(const std::string& nom) const {
        std::string texte;
        const std::string contenu = d.lire(nom); // Lignes only looks at it
        Lignes lignes(contenu);
        int numero = 0;
        while (const auto ligne = lignes.suivante()) {
            if (++numero > 8)
                texte.append(texte.empty() ? "" : "/").append(*ligne);
        }
        return texte;
    }
    void ligne(int code, int p1 = 0, int p2 = 0) {
        const int n = e.nb_a_generer;
        e.TableauAGenerer(n, 0) = static_cast<std::uint8_t>(code);
        e.TableauAGenerer(n, 1) = static_cast<std::uint8_t>(p1);
        e.TableauAGenerer(n, 2) = static_cast<std::uint8_t>(p2);
        e.nb_a_generer = n + 1;
    }
};

TEST(SauvRobot, ecrit_les_deux_fichiers_d_un_trajet) {
    BancSauvegarde b;
    b.e.XInit(1) = 120;
    b.e.YInit(1) = 80.5F;
    b.e.CapInit(1) = 90;
    b.e.TrajNbActions(1) = 0;
    ajouter_action(b.e, 1, actions::AVANCE, 120);
    ajouter_action(b.e, 1, actions::FIN);
    ajouter_action(b.e, 1, actions::DROITE, -90);
    ajouter_action(b.e, 1, actions::VIRAVGA, 40, 1);
    ajouter_action(b.e, 1, actions::BD, 3, 4);
    ajouter_action(b.e, 1, actions::INIT, 1, 2);
    ajouter_action(b.e, 1, actions::BALISE_GAU);
    b.ligne(1, 120);
    b.ligne(4, 90);
    b.ligne(5, 40, 1);
    b.ligne(10);
    b.e.TableauAGenerer(5, 0) = 1; // beyond the end mark
    Set_Sauv_Robot(b.e, 1);
    b.f.reponses = {true};
    b.d.ecrire("Defaut Trajet1.ini", "celui d'avant");
    EXPECT_TRUE(SauvRobot(b.e, b.f, b.d.chemin()).complete());
    const auto garde = std::filesystem::directory_iterator(b.d / "Sauvegardes")->path();
    EXPECT_EQ(b.d.lire("Sauvegardes/" + garde.filename().string()), "celui d'avant");

    const std::string P = (b.d / "Defaut Trajet1.ini").string();
    const std::string question = "Vous avez modifié le trajet du robot 1\r\n"
                                 "Doit-on le sauvegarder ?\r\n( Fichier : " +
                                 P;
    EXPECT_EQ(b.f.appels, (std::vector<std::string>{
                              "Mess " + question, "question " + question,
                              "information " + (b.d / "Defaut PourGenerer10.ini").string()}));
    EXPECT_EQ(b.lignes("Defaut Trajet1.ini"),
              "Init,120,80.5,90/AVANCE    ,120/DROITE    ,-90/VIRAVGA   ,40,1/BD        /BALISE "
              "GAU/FIN");
    EXPECT_EQ(b.d.lire("Defaut PourGenerer10.ini"),
              entete_generation + "AVANCE:120\r\nGAUCHE:90\r\nAVANCE:33.6588393923159\r\n"
                                  "GAUCHE:90\r\nAVANCE:18.3879077652744\r\nBALDROITE\r\n");
}

TEST(TexteGeneration, chaque_code_a_ses_lignes) {
    struct Cas {
        int code, p1, p2;
        const char* attendu;
    };
    const Cas cas[] = {
        {2, 0, 9, "RECULE:0\r\n"},
        {3, 90, 0, "DROITE:90\r\n"},
        {6, 50, 90, "AVANCE:44.6998331800279\r\nDROITE:90\r\nAVANCE:72.4036808064585\r\n"},
        {7, 30, 0, "RECULE:0\r\nGAUCHE:90\r\nRECULE:0\r\n"},
        {8, 255, 4, "RECULE:-192.984636303522\r\nDROITE:90\r\nRECULE:421.679123320221\r\n"},
        {9, 255, 0, "DELAY :255\r\n"},
        {11, 5, 5, "BALGAUCHE\r\n"},
        {12, 7, 0, "CARREAUX:7\r\n"},
        {13, 7, 0, "'*** PB remplissage fichier\r\n"},
    };
    for (const Cas& c : cas) {
        BancSauvegarde b;
        b.ligne(c.code, c.p1, c.p2);
        EXPECT_EQ(texte_generation(b.e, "Defaut PourGenerer10.ini"), entete_generation + c.attendu);
    }
    BancSauvegarde pleine;
    for (int n = 0; n <= 1000; ++n)
        pleine.ligne(10);
    EXPECT_EQ(texte_generation(pleine.e, "Defaut PourGenerer10.ini").size(),
              entete_generation.size() + std::size_t{1001} * 11);
    EXPECT_THROW(Set_Sauv_Robot(pleine.e, 11), HorsTable);
}

TEST(SauvRobot, la_derniere_reponse_decide_de_la_generation) {
    struct Cas {
        std::vector<bool> reponses;
        bool trajet1, trajet2, generation;
    };
    for (const Cas& cas :
         {Cas{{true, false}, true, false, false}, Cas{{false, true}, false, true, true}}) {
        BancSauvegarde b;
        b.e.TrajetModifie(1) = b.e.TrajetModifie(2) = b.e.TrajetModifie(10) = true;
        b.f.reponses.assign(cas.reponses.begin(), cas.reponses.end());
        EXPECT_TRUE(SauvRobot(b.e, b.f, b.d.chemin()).complete());
        EXPECT_EQ(std::filesystem::exists(b.d / "Defaut Trajet1.ini"), cas.trajet1);
        EXPECT_EQ(std::filesystem::exists(b.d / "Defaut Trajet2.ini"), cas.trajet2);
        EXPECT_EQ(std::filesystem::exists(b.d / "Defaut PourGenerer10.ini"), cas.generation);
        EXPECT_FALSE(b.e.TrajetModifie(1) || b.e.TrajetModifie(2));
        EXPECT_TRUE(b.e.TrajetModifie(10)); // never offered
    }
    BancSauvegarde b;
    SauvRobot(b.e, b.f, b.d.chemin());
    EXPECT_TRUE(b.f.appels.empty());
    EXPECT_TRUE(std::filesystem::is_empty(b.d.chemin()));
    b.e.TrajetModifie(0) = true;
    b.f.reponses = {true};
    SauvRobot(b.e, b.f, b.d.chemin());
    EXPECT_EQ(b.lignes("Defaut Trajet0.ini"), "Init,0,0,0/FIN");
}

TEST(SauvRobot, une_table_tournee_est_ecrite_droite_et_rendue_tournee) {
    BancSauvegarde b;
    b.e.TableHorizontale = -1;
    horizontal(b.e);
    b.debuter(1, {"20", "50", "0"});
    b.jouer("Avance", "10");
    b.f.reponses = {true};
    SauvRobot(b.e, b.f, b.d.chemin());
    EXPECT_EQ(b.lignes("Defaut Trajet1.ini"), "Init,20,50,0/AVANCE    ,10/FIN");
    EXPECT_EQ(b.e.XMax, 320);
    EXPECT_EQ(b.e.XInit(1), 50);
    EXPECT_EQ(b.e.YInit(1), 180);
    EXPECT_EQ(b.e.CapInit(1), -90);

    // A pose that cannot be turned: everything stays as it was, and the caller learns it.
    b.e.TrajetModifie(1) = true;
    b.e.XRobot(2) = 40000;
    b.f.reponses = {false};
    EXPECT_EQ(SauvRobot(b.e, b.f, b.d.chemin()).echecs.size(), 1U);
    EXPECT_EQ(b.e.XMax, 320);
    EXPECT_EQ(b.e.YInit(1), 180);
}

// What stands in the way of one file does not keep the others from being written.
TEST(Sauver, un_echec_est_dit_et_l_enregistrement_est_garde) {
    BancSauvegarde b;
    std::filesystem::create_directory(b.d / "Defaut Trajet1.ini");
    b.debuter(2);
    b.jouer("Avance", "10");
    Set_Sauv_Robot(b.e, 1);
    b.f.reponses = {true, true};
    const BilanSauvegarde bilan = b.reprise.sauver(b.f);
    EXPECT_EQ(bilan.message(), "Le trajet enregistré n'a pas pu être sauvegardé en entier :\r\n" +
                                   (b.d / "Defaut Trajet1.ini").string() +
                                   " : c'est un dossier\r\n" + "L'enregistrement est gardé dans " +
                                   b.reprise.chemin().string() +
                                   " : il sera proposé au prochain démarrage.");
    EXPECT_EQ(b.lignes("Defaut Trajet2.ini"), "Init,60,40,90/AVANCE    ,10/FIN");
    EXPECT_TRUE(std::filesystem::exists(b.d / "Defaut PourGenerer10.ini"));
    EXPECT_TRUE(contient(b.d.lire("Defaut Reprise.ini"), "Robot,1\r\n"));

    // A later recording that is saved does not take the one that failed with it.
    b.c.Command9_Click({});
    b.debuter(2);
    b.f.reponses = {true};
    EXPECT_TRUE(b.reprise.sauver(b.f).complete());
    EXPECT_TRUE(contient(b.d.lire("Defaut Reprise.ini"), "Robot,1\r\n"));
}

TEST(Sauver, un_disque_plein_laisse_les_anciens_fichiers_entiers) {
    for (const rlim_t octets : {rlim_t{0}, rlim_t{40}, rlim_t{200}}) {
        BancSauvegarde b;
        b.d.ecrire("Defaut Trajet1.ini", "l'ancien");
        b.d.ecrire("Defaut PourGenerer10.ini", "l'ancien");
        b.debuter();
        b.jouer("Avance", "10");
        const std::string reprise = b.d.lire("Defaut Reprise.ini");
        b.f.reponses = {true};
        BilanSauvegarde bilan;
        {
            const DisquePlein plein(octets);
            bilan = b.reprise.sauver(b.f);
            b.jouer("Avance", "11");
            b.jouer("Avance", "12");
        }
        EXPECT_EQ(bilan.echecs.size(), 2U);
        // The recovery file of the last action holds it: nothing need be written for that.
        EXPECT_TRUE(bilan.en_surete());
        EXPECT_FALSE(contient(bilan.message(), "nulle part"));
        EXPECT_EQ(b.d.lire("Defaut Trajet1.ini"), "l'ancien");
        EXPECT_EQ(b.d.lire("Defaut PourGenerer10.ini"), "l'ancien");
        EXPECT_EQ(b.d.lire("Defaut Reprise.ini").substr(0, 60), reprise.substr(0, 60));
        // The recovery file's own failure is told once, and the recording goes on.
        EXPECT_EQ(b.f.messages.size(), 1U);
        EXPECT_EQ(b.e.TrajNbActions(1), 3);
    }
}

TEST(Sauver, un_dossier_impossible_est_dit) {
    BancSauvegarde b;
    const std::filesystem::path faux = b.d.ecrire("fichier", "") / "Configuration";
    Reprise reprise(b.e, faux);
    b.e.TrajetModifie(1) = true;
    b.f.reponses = {true};
    const BilanSauvegarde bilan = reprise.sauver(b.f);
    EXPECT_EQ(bilan.echecs.size(), 2U);
    EXPECT_TRUE(contient(bilan.message(), "n'est gardé nulle part ailleurs"));
    EXPECT_FALSE(bilan.en_surete());
    EXPECT_TRUE(b.e.TrajetModifie(1)) << "asked again";

    // Another directory takes both files, and everything is saved.
    const std::filesystem::path ailleurs = b.d / "ailleurs";
    EXPECT_EQ(reprise.sauver_ailleurs(bilan, ailleurs).size(), 2U);
    EXPECT_TRUE(b.e.TrajetModifie(1));
    std::filesystem::create_directory(ailleurs);
    EXPECT_TRUE(reprise.sauver_ailleurs(bilan, ailleurs).empty());
    EXPECT_TRUE(std::filesystem::exists(ailleurs / "Defaut Trajet1.ini"));
    EXPECT_TRUE(std::filesystem::exists(ailleurs / "Defaut PourGenerer10.ini"));
    EXPECT_FALSE(std::filesystem::exists(ailleurs / "Defaut Reprise.ini"));
    EXPECT_FALSE(b.e.TrajetModifie(1));
}

// A directory that has gone is made again.
TEST(Sauver, un_dossier_disparu_revient) {
    BancSauvegarde b;
    Reprise reprise(b.e, b.d / "Configuration");
    b.e.TrajetModifie(1) = true;
    b.f.reponses = {true};
    EXPECT_TRUE(reprise.sauver(b.f).complete());
    EXPECT_TRUE(std::filesystem::exists(b.d / "Configuration/Defaut PourGenerer10.ini"));
}

TEST(SauvRobot, la_question_dit_ce_qui_suit) {
    BancSauvegarde b;
    b.e.TrajetModifie(1) = b.e.TrajetModifie(3) = true;
    b.reprise.sauver(b.f);
    ASSERT_EQ(b.f.explications.size(), 2U);
    const std::string refus = "Non : ce trajet ne sera plus proposé. Il reste dans " +
                              (b.d / "Sauvegardes").string() +
                              " : « Reprendre un trajet » de la télécommande le rend.";
    EXPECT_EQ(b.f.explications[0], refus);
    EXPECT_EQ(b.f.explications[1],
              refus + "\r\nCette réponse décide aussi du fichier de génération.");
}

TEST(Sauver, tue_a_tout_instant_chaque_fichier_est_l_ancien_ou_le_nouveau) {
    const std::array<const char*, 2> noms = {"Defaut Trajet1.ini", "Defaut PourGenerer10.ini"};
    std::array<std::string, 2> nouveaux;
    // The first run goes to its end and shows what is new.
    bool finie = false;
    int pas = 0;
    for (; !finie || pas <= 1; ++pas) {
        BancSauvegarde b;
        for (const char* const nom : noms)
            b.d.ecrire(nom, "l'ancien");
        b.debuter();
        b.jouer("Avance", "10");
        b.f.reponses = {true};
        finie = tuer_au_pas(pas == 0 ? 100000 : pas, [&b] { b.reprise.sauver(b.f); });
        int ecrits = 0;
        for (std::size_t i = 0; i < noms.size(); ++i) {
            const std::string contenu = b.d.lire(noms[i]);
            if (pas == 0)
                nouveaux[i] = contenu;
            EXPECT_TRUE(contenu == "l'ancien" || contenu == nouveaux[i]) << contenu;
            ecrits += contenu == nouveaux[i] ? 1 : 0;
        }
        // Until both are there, the recording waits in the recovery file.
        const bool garde = std::filesystem::exists(b.d / "Defaut Reprise.ini");
        EXPECT_TRUE(ecrits == 2 || garde) << pas;
        EXPECT_TRUE(!finie || !garde);
        retirer_brouillons(b.d.chemin());
        for (const auto& entree : std::filesystem::directory_iterator(b.d.chemin()))
            EXPECT_FALSE(entree.path().filename().string().starts_with('.')) << entree.path();
    }
    EXPECT_TRUE(contient(nouveaux[0], "AVANCE    ,10"));
    EXPECT_GT(pas, 40);
}

} // namespace
