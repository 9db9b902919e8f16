#include "ui/banc.h"

#include "base/fichiers.h"
#include "record/renouvellement.h"
#include "ui/commun/virages_croises.h"
#include "ui/generation/dialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QSettings>

#include <chrono>

namespace {

const std::string programme = "'a la main\r\n"
                              "PRINCIPAL:\r\n"
                              "\tGosub TRAJECTOIRE\r\n"
                              "\tReturn\r\n"
                              "Trajectoire:\r\n"
                              "\tDelay 5\r\n"
                              "\tReturn\r\n"
                              "FINALE:\r\n"
                              "\tGoto PRINCIPAL\r\n";
const std::string entree = "# Fichier\r\nAVANCE:120\r\nDELAY :7\r\n";

class FenetreGeneration : public Banc {
protected:
    FenetreGeneration() {
        dossier.ecrire("Configuration/depart.bas", programme);
        dossier.ecrire("Configuration/Defaut PourGenerer10.ini", entree);
        demarrer();
        cliquer("generer"); // the options window's button, the only one so far
        dialog = &trouver("Dialog");
    }
    void SetUp() override {
        if (cible().find('.') != cible().rfind('.'))
            GTEST_SKIP() << "the temporary directory's own name has a dot";
    }
    template <typename Controle>
    Controle& dans(const char* nom) {
        return *dialog->findChild<Controle*>(nom);
    }
    /// The line of that file, once the list has heard of it.
    QListWidgetItem& ligne(const char* fichier, const char* liste = "File") {
        auto& l = dans<QListWidget>(liste);
        const auto trouves = [&] { return l.findItems(fichier, Qt::MatchExactly); };
        if (!QTest::qWaitFor([&] { return !trouves().isEmpty(); }))
            throw std::runtime_error(fichier);
        return *trouves().front();
    }
    void selectionner(const char* liste, const char* fichier) {
        dans<QListWidget>(liste).setCurrentItem(&ligne(fichier, liste));
    }
    /// Everything that a generation needs.
    void choisir(const char* fichier) {
        selectionner("File", fichier);
        selectionner("File1", "depart.bas");
        dans<QLineEdit>("fichier_a_generer").setText(QString::fromStdString(cible()));
    }
    void generer() {
        messages.clear();
        dans<QPushButton>("generer").click();
    }
    std::string cible() { return (dossier / "Configuration/GENERE.bas").string(); }

    QWidget* dialog = nullptr;
};

TEST_F(FenetreGeneration, les_refus_viennent_dans_leur_ordre) {
    generer();
    EXPECT_TRUE(contient(messages.at(0), "dans la liste des Fichiers PICBASIC"));
    EXPECT_FALSE(options().isVisible()) << "whatever happened, the options hide";
    selectionner("File", "Defaut PourGenerer10.ini");
    generer();
    EXPECT_TRUE(contient(messages.at(0), "dans la liste des fichier du projet"));
    selectionner("File1", "depart.bas");
    generer();
    EXPECT_EQ(messages.back(), "message: Sélectionner Fichier à générer.");
    dans<QLineEdit>("fichier_a_generer").setText("sans_point");
    generer();
    EXPECT_TRUE(messages.back().starts_with("message: Erreur d'exécution : ")) << messages.back();
}

TEST_F(FenetreGeneration, du_choix_des_fichiers_au_code_que_l_on_regarde) {
    dans<QCheckBox>("rep_defaut").setChecked(true);
    EXPECT_EQ(dans<QLineEdit>("fichier_a_generer").text().toStdString(),
              (dossier / "Configuration/DefautGENERE.BAS").string());
    dans<QCheckBox>("rep_defaut").setChecked(false);
    EXPECT_TRUE(dans<QLineEdit>("fichier_a_generer").text().isEmpty());

    choisir("Defaut PourGenerer10.ini");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return dans<QPlainTextEdit>("apercu").toPlainText().contains("-"); }));
    const QString apercu = dans<QPlainTextEdit>("apercu").toPlainText();
    EXPECT_TRUE(apercu.contains("- Trajectoire:")) << apercu.toStdString();
    EXPECT_TRUE(apercu.contains("+ \tVal_Action=120"));
    EXPECT_GT(dans<QListWidget>("avertissements").count(), 0) << "Action_Avance is not defined";
    EXPECT_FALSE(std::filesystem::exists(cible())) << "a preview writes nothing";

    reponses = {true, true};
    generer();
    EXPECT_EQ(messages,
              (std::vector<std::string>{"question: Trajectoire: : Cette fonction existe déjà dans "
                                        "le fichier. Voulez-vous l'écraser?",
                                        "question: Voulez-vous voir le fichier généré?"}));
    EXPECT_TRUE(dans<QLabel>("compte_rendu").text().contains("Sauvegardes"));
    const std::string genere = dossier.lire("Configuration/GENERE.bas");
    EXPECT_TRUE(genere.ends_with("TRAJECTOIRE:\r\n\tVal_Action=120\r\n\tGosub Action_Avance\r\n"
                                 "\tDelay 7\r\n\tReturn\r\n"))
        << genere;

    auto& visualiser = trouver("Visualiser");
    EXPECT_EQ(visualiser.windowModality(), Qt::ApplicationModal);
    auto& LFonc = *visualiser.findChild<QListWidget*>("LFonc");
    ASSERT_EQ(LFonc.count(), 3);
    EXPECT_EQ(LFonc.item(2)->text(), "TRAJECTOIRE:");
    auto& Visu = *visualiser.findChild<QPlainTextEdit*>("Visu");
    // "Suivant" goes on to the next function that holds the text, the first one after the last.
    visualiser.findChild<QLineEdit*>("recherche")->setText("GOTO");
    visualiser.findChild<QPushButton*>("chercher")->click();
    EXPECT_EQ(LFonc.currentRow(), 1);
    EXPECT_EQ(Visu.textCursor().selectedText(), "Goto");
    LFonc.setCurrentRow(0);
    EXPECT_EQ(Visu.toPlainText(), "\nPRINCIPAL:\n\tGosub TRAJECTOIRE\n\tReturn");
    // A double click on the Gosub follows it, "Retour" comes back.
    QTextCursor curseur(Visu.document()->findBlockByNumber(2));
    curseur.movePosition(QTextCursor::NextWord);
    Visu.setTextCursor(curseur);
    QTest::mouseDClick(Visu.viewport(), Qt::LeftButton, {}, Visu.cursorRect().center());
    EXPECT_EQ(LFonc.currentRow(), 2);
    visualiser.findChild<QPushButton*>("retour")->click();
    EXPECT_EQ(LFonc.currentRow(), 0);
    Visu.setTextCursor(QTextCursor(Visu.document()->findBlockByNumber(2))); // by keys
    QTest::keyClick(&Visu, Qt::Key_Return);
    EXPECT_EQ(LFonc.currentRow(), 2);
    visualiser.findChild<QPushButton*>("retour")->click();
    // The file is read again when another program replaces it.
    dossier.ecrire("Configuration/neuf", "PRINCIPAL:\r\n\tReturn\r\n");
    std::filesystem::rename(dossier / "Configuration/neuf", cible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return LFonc.count() == 1; }));
    visualiser.findChild<QPushButton*>("Fermer")->click();
}

TEST_F(FenetreGeneration, une_valeur_fausse_dit_ce_qui_est_ecrit_et_ce_qui_est_garde) {
    dossier.ecrire("Configuration/GENERE.bas", "ancien");
    dossier.ecrire("Configuration/Defaut PourGenerer11.ini", "# Fichier\r\nAVANCE:xyz\r\n");
    // The lists follow what comes and goes.
    choisir("Defaut PourGenerer11.ini");
    reponses = {true};
    generer();
    EXPECT_TRUE(contient(messages.back(), "xyz"));
    EXPECT_TRUE(contient(messages.back(), "Defaut PourGenerer11.ini"));
    const std::string compte = dans<QLabel>("compte_rendu").text().toStdString();
    EXPECT_TRUE(contient(compte, "incomplet"));
    EXPECT_TRUE(contient(compte, "Le fichier de départ a été modifié."));
    EXPECT_TRUE(contient(compte, "Sauvegardes/GENERE.bas"));
    options().hide();
    dialog->close(); // by its frame: the options come back as with "Fermer"
    EXPECT_TRUE(options().isVisible());
}

TEST_F(FenetreGeneration, la_cible_se_choisit_par_repertoire_et_nom) {
    dans<QPushButton>("Choisir").click();
    auto& choix = trouver("OuvGeneration");
    EXPECT_EQ(choix.findChild<QLineEdit*>("NomFicGenere")->text(), "generation.bas");
    auto& Rep_Gen = *choix.findChild<QListWidget*>("Rep_Gen");
    const auto trouves = Rep_Gen.findItems("Configuration", Qt::MatchContains);
    ASSERT_FALSE(trouves.isEmpty());
    emit Rep_Gen.itemActivated(trouves.front());
    choix.findChild<QPushButton*>("Nouveau")->click();
    EXPECT_EQ(dans<QLineEdit>("fichier_a_generer").text().toStdString(),
              (dossier / "Configuration/generation.bas").string());
    EXPECT_FALSE(choix.isVisible());
    EXPECT_TRUE(options().isVisible());
    EXPECT_TRUE(dialog->isVisible());
    dans<QPushButton>("Fermer").click();
    EXPECT_FALSE(dialog->isVisible());
}

// A window opened on files that the program saved itself.
class FenetreGenerationRemplie : public FenetreGeneration {
protected:
    void ecrire_entree(const char* nom, const std::string& titre, int age) {
        const auto fichier =
            dossier.ecrire(std::string("Configuration/") + nom,
                           "# Fichier " + titre + "réalisé par x\r\nAVANCE:12\r\n");
        std::filesystem::last_write_time(fichier, std::filesystem::file_time_type::clock::now() -
                                                      std::chrono::hours(age));
    }
    QStringList avertissements() {
        QStringList textes;
        auto& liste = dans<QListWidget>("avertissements");
        for (int i = 0; i < liste.count(); ++i)
            textes << liste.item(i)->text();
        return textes;
    }
    bool averti(const char* phrase) {
        return QTest::qWaitFor([&] { return !avertissements().filter(phrase).isEmpty(); });
    }
};

TEST_F(FenetreGenerationRemplie,
       les_vraies_entrees_ressortent_et_la_derniere_du_projet_est_choisie) {
    ecrire_entree("Defaut PourGenerer10.ini", "Defaut PourGenerer10.ini", 2);
    ecrire_entree("copie.ini", "Defaut PourGenerer10.ini", 1);
    ecrire_entree("Finale PourGenerer10.ini", "Finale PourGenerer10.ini", 0);
    dans<QPushButton>("Fermer").click();
    cliquer("generer");
    // The list has not heard of them yet when the window comes back; its directory is read again.
    auto& Combo = dans<QComboBox>("Combo");
    Combo.setCurrentIndex(1);
    Combo.setCurrentIndex(0);
    auto& File = dans<QListWidget>("File");
    ASSERT_NE(File.currentItem(), nullptr);
    EXPECT_EQ(File.currentItem()->text(), "copie.ini");
    EXPECT_TRUE(ligne("Finale PourGenerer10.ini").font().bold());
    EXPECT_TRUE(ligne("Finale PourGenerer10.ini")
                    .data(Qt::AccessibleTextRole)
                    .toString()
                    .contains("Fichier de génération du projet Finale"));
    EXPECT_FALSE(ligne("Defaut Trajet1.ini").font().bold());
    EXPECT_FALSE(ligne("Defaut Trajet1.ini").data(Qt::AccessibleTextRole).isValid());
    // The choice is the user's until another project is loaded.
    selectionner("File", "Defaut Trajet1.ini");
    dialog->hide();
    dialog->show();
    EXPECT_EQ(File.currentItem()->text(), "Defaut Trajet1.ini");
    selectionner("File", "Finale PourGenerer10.ini");
    EXPECT_TRUE(averti("est du projet Finale ; le projet chargé est Defaut"));
    selectionner("File", "Defaut Trajet1.ini");
    e().NomProjet = "Finale";
    dialog->hide();
    dialog->show();
    EXPECT_EQ(File.currentItem()->text(), "Finale PourGenerer10.ini");
}

TEST_F(FenetreGenerationRemplie, un_autre_fichier_ou_un_trajet_change_sont_signales_sans_bloquer) {
    selectionner("File", "Defaut Trajet1.ini");
    EXPECT_TRUE(averti("n'est pas un fichier de génération")) << "even before a program is chosen";
    ecrire_entree("Defaut PourGenerer11.ini", "Defaut PourGenerer11.ini", 0);
    EXPECT_TRUE(ligne("Defaut PourGenerer11.ini").font().bold()) << "one that came meanwhile, too";
    choisir("Defaut PourGenerer11.ini");
    EXPECT_TRUE(averti("ne correspond plus à aucun trajet du projet Defaut"));
    EXPECT_TRUE(dans<QListWidget>("avertissements").isVisible());
    reponses = {true, false};
    generer();
    EXPECT_TRUE(dossier.lire("Configuration/GENERE.bas")
                    .ends_with("\tVal_Action=12\r\n\tGosub "
                               "Action_Avance\r\n\tReturn\r\n"));
}

TEST_F(FenetreGenerationRemplie, un_essai_refuse_ne_laisse_pas_l_ancien_succes_et_dit_la_suite) {
    choisir("Defaut PourGenerer10.ini");
    reponses = {true, false};
    generer();
    auto& compte = dans<QLabel>("compte_rendu");
    EXPECT_TRUE(compte.text().startsWith("Fichier généré : "));
    for (const char* refuse : {"sans_point", "prog.txt"}) {
        dans<QLineEdit>("fichier_a_generer").setText(refuse);
        generer();
        EXPECT_TRUE(compte.text().startsWith("Rien n'a été généré. ")) << refuse;
        EXPECT_TRUE(compte.text().contains("« Fermer »")) << refuse;
        EXPECT_FALSE(options().isVisible());
    }
    EXPECT_EQ(messages.back(),
              "message: Nom de fichier incorrect" + (dossier / "Configuration").string());
    const QString explication = QString::fromStdString(explications.back());
    EXPECT_TRUE(explication.contains("se terminer par « .bas »")) << "the advice stays";
    EXPECT_TRUE(explication.contains("« Fermer », dans la fenêtre de génération, la fait revenir"));
}

TEST_F(FenetreGeneration, ce_que_fera_le_code_se_voit_et_depend_du_sens_des_virages) {
    dossier.ecrire("Configuration/Defaut PourGenerer10.ini",
                   "# Fichier Defaut PourGenerer10.ini\r\nGAUCHE:90\r\nAVANCE:50\r\n");
    dossier.ecrire("Configuration/Defaut Trajet1.ini",
                   "Init,100,100,90\r\nDroite,90\r\nAvance,50\r\nFIN\r\n");
    const auto finit_par_dire = [](auto& controle, auto lire, const QString& phrase) {
        return QTest::qWaitFor([&] { return lire(controle).contains(phrase); });
    };
    auto& texte = dans<QPlainTextEdit>("texte_rejeu");
    const auto lire_texte = [](const QPlainTextEdit& t) { return t.toPlainText(); };
    EXPECT_TRUE(finit_par_dire(texte, lire_texte, "choisissez une trajectoire."));
    selectionner("File", "Defaut PourGenerer10.ini");
    EXPECT_TRUE(finit_par_dire(texte, lire_texte, "Aucune action ne diffère."));
    EXPECT_TRUE(texte.toPlainText().contains("Code : fin en (150,0 ; 100,0), cap 0,0°."));

    dans<QCheckBox>("virages_croises").setChecked(false);
    EXPECT_TRUE(finit_par_dire(texte, lire_texte,
                               "Première différence : l'action 1 (DROITE 90) : le code fait GAUCHE "
                               "90, qui tourne à gauche (ligne 2)."));
    auto& verdict = trouver<QAbstractButton>("verdict");
    EXPECT_TRUE(finit_par_dire(
        verdict, [](const QAbstractButton& b) { return b.text(); }, "· 1 constat"))
        << verdict.text().toStdString();
    // It is this project's setting, and comes back with it.
    EXPECT_FALSE(virages_croises(dossier / "Configuration", "Defaut"));
    EXPECT_TRUE(virages_croises(dossier / "Configuration", "Finale"));
    e().NomProjet = "Finale";
    seance().annonces().annoncer(&Ecouteur::projet_change, Lecture::projet);
    EXPECT_TRUE(finit_par_dire(texte, lire_texte, "ce fichier est d'un autre projet"));
    EXPECT_TRUE(dans<QCheckBox>("virages_croises").isChecked());
}

TEST_F(FenetreGeneration, une_entree_depassee_se_renouvelle_d_un_coup) {
    const char* const nom = "Configuration/Defaut PourGenerer10.ini";
    const auto trajet = dossier / "Configuration/Defaut Trajet1.ini";
    const auto ecrire_trajet = [&](const char* actions) {
        sauvegarder_version(trajet, dossier / "Configuration/Sauvegardes");
        dossier.ecrire("Configuration/Defaut Trajet1.ini",
                       std::string("Init,100,100,90\r\n") + actions + "FIN\r\n");
        return entree_du_fichier(e(), 1, trajet).texte;
    };
    const std::string ancienne = ecrire_trajet("Avance,50\r\nGauche,30\r\n");
    const std::string actuelle = ecrire_trajet("Avance,60\r\nGauche,30\r\n");
    auto& avis = dans<QLabel>("avis_entree");
    auto& bouton = dans<QPushButton>("renouveler_entree");
    const auto dit = [&](const char* phrase) {
        return QTest::qWaitFor([&] { return avis.text().contains(phrase); });
    };
    dossier.ecrire(nom, ancienne);
    std::filesystem::last_write_time(dossier / nom, std::filesystem::last_write_time(trajet) -
                                                        std::chrono::hours(1));
    selectionner("File", "Defaut PourGenerer10.ini");
    ASSERT_TRUE(dit("est plus ancien que le trajet du robot 1 et en diffère (lignes en trop : 1, "
                    "qui manquent : 1)"))
        << avis.text().toStdString();
    bouton.click();
    EXPECT_EQ(dossier.lire(nom), actuelle);
    EXPECT_TRUE(messages.empty()) << "what a kept version of the trajectory gives is not lost";
    EXPECT_TRUE(avis.text().startsWith("À jour")) << "at once";
    EXPECT_FALSE(bouton.isEnabled());
    EXPECT_TRUE(dans<QLabel>("compte_rendu").text().contains("Sauvegardes"));

    // By hand: asked about, with the lines that go; the other robot's trajectory is another thing.
    std::string a_la_main = actuelle;
    a_la_main.replace(a_la_main.find(":60"), 3, ":61");
    dossier.ecrire(nom, a_la_main);
    ASSERT_TRUE(dit("n'est pas ce que donne le trajet du robot 1"));
    bouton.click();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(contient(explications.back(), "N'y seraient plus : AVANCE:61."));
    EXPECT_EQ(dossier.lire(nom), a_la_main);
    reponses = {true};
    bouton.click();
    EXPECT_EQ(dossier.lire(nom), actuelle);
    auto& robots = dans<QComboBox>("robot_de_l_entree");
    for (const int rang : {1, 0}) {
        robots.setCurrentIndex(rang);
        emit robots.activated(rang);
        EXPECT_EQ(avis.text().startsWith("Le trajet du robot 2 ne donne pas de fichier de "
                                         "génération : Ligne "),
                  rang == 1)
            << avis.text().toStdString();
    }

    // None yet: it is made.
    std::filesystem::remove(dossier / nom);
    ASSERT_TRUE(dit("n'existe pas encore"));
    bouton.click();
    EXPECT_EQ(dossier.lire(nom), actuelle);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return dans<QListWidget>("File").currentItem() != nullptr; }));
}

TEST_F(FenetreGeneration, la_liste_des_fichiers_suit_l_extension_sans_tenir_compte_de_la_casse) {
    dossier.ecrire("Configuration/AUTRE.BAS", "");
    dossier.ecrire("Configuration/.cache.bas", "");
    auto& Combo1 = dans<QComboBox>("Combo1");
    Combo1.setCurrentIndex(1);
    Combo1.setCurrentIndex(0);
    auto& File1 = dans<QListWidget>("File1");
    ASSERT_EQ(File1.count(), 2);
    EXPECT_EQ(File1.item(0)->text(), "AUTRE.BAS");
}

} // namespace
