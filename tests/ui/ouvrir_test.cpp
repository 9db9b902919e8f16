#include "ui/banc.h"
#include "ui/principale/ouvrir.h"

#include <algorithm>

namespace {

class Charger : public Banc {
protected:
    Charger() { dossier.ecrire("Configuration/Essai Table.ini", "M,Essai\r\nL,0,0,90,50\r\n"); }

    /// Presses "Charger"; `agir` finds the list open.
    void charger(const std::function<void(Ouvrir&)>& agir) {
        bool ouverte = false;
        dialogues["Ouvrir"] = [&](QDialog& dialogue) {
            ouverte = true;
            agir(dynamic_cast<Ouvrir&>(dialogue));
        };
        cliquer("Command2");
        EXPECT_TRUE(ouverte);
    }
    static void choisir(Ouvrir& ouvrir, const QString& projet, const char* bouton = "Command1") {
        if (!projet.isNull())
            ouvrir.findChild<QComboBox*>("Combo1")->setCurrentText(projet);
        QTest::mouseClick(ouvrir.findChild<QPushButton*>(bouton), Qt::LeftButton);
    }
    std::string general() const { return dossier.lire("Configuration/Tavolmex.ini"); }
};

TEST_F(Charger, la_liste_dit_ce_qui_sera_lu_et_choisit_le_projet_courant) {
    demarrer();
    for (const auto& [projet, choisi] : {std::pair{"Essai", 1}, {"Defaut", 0}, {"Absent", 0}}) {
        const char* courant = projet;
        e().NomProjet = courant;
        charger([&, attendu = choisi](Ouvrir& o) {
            EXPECT_EQ(o.windowTitle(), "Ouvrir ...");
            auto& liste = *o.findChild<QComboBox*>("Combo1");
            ASSERT_EQ(liste.count(), 2);
            EXPECT_EQ(liste.itemText(0), "Defaut");
            EXPECT_EQ(liste.itemText(1), "Essai");
            EXPECT_EQ(liste.currentIndex(), attendu) << courant;
            EXPECT_EQ(o.findChild<QLabel*>("Label2")->text(), "( Avec n  de 1 à 9 )");
            EXPECT_EQ(o.findChild<QLabel*>("Label3")->text().toStdString(),
                      " Répertoire : \n" + (dossier / "Configuration").string());
            QTest::keyClick(&o, Qt::Key_Escape);
        });
        EXPECT_EQ(e().NomProjet, courant);
    }
}

TEST_F(Charger, le_projet_choisi_est_cree_lu_dessine_et_retenu) {
    demarrer();
    cliquer("Command1");
    const QSize avant = sim->size();
    charger([](Ouvrir& o) { choisir(o, "Essai"); });
    EXPECT_EQ(e().NomProjet, "Essai");
    EXPECT_TRUE(std::filesystem::exists(dossier / "Configuration/Essai Trajet9.ini"));
    EXPECT_FALSE(seance().en_marche());
    EXPECT_EQ(e().XMax, 90);
    EXPECT_NE(sim->size(), avant);
    EXPECT_EQ(trouver<QLabel>("LNom").text(), "\nEssai");
    EXPECT_TRUE(options().modifie);
    EXPECT_TRUE(messages.empty()) << messages[0];
    // The settings had not been modified when the choice was made: they are written on leaving.
    EXPECT_FALSE(contient(general(), "Essai"));
    cliquer("Command4");
    EXPECT_TRUE(contient(general(), "Défaut , Essai\r\n"));
}

TEST_F(Charger, annuler_ne_relit_rien_meme_apres_un_chargement) {
    demarrer();
    charger([](Ouvrir& o) { choisir(o, "Essai"); });
    dossier.ecrire("Configuration/Essai Table.ini", "L,0,0,70,70\r\n");
    for (const auto& [projet, bouton] : {std::pair{"Defaut", "Command2"}, {"Essai", "Command2"}}) {
        charger([&, p = projet, b = bouton](Ouvrir& o) { choisir(o, p, b); });
        EXPECT_EQ(e().NomProjet, "Essai");
        EXPECT_EQ(e().XMax, 90);
    }
    charger([](Ouvrir& o) { choisir(o, "Essai"); });
    EXPECT_EQ(e().XMax, 70);
}

TEST_F(Charger, la_table_reste_tournee_et_les_robots_reviennent) {
    demarrer();
    cocher("Check3", true);
    trouver<QScrollBar>("VScroll1").setValue(2);
    charger([](Ouvrir& o) { choisir(o, "Essai"); });
    EXPECT_EQ(e().XMax, 50);
    EXPECT_EQ(e().YMax, 90);
    EXPECT_EQ(e().NbRobot, 2);
    trouver<QScrollBar>("VScroll1").setValue(7);
    EXPECT_EQ(e().NbRobot, 7);
}

TEST_F(Charger, une_liste_vide_donne_le_projet_sans_nom) {
    demarrer();
    std::filesystem::remove(dossier / "Configuration/Essai Table.ini");
    std::filesystem::remove(dossier / "Configuration/Defaut Table.ini");
    charger([](Ouvrir& o) {
        EXPECT_EQ(o.findChild<QComboBox*>("Combo1")->count(), 0);
        choisir(o, {});
    });
    EXPECT_EQ(e().NomProjet, "");
    EXPECT_TRUE(std::filesystem::exists(dossier / "Configuration/ Table.ini"));
}

TEST_F(Charger, un_nom_qui_ne_se_relirait_pas_est_refuse_et_la_liste_reste) {
    dossier.ecrire("Configuration/Essai #2 Table.ini", "L,0,0,90,50\r\n");
    demarrer();
    charger([this](Ouvrir& o) {
        choisir(o, "Essai #2");
        EXPECT_EQ(messages,
                  std::vector<std::string>{"message: Ce projet ne peut pas être chargé."});
        EXPECT_TRUE(o.isVisible());
        QTest::keyClick(&o, Qt::Key_Escape);
    });
    EXPECT_TRUE(explications.at(0).starts_with("« Essai #2 » ne peut pas")) << explications[0];
    EXPECT_EQ(e().NomProjet, "Defaut");
    EXPECT_FALSE(std::filesystem::exists(dossier / "Configuration/Essai #2 Robot1.ini"));
}

TEST_F(Charger, le_trajet_enregistre_est_propose_avant_la_liste) {
    demarrer();
    e().TrajetModifie(1) = true;
    reponses = {false};
    charger([this](Ouvrir& o) {
        EXPECT_EQ(messages.size(), 1U);
        choisir(o, "Essai");
    });
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].find("question: Vous avez modifié le trajet du robot 1"), 0U);
}

// A whole session on the options window: only what it changed is in the file afterwards.
TEST_F(Charger, une_session_entiere) {
    dossier.ecrire("Configuration/Tavolmex.ini", "Rapide,0\r\n");
    demarrer();
    cliquer("Command4");
    EXPECT_EQ(general(), "Rapide,0\r\n"); // nothing was changed

    demarrer();
    cocher("Check2", true);
    cocher("utiliDamier", true);
    trouver<QScrollBar>("VScroll1").setValue(3);
    charger([](Ouvrir& o) { choisir(o, "Essai"); });
    EXPECT_TRUE(contient(general(), "Défaut , Essai\r\n")); // already modified
    cliquer("Command1");
    EXPECT_TRUE(seance().en_marche());
    cliquer("Command1");
    e().TrajetModifie(2) = true;
    reponses = {true};
    cliquer("Command4");
    EXPECT_EQ(fins, (std::vector{0, 0}));
    const std::string attendu = "Défaut , Essai\r\nRapide,0\r\nAllege,1\r\nNbRobot,3\r\n"
                                "Horizontale,0\r\n";
    EXPECT_TRUE(contient(general(), attendu));
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_TRUE(contient(messages[1], "Essai PourGenerer10.ini"));
}

} // namespace
