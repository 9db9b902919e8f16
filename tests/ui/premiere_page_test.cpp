#include "ui/banc_editeur.h"
#include "ui/principale/premiere_page.h"

#include <QComboBox>

namespace {

namespace fs = std::filesystem;

class NouveauProjet : public Banc {
protected:
    NouveauProjet() {
        demarrer();
        cliquer("dessinAire");
    }
    PremierePage& page() { return trouver<PremierePage>("premierePage"); }
    void creer(const QString& nom, const QString& contenu) {
        trouver<QLineEdit>("nomNouveauProjet").setText(nom);
        trouver<QComboBox>("contenuNouveauProjet").setCurrentText(contenu);
        cliquer("creerProjet");
    }
    void commande(QWidget& editeur, const char* nom) {
        editeur.findChild<QAction*>(nom)->trigger();
        QCoreApplication::sendPostedEvents(&editeur, QEvent::MetaCall);
    }
    std::string propose(FenetreEditeur& editeur) {
        std::string nom;
        dialogues["nouveauProjet"] = [&](QDialog& d) {
            nom = d.findChild<QLineEdit*>("nomProjet")->text().toStdString();
            d.reject();
        };
        editeur.enregistrer_sous();
        return nom;
    }
    dessinTable& table() { return trouver<dessinTable>("dessinTable"); }
    dessinRobot& robot() { return trouver<dessinRobot>("dessinRobot"); }
    fs::path configuration() { return dossier / "Configuration"; }
};

TEST_F(NouveauProjet, personne_n_est_oblige_d_y_repondre) {
    EXPECT_TRUE(page().isVisible());
    EXPECT_TRUE(trouver("Foutil").isVisible());
    EXPECT_TRUE(table().isVisible());
    EXPECT_EQ(table().windowTitle().toStdString(), "Defaut Table.ini[*] – Dessin de la table");
    EXPECT_FALSE(trouver("creerProjet").isEnabled());
    trouver<QRadioButton>("chx_dessinRobot").setChecked(true);
    EXPECT_EQ(page().window(), &robot()) << "it goes with the drawing";
    EXPECT_EQ(propose(robot()), "Defaut");
    cliquer("passerProjet");
    EXPECT_FALSE(page().isVisible());
    EXPECT_EQ(propose(table()), "Defaut");
    EXPECT_TRUE(messages.empty());
    cliquer("dessinAire");
    EXPECT_TRUE(page().isVisible());
}

TEST_F(NouveauProjet, vide_un_nom_pour_tout_et_une_seule_question) {
    reponses = {true};
    creer("Finale", "Vide");
    EXPECT_EQ(messages,
              std::vector<std::string>{"question: Doit-on charger le projet Finale maintenant ?"});
    EXPECT_EQ(e().NomProjet, "Finale");
    EXPECT_FALSE(page().isVisible());
    EXPECT_EQ(table().windowTitle().toStdString(), "Finale Table.ini[*] – Dessin de la table");
    EXPECT_EQ(robot().windowTitle().toStdString(), "Finale Robot1.ini[*] – Dessin du robot");
    EXPECT_EQ(propose(table()), "Finale Table");
    EXPECT_EQ(propose(robot()), "Finale Robot1");
    EXPECT_TRUE(contient(dossier.lire("Configuration/Finale Trajet1.ini"), "Init,100,22,90\r\n"));
    // Saving over the loaded project: read again, nothing asked.
    messages.clear();
    trouver<QPlainTextEdit>("legende").setPlainText("La finale");
    commande(table(), "enregistrer");
    EXPECT_TRUE(messages.empty()) << messages[0];
    EXPECT_EQ(trouver<QLabel>("LNom").text(), "\nLa finale");
    // Where something would be lost, the user is asked.
    e().TrajetModifie(1) = true;
    reponses = {false};
    commande(table(), "enregistrer");
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_TRUE(e().TrajetModifie(1));
}

TEST_F(NouveauProjet, exemple_ou_copie_sous_un_nom_nouveau) {
    for (const std::string& nom : exemples()) {
        reponses = {true};
        creer(texte_qt("Mon " + nom), "Exemple : " + texte_qt(nom));
        EXPECT_EQ(e().NomProjet, "Mon " + nom);
        EXPECT_EQ(e().NbRobot, 2);
        EXPECT_GT(e().TrajNbActions(2), 3);
        EXPECT_TRUE(fs::exists(configuration() / ("Mon " + nom + ".bas")));
        EXPECT_TRUE(fs::exists(configuration() / ("Mon " + nom + " PourGenerer10.ini")));
        cliquer("dessinAire");
    }
    EXPECT_EQ(exemples().size(), 3U);
    creer("Essai", "Copie de : Mon Verger"); // not loaded: "Non"
    EXPECT_EQ(e().NomProjet, "Mon Verger");
    EXPECT_EQ(dossier.lire("Configuration/Essai Table.ini"),
              dossier.lire("Configuration/Mon Verger Table.ini"));
}

TEST_F(NouveauProjet, un_nom_pris_ou_impossible_dit_pourquoi) {
    auto& nom = trouver<QLineEdit>("nomNouveauProjet");
    for (const char* refuse : {"Defaut", "a/b", ".."}) {
        nom.setText(refuse);
        EXPECT_FALSE(trouver("creerProjet").isEnabled()) << refuse;
        EXPECT_TRUE(trouver<QLabel>("avisNouveauProjet").text().endsWith(".")) << refuse;
    }
    nom.setText("Finale");
    dossier.ecrire("Configuration/Finale Robot4.ini", "à garder"); // meanwhile
    cliquer("creerProjet");
    ASSERT_EQ(messages.size(), 0U); // the box comes once the click is dealt with
    EXPECT_TRUE(QTest::qWaitFor([this] { return messages.size() == 1; }));
    EXPECT_TRUE(contient(messages.at(0), "Finale Robot4.ini")) << messages[0];
    EXPECT_FALSE(fs::exists(configuration() / "Finale Table.ini"));
}

TEST_F(NouveauProjet, un_dessin_en_cours_n_est_pas_perdu) {
    trouver<QPlainTextEdit>("legende").setPlainText("Mon dessin");
    creer("Finale", "Vide"); // "Annuler"
    EXPECT_EQ(messages, std::vector<std::string>{"enregistrer"});
    EXPECT_TRUE(table().isWindowModified());
    EXPECT_FALSE(fs::exists(configuration() / "Finale Table.ini"));
}

} // namespace
