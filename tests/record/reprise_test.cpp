#include "banc_console.h"

#include "sim/orientation.h"

#include <gtest/gtest.h>

namespace {

TEST(Reprise, ce_qui_est_enregistre_revient_au_demarrage_suivant) {
    BancConsole avant;
    avant.e.utiliDamier = true;
    avant.debuter(2, {"61", "42", "-30"});
    avant.jouer("Avance", "10");
    avant.jouer("Balise Droite");
    avant.jouer("VirArGa", "255", "90");

    // The next start shows the table turned: the pose follows.
    BancConsole apres;
    apres.e.TableHorizontale = -1;
    horizontal(apres.e);
    apres.d.ecrire("Defaut Reprise.ini", avant.d.lire("Defaut Reprise.ini"));
    apres.f.reponses = {true};
    EXPECT_TRUE(apres.reprise.proposer(apres.f));
    EXPECT_TRUE(contient(apres.f.appels.front(), "projet Defaut, robot 2 (3 actions)"));
    EXPECT_EQ(apres.trajet(2), "AVANCE    ,10,0;BALISE DRO,0,0;VIRARGA   ,90,255;");
    EXPECT_EQ(apres.table(), avant.table());
    EXPECT_EQ(apres.e.nb_a_generer, avant.e.nb_a_generer);
    EXPECT_TRUE(apres.e.TrajetModifie(2));
    EXPECT_FALSE(apres.e.TrajetModifie(1));
    EXPECT_EQ(apres.e.XRobot(2), 42);
    EXPECT_EQ(apres.e.YInit(2), 200 - 61);
    EXPECT_EQ(apres.e.CapInit(2), -120);
    EXPECT_EQ(apres.trajet(1), "FIN       ,0,0;");

    // It is kept until it is saved.
    EXPECT_TRUE(std::filesystem::exists(apres.reprise.chemin()));
    apres.f.reponses = {true};
    EXPECT_TRUE(apres.reprise.sauver(apres.f).complete());
    EXPECT_FALSE(std::filesystem::exists(apres.reprise.chemin()));
}

TEST(Reprise, un_refus_le_met_dans_les_sauvegardes) {
    BancConsole b;
    b.debuter();
    EXPECT_FALSE(std::filesystem::exists(b.reprise.chemin()));
    b.jouer("Avance", "10");
    BancConsole suivant;
    suivant.d.ecrire("Defaut Reprise.ini", b.d.lire("Defaut Reprise.ini"));
    EXPECT_FALSE(suivant.reprise.proposer(suivant.f));
    EXPECT_EQ(suivant.trajet(1), "FIN       ,0,0;");
    EXPECT_FALSE(std::filesystem::exists(suivant.reprise.chemin()));
    EXPECT_FALSE(suivant.reprise.proposer(suivant.f)); // and is not asked about again
    EXPECT_EQ(suivant.f.appels.size(), 1U);
    ASSERT_EQ(suivant.reprise.gardes().size(), 1U);

    // Refused at the saving, of two robots the one: the other is in its file.
    b.e.TrajetModifie(2) = true;
    b.f.reponses = {false, true};
    EXPECT_TRUE(b.reprise.sauver(b.f).complete());
    EXPECT_FALSE(std::filesystem::exists(b.reprise.chemin()));
    ASSERT_EQ(b.reprise.gardes().size(), 1U);
    const Enregistrement garde = b.reprise.gardes()[0].contenu;
    ASSERT_EQ(garde.robots.size(), 1U);
    EXPECT_EQ(garde.robots[0].numero, 1);

    // It comes back in place of what is recorded meanwhile, which is kept in turn.
    b.c.Command9_Click({});
    b.debuter();
    b.jouer("Recule", "5");
    b.c.Command9_Click({});
    b.reprise.reprendre(b.f, garde);
    EXPECT_EQ(b.trajet(1), "AVANCE    ,10,0;");
    EXPECT_EQ(b.table(), "1,10,0;");
    EXPECT_TRUE(b.e.TrajetModifie(1));
    EXPECT_EQ(b.reprise.gardes().size(), 2U);
    EXPECT_TRUE(contient(b.d.lire("Defaut Reprise.ini"), "Action,AVANCE    ,10,0"));
}

// The loading failed, not the recording.
TEST(Reprise, un_projet_qui_ne_se_charge_pas_laisse_l_enregistrement_en_place) {
    BancConsole b;
    b.e.NomProjet = "Finale";
    b.debuter();
    b.jouer("Avance", "10");
    const std::string contenu = b.d.lire("Finale Reprise.ini");
    BancConsole suivant;
    suivant.d.ecrire("Finale Reprise.ini", contenu);
    suivant.f.reponses = {true};
    EXPECT_FALSE(suivant.reprise.proposer(suivant.f, [&](const std::string& projet) {
        suivant.e.NomProjet = projet;
        throw Debordement(40000);
    }));
    EXPECT_EQ(suivant.d.lire("Finale Reprise.ini"), contenu);
    EXPECT_TRUE(contient(suivant.f.messages.at(0), "proposé au prochain démarrage"));
    // What is recorded then does not take its place without a copy.
    suivant.debuter();
    suivant.jouer("Recule", "3");
    ASSERT_EQ(suivant.reprise.gardes().size(), 1U);
    EXPECT_EQ(texte_enregistrement(suivant.reprise.gardes()[0].contenu), contenu);
}

TEST(Reprise, ce_qui_est_abandonne_est_garde_et_plus_propose) {
    BancConsole b;
    b.debuter();
    b.jouer("Avance", "10");
    b.reprise.abandonner(b.f);
    EXPECT_FALSE(b.e.TrajetModifie(1));
    EXPECT_FALSE(std::filesystem::exists(b.reprise.chemin()));
    EXPECT_EQ(b.reprise.gardes().size(), 1U);
    EXPECT_EQ(b.reprise.dernier_robot(), 0);
    BancConsole sans_place;
    sans_place.d.ecrire("Sauvegardes", "un fichier à la place du dossier");
    sans_place.debuter();
    sans_place.jouer("Avance", "10");
    sans_place.reprise.abandonner(sans_place.f);
    EXPECT_EQ(sans_place.f.messages.size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(sans_place.reprise.chemin()));
    // What would be lost stays.
    sans_place.jouer("Recule", "5");
    EXPECT_FALSE(sans_place.reprise.reprendre(sans_place.f, {}));
    EXPECT_TRUE(sans_place.e.TrajetModifie(1));
}

TEST(Reprise, un_fichier_abime_est_dit_et_mis_de_cote) {
    struct Cas {
        const char *contenu, *raison;
    };
    const Cas cas[] = {
        {"", "Ligne 0 : il n'est pas complet"},
        {"Robot,1\n", "Ligne 1 : ce n'est pas un fichier de reprise"},
        {"Reprise,2\n", "Ligne 1 : « 2 » n'est pas un nombre de 1 à 1"},
        {"Reprise,1\nRobot,1\nRobot,1\n", "Ligne 3 : le robot 1 y est deux fois"},
        {"Reprise,1\nRobot,11\n", "Ligne 2 : « 11 » n'est pas un nombre de 0 à 10"},
        {"Reprise,1\nInit,1,2,3\n", "Ligne 2 : il manque le robot"},
        {"Reprise,1\nRobot,1\nInit,1,x,3\n", "Ligne 3 : « x » n'est pas un nombre"},
        {"Reprise,1\nRobot,1\nAction,AVANCE,1,2\n",
         "Ligne 3 : « AVANCE » n'est pas un nom d'action"},
        {"Reprise,1\nRobot,1\nAction,AVANCE    ,1\n", "Ligne 3 : il faut 3 valeurs"},
        {"Reprise,1\nGenerer,0,1,2\n", "Ligne 2 : « 0 » n'est pas un nombre de 1 à 255"},
        {"Reprise,1\nGenerer,1,256,2\n", "Ligne 2 : « 256 » n'est pas un nombre de 0 à 255"},
        {"Reprise,1\nGenerer,1,2,3,4,5,6\n", "Ligne 2 : trop de valeurs"},
        {"Reprise,1\nSauter,1\n", "Ligne 2 : « Sauter » est inconnu"},
        {"Reprise,1\nRobot,1\nFin,1,0\n", "Ligne 3 : il n'est pas complet"},
        {"Reprise,1\nRobot,1\nInit,1,2,3\n", "Ligne 3 : il n'est pas complet"},
    };
    for (const Cas& c : cas) {
        BancConsole b;
        b.d.ecrire("Defaut Reprise.ini", c.contenu);
        EXPECT_FALSE(b.reprise.proposer(b.f));
        ASSERT_EQ(b.f.messages.size(), 1U);
        EXPECT_TRUE(contient(b.f.messages[0], c.raison));
        EXPECT_FALSE(std::filesystem::exists(b.reprise.chemin()));
        EXPECT_EQ(b.d.lire("Defaut Reprise.ini.illisible"), c.contenu);
        EXPECT_EQ(b.table(), "");
    }
    BancConsole b;
    std::filesystem::create_directory(b.reprise.chemin());
    EXPECT_FALSE(b.reprise.proposer(b.f));
    EXPECT_TRUE(contient(b.f.messages.at(0), "c'est un dossier"));
}

TEST(Reprise, les_tables_pleines_reviennent_et_pas_une_ligne_de_plus) {
    std::string texte = "Reprise,1\nRobot,3\nInit,1.5,-2,0\n";
    for (int n = 0; n < 1000; ++n)
        texte += "Action,PAUSE     ," + std::to_string(n) + ",0\n";
    std::string lignes;
    for (int n = 0; n < 1001; ++n)
        lignes += "Generer,9,1,0\n";
    const auto e = std::make_unique<Etat>();
    int ligne = 0;
    restaurer_enregistrement(*e, lire_enregistrement(texte + lignes + "Fin,1000,1001\n", ligne));
    EXPECT_EQ(e->TrajParam1(3, 1000), 999);
    EXPECT_EQ(e->nb_a_generer, 1001);
    EXPECT_EQ(e->XInit(3), 1.5F);
    EXPECT_THROW(lire_enregistrement(texte + lignes + "Generer,9,1,0\n", ligne), ErreurLecture);
    EXPECT_EQ(ligne, 2005);
    EXPECT_THROW(lire_enregistrement(texte + "Action,PAUSE     ,1,0\n", ligne), ErreurLecture);
    // What is written is what is read.
    Robots robots;
    robots.set(3);
    const Enregistrement pris = prendre_enregistrement(*e, robots);
    const std::string ecrit = texte_enregistrement(pris);
    EXPECT_EQ(texte_enregistrement(lire_enregistrement(ecrit, ligne)), ecrit);
}

} // namespace
