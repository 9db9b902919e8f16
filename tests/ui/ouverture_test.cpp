// What comes from outside: a project on the command line, a file that is dropped, errors to be
// copied, keys.
#include "ui/banc.h"
#include "ui/editeurs/dessin_table.h"
#include "ui/principale/projets_recents.h"

#include <QClipboard>
#include <QDropEvent>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>

namespace {

namespace fs = std::filesystem;

class Ouverture : public Banc {
protected:
    Ouverture() { dossier.ecrire("Configuration/Essai Table.ini", "M,Essai\r\nL,0,0,90,50\r\n"); }

    void deposer(QWidget& fenetre, const fs::path& fichier) {
        QMimeData donnees;
        donnees.setUrls({QUrl::fromLocalFile(texte_qt(fichier.string()))});
        QDragEnterEvent entree({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&fenetre, &entree);
        EXPECT_TRUE(entree.isAccepted());
        QDropEvent depot({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&fenetre, &depot);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }
    /// Draws in the table editor, on the file of another project.
    dessinTable& dessiner() {
        cliquer("dessinAire");
        auto& table = trouver<dessinTable>("dessinTable");
        table.ouvrir(dossier / "Configuration/Essai Table.ini");
        trouver<QPlainTextEdit>("legende").setPlainText("Mon dessin");
        return table;
    }
    void creer_un_projet() {
        cliquer("dessinAire");
        trouver<QLineEdit>("nomNouveauProjet").setText("Finale");
        cliquer("creerProjet");
    }
    QAction& action(const char* nom) { return *sim->findChild<QAction*>(nom); }
};

TEST_F(Ouverture, un_fichier_depose_se_charge_ou_part_pour_le_generateur) {
    demarrer();
    deposer(*sim, dossier / "Configuration/Essai Table.ini");
    EXPECT_EQ(e().NomProjet, "Essai");
    deposer(options(), dossier / "Configuration/Defaut Trajet3.ini");
    EXPECT_EQ(e().NomProjet, "Defaut");
    deposer(*sim, dossier.ecrire("Programmes/robot.BAS", "End\r\n"));
    EXPECT_TRUE(trouver("Dialog").isVisible());
    EXPECT_EQ(trouver<QListWidget>("File1").currentItem()->text(), "robot.BAS");
    EXPECT_TRUE(messages.empty());
    deposer(*sim, dossier.ecrire("ailleurs/Essai Table.ini", "L,0,0,9,9\r\n"));
    deposer(*sim, dossier.ecrire("notes.txt", ""));
    EXPECT_EQ(messages.size(), 2U);
    EXPECT_EQ(e().NomProjet, "Defaut");
}

// The recorded path cannot be written, and the user stays: whatever led there loads nothing.
TEST_F(Ouverture, rester_reste_quel_que_soit_le_chemin) {
    const std::pair<const char*, std::function<void()>> chemins[] = {
        {"liste", [this] { cliquer("Command2"); }},
        {"récents", [this] { options().charger("Essai"); }},
        {"dépôt", [this] { deposer(*sim, dossier / "Configuration/Essai Table.ini"); }},
        {"ligne de commande",
         [this] { sim->ouvrir_fichier(dossier / "Configuration/Essai Table.ini"); }},
        {"dessin enregistré", [this] { dessiner().enregistrer(); }},
        {"création", [this] { creer_un_projet(); }}};
    dialogues["Ouvrir"] = [](QDialog&) { ADD_FAILURE() << "the list"; };
    for (const auto& [nom, charger] : chemins) {
        SCOPED_TRACE(nom);
        demarrer();
        e().TrajetModifie(1) = true;
        e().TrajNbActions(1) = 77;
        bool perdu = false;
        avant_de_repondre = [&](QDialog& boite) {
            const QString texte = dynamic_cast<QMessageBox&>(boite).text();
            reponses = {!texte.contains("autre dossier")};
            if (!perdu && texte.startsWith("Vous avez modifié")) {
                perdu = true;
                perdre_le_dossier();
            }
        };
        charger();
        ASSERT_TRUE(perdu) << messages.back();
        EXPECT_TRUE(contient(messages.back(), "dans un autre dossier ?")) << messages.back();
        EXPECT_EQ(e().NomProjet, "Defaut");
        EXPECT_TRUE(e().TrajetModifie(1));
        EXPECT_EQ(e().TrajNbActions(1), 77);
        retrouver_le_dossier();
        sim.reset();
    }
}

// Loading another project leaves every drawing with its file and its changes.
TEST_F(Ouverture, un_dessin_en_cours_survit_a_un_chargement) {
    dossier.ecrire("Configuration/Defaut Trajet1.ini", "Init,100,50,90\r\nAvance,10\r\nFIN\r\n");
    demarrer();
    dessinTable& table = dessiner();
    action("menu_trajet").trigger();
    auto& trajet = trouver<FenetreEditeur>("dessinTrajet");
    trajet.findChild<QAction*>("demi_tour")->trigger();
    const QString titre = trajet.windowTitle();
    options().charger("Essai");
    EXPECT_EQ(e().NomProjet, "Essai");
    EXPECT_EQ(trouver<QPlainTextEdit>("legende").toPlainText(), "Mon dessin");
    for (const FenetreEditeur* editeur : {static_cast<FenetreEditeur*>(&table), &trajet})
        EXPECT_TRUE(editeur->isWindowModified());
    EXPECT_EQ(trajet.windowTitle(), titre);
    // The generation input goes with the trajectory's own project.
    trajet.findChild<QAction*>("generation")->trigger();
    QCoreApplication::sendPostedEvents(&trajet, QEvent::MetaCall);
    EXPECT_TRUE(fs::exists(dossier / "Configuration/Defaut PourGenerer10.ini"));
    EXPECT_FALSE(fs::exists(dossier / "Configuration/Essai PourGenerer10.ini"));
}

TEST_F(Ouverture, les_projets_recents_le_plus_neuf_d_abord) {
    demarrer();
    for (const char* projet : {"Essai", "Defaut", "Essai"})
        options().charger(projet);
    const fs::path configuration = dossier / "Configuration";
    EXPECT_EQ(projets_recents(configuration), (std::vector<std::string>{"Essai", "Defaut"}));
    EXPECT_TRUE(projets_recents(dossier / "autre").empty());
    QMenu menu;
    options().remplir_recents(menu);
    ASSERT_EQ(menu.actions().size(), 2);
    EXPECT_FALSE(menu.actions()[0]->isEnabled()) << "the loaded one";
    menu.actions()[1]->trigger();
    EXPECT_EQ(e().NomProjet, "Defaut");
    fs::remove(configuration / "Essai Table.ini");
    EXPECT_EQ(projets_recents(configuration), std::vector<std::string>{"Defaut"});
}

TEST_F(Ouverture, les_erreurs_de_lecture_restent_a_lire_apres_leurs_boites) {
    dossier.ecrire("Configuration/Defaut Table.ini", "L,0,0,90,50\r\nZ,1\r\n");
    dossier.ecrire("Configuration/Defaut Robot2.ini", "V,x,90\r\n");
    demarrer();
    EXPECT_EQ(messages.size(), 2U);
    ASSERT_TRUE(trouver("ErreursLecture").isVisible());
    cliquer("copierErreurs");
    const std::string copie = QApplication::clipboard()->text().toStdString();
    for (const char* morceau : {"Defaut Table.ini Ligne 2", "Defaut Robot2.ini Ligne 1"})
        EXPECT_TRUE(contient(copie, morceau)) << copie;
    EXPECT_TRUE(contient(copie, explications.at(0)));
    options().charger("Essai");
    EXPECT_FALSE(trouver("ErreursLecture").isVisible());
}

TEST_F(Ouverture, une_boite_se_copie) {
    demarrer();
    avant_de_repondre = [](QDialog& boite) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&boite));
        QTest::keyClick(&boite, Qt::Key_C, Qt::ControlModifier);
    };
    fenetres().message("Le texte", "La raison");
    EXPECT_EQ(QApplication::clipboard()->text(), "Le texte\n\nLa raison");
}

TEST_F(Ouverture, f12_ecrit_une_image_sans_rien_remplacer_et_dit_ou) {
    demarrer();
    dossier.ecrire("Defaut image 1.png", "à garder");
    sim->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(sim.get()));
    QTest::keyClick(sim.get(), Qt::Key_F12);
    EXPECT_EQ(dossier.lire("Defaut image 1.png"), "à garder");
    EXPECT_FALSE(QImage(texte_qt((dossier / "Defaut image 2.png").string())).isNull());
    EXPECT_TRUE(contient(trouver<LigneTexte>("Mess").texte().toStdString(),
                         (dossier / "Defaut image 2.png").string()));
}

TEST_F(Ouverture, espace_lance_et_arrete_sauf_ou_il_sert_deja) {
    demarrer();
    for (QWidget* ou : std::initializer_list<QWidget*>{sim.get(), &trouver("Table"), &options()}) {
        QTest::keyClick(ou, Qt::Key_Space);
        EXPECT_TRUE(seance().en_marche()) << ou->objectName().toStdString();
        QTest::keyClick(ou, Qt::Key_Space);
        EXPECT_FALSE(seance().en_marche()) << ou->objectName().toStdString();
    }
    QTest::keyClick(&trouver("Check1"), Qt::Key_Space);
    QTest::keyClick(&trouver("nbre_carreaux"), Qt::Key_Space);
    EXPECT_FALSE(seance().en_marche());
    EXPECT_NE(e().AffichageLent, 0) << "the box has it";
}

TEST_F(Ouverture, a_propos_dit_les_versions_et_la_licence) {
    demarrer();
    action("menu_a_propos").trigger();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(contient(messages[0], "Licence MIT, © les auteurs de Tavolmex"));
    EXPECT_TRUE(contient(messages[0], std::string("Qt ") + qVersion()));
}

} // namespace
