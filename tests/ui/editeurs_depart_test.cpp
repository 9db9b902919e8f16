// Leaving the editors: what is saved, what is asked, what a program that ended leaves behind; and
// the undo keys, which reach the drawing from everywhere.
#include "ui/banc_table.h"
#include "ui/principale/fin_signalee.h"

#include <QPlainTextEdit>

#include <algorithm>
#include <csignal>
#include <utility>

namespace {

namespace fs = std::filesystem;

class Depart : public EditeurTable {
protected:
    dessinRobot& robot() { return trouver<dessinRobot>("dessinRobot"); }
    void changer_le_robot() {
        trouver<QRadioButton>("chx_dessinRobot").setChecked(true);
        robot().ouvrir(dossier.ecrire("Configuration/Essai Robot1.ini",
                                      "V,100,90\r\nA,10,14,10\r\nI,100,60,0\r\n"
                                      "E,10,30,16\r\nR,0,0,0,34\r\n"));
        trouver<QDoubleSpinBox>("V1").setValue(80);
    }
    fs::path reprise(int rang = 1) {
        return dossier / "Configuration" / ("Dessin table " + std::to_string(rang) + ".reprise");
    }
    std::size_t demandes() {
        return static_cast<std::size_t>(
            std::count(messages.begin(), messages.end(), "enregistrer"));
    }
    void taper(const char* champ, const char* texte) {
        auto& nombre = trouver<QDoubleSpinBox>(champ);
        EXPECT_TRUE(QTest::qWaitFor([&] { return nombre.isVisible(); }));
        nombre.setFocus();
        nombre.selectAll();
        QTest::keyClicks(&nombre, texte);
    }
    /// The program ends without a word, and starts again.
    void recommencer(std::deque<bool> oui_ou_non) {
        sim.reset();
        messages.clear();
        reponses = std::move(oui_ou_non);
        demarrer();
    }
};

TEST_F(Depart, enregistrer_prend_d_abord_ce_qui_est_tape) {
    ouvrir("U,0,0,90,90\r\nO,10,10,80,80\r\n");
    cocher("coins", true);
    clic(50, 50);
    taper("X1", "35");
    reponses = {true, false};
    commande("enregistrer");
    EXPECT_TRUE(contient(sur_le_disque(), "O , 35, 10, 80, 80"));
    EXPECT_FALSE(editeur().isWindowModified());
    taper("X1", "12,5");
    messages.clear();
    commande("enregistrer");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].find("message: X1 : « 12,5 » est refusé"), 0U) << messages[0];
    EXPECT_TRUE(contient(sur_le_disque(), "O , 35,"));
    EXPECT_EQ(dernier("O"), "O 35 10 80 80");
}

TEST_F(Depart, seul_ce_qui_est_ecrit_compte_comme_enregistre) {
    ouvrir("U,0,0,90,90\r\nO,10,10,80,80\r\n");
    deplacer({50, 50}, {55, 50});
    avant_de_repondre = [&, change = false](QDialog&) mutable { // while a question is open
        if (!std::exchange(change, true))
            editeur().findChild<QAction*>("pas_haut_10")->trigger();
    };
    reponses = {true, false};
    commande("enregistrer");
    EXPECT_TRUE(contient(sur_le_disque(), "O , 15, 10, 85, 80"));
    EXPECT_EQ(dernier("O"), "O 15 20 85 90");
    EXPECT_TRUE(editeur().isWindowModified());
}

TEST_F(Depart, ne_pas_enregistrer_ne_jette_rien_avant_d_etre_parti) {
    ouvrir();
    deplacer({50, 50}, {60, 60});
    sauvegardes = {Sauvegarde::ne_pas_enregistrer};
    commande("ouvrir"); // then no file after all
    EXPECT_EQ(dernier("PB"), "PB 60 60 5");
    EXPECT_TRUE(editeur().isWindowModified());
    EXPECT_TRUE(fs::exists(reprise()) ||
                QTest::qWaitFor([&] { return fs::exists(reprise()); }, 3000));
}

TEST_F(Depart, quitter_demande_tout_avant_de_toucher_a_rien) {
    ouvrir();
    deplacer({50, 50}, {60, 60});
    changer_le_robot();
    for (const auto premiere : {Sauvegarde::ne_pas_enregistrer, Sauvegarde::enregistrer}) {
        messages.clear();
        sauvegardes = {premiere, Sauvegarde::annuler};
        cliquer("Command4");
        EXPECT_EQ(demandes(), 2U);
        EXPECT_TRUE(fins.empty());
        EXPECT_EQ(dernier("PB"), "PB 60 60 5");
        EXPECT_EQ(sur_le_disque(), fichier);
    }
    sauvegardes = {Sauvegarde::ne_pas_enregistrer, Sauvegarde::enregistrer};
    reponses = {false}; // the robot's file is not replaced: nobody leaves, nothing is thrown away
    cliquer("Command4");
    EXPECT_TRUE(fins.empty());
    EXPECT_EQ(dernier("PB"), "PB 60 60 5");
    sauvegardes = {Sauvegarde::ne_pas_enregistrer, Sauvegarde::enregistrer};
    reponses = {true, false};
    cliquer("Command4");
    EXPECT_EQ(fins, std::vector<int>{0});
    EXPECT_TRUE(contient(dossier.lire("Configuration/Essai Robot1.ini"), "V , 80, 90"));
    EXPECT_FALSE(RepriseDessin::en_attente(dossier / "Configuration"));
}

TEST_F(Depart, un_dessin_coupe_en_plein_travail_est_propose_et_repris) {
    ouvrir();
    deplacer({50, 50}, {60, 60});
    ASSERT_TRUE(QTest::qWaitFor([&] { return fs::exists(reprise()); }, 3000));
    recommencer({true});
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(
        messages[0].find("question: Un dessin n'a pas été enregistré :\nEssai Table.ini, le "), 0U)
        << messages[0];
    EXPECT_TRUE(editeur().isVisible());
    EXPECT_TRUE(editeur().isWindowModified());
    EXPECT_EQ(dernier("PB"), "PB 60 60 5");
    recommencer({true}); // ended again before anything was done to it
    EXPECT_EQ(messages.size(), 1U);
    reponses = {true, true, false};
    commande("enregistrer");
    EXPECT_TRUE(contient(sur_le_disque(), "PB , 60, 60, 5"));
    EXPECT_FALSE(RepriseDessin::en_attente(dossier / "Configuration"));
    recommencer({});
    EXPECT_TRUE(messages.empty());
}

TEST_F(Depart, meme_un_dessin_qui_ne_peut_pas_encore_s_ecrire_est_repris) {
    ouvrir("L,0,0,90,90\n");
    cliquer("outil_DR");
    clic(50, 50);
    clic(10, 10);
    commande("supprimer"); // a disc alone cannot be read back
    EXPECT_THROW(static_cast<void>(doc().ecrire()), ErreurExecution);
    fenetres().fin_du_programme(); // a major error: at once
    EXPECT_EQ(fins, std::vector<int>{3});
    recommencer({true});
    ASSERT_EQ(doc().nombre(), 1U);
    EXPECT_EQ(dernier("DR"), "DR 50 50 5");
    sauvegardes = {Sauvegarde::ne_pas_enregistrer};
    editeur().close();
    EXPECT_EQ(doc().ecrire(), "L,0,0,90,90\n") << "the file as it is";
    EXPECT_FALSE(fs::exists(reprise()));
}

TEST_F(Depart, ce_qui_est_annule_ou_refuse_n_est_plus_propose) {
    ouvrir();
    deplacer({50, 50}, {60, 60});
    editeur().ecrire_reprise();
    EXPECT_TRUE(fs::exists(reprise()));
    commande("annuler");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !fs::exists(reprise()); }, 3000));
    commande("retablir");
    editeur().ecrire_reprise();
    recommencer({false});
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_FALSE(RepriseDessin::en_attente(dossier / "Configuration"));
    bool range = false;
    for (const auto& f : fs::directory_iterator(dossier / "Configuration/Sauvegardes"))
        range = range || f.path().filename().string().starts_with("Dessin table 1.reprise");
    EXPECT_TRUE(range);
}

TEST_F(Depart, un_second_programme_ne_prend_pas_le_dessin_du_premier) {
    ouvrir();
    deplacer({50, 50}, {60, 60});
    editeur().ecrire_reprise();
    const auto premier = std::move(sim);
    messages.clear();
    demarrer();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(contient(messages[0], "déjà ouvert"));
    cliquer("dessinAire");
    commande("nouveau");
    cliquer("outil_L");
    clic(50, 50);
    editeur().ecrire_reprise();
    EXPECT_TRUE(fs::exists(reprise(1)));
    EXPECT_TRUE(fs::exists(reprise(2)));
    recommencer({true, true}); // the second's own is still offered, after the notice
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_TRUE(contient(messages[1], "sans nom"));
}

TEST_F(Depart, une_reprise_illisible_est_dite_et_mise_de_cote) {
    dossier.ecrire("Configuration/Dessin table 1.reprise", "17:Tavolmex dessin 1999:x");
    recommencer({});
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].find("message: Un dessin ne peut pas être repris : "), 0U) << messages[0];
    EXPECT_TRUE(fs::exists(reprise().string() + ".illisible"));
    recommencer({});
    EXPECT_TRUE(messages.empty());
}

TEST_F(Depart, un_signal_de_fin_arrive_dans_la_boucle) {
    FinSignalee fin;
    std::vector<int> recus;
    fin.brancher([&](int signal) { recus.push_back(signal); });
    for (const int s : {SIGTERM, SIGHUP, SIGINT}) {
        std::raise(s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !recus.empty() && recus.back() == s; }, 3000));
    }
    EXPECT_EQ(recus.size(), 3U);
}

// A field, a list, the caption, the view, the palette: the keys are the drawing's.
TEST_F(Depart, annuler_et_retablir_partent_de_tous_les_controles) {
    ouvrir();
    deplacer({50, 50}, {60, 60}); // its fields are shown
    const std::string apres = dernier("PB");
    int essayes = 0;
    for (QWidget* fenetre : {static_cast<QWidget*>(&editeur()), &trouver("Foutil")}) {
        fenetre->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre));
        for (QWidget* controle : fenetre->findChildren<QWidget*>()) {
            if (controle->focusPolicy() == Qt::NoFocus || !controle->isVisible() ||
                controle->window() != fenetre)
                continue;
            SCOPED_TRACE(controle->objectName().toStdString() + " " +
                         controle->metaObject()->className());
            controle->setFocus();
            QTest::keyClick(controle, Qt::Key_Z, Qt::ControlModifier);
            ASSERT_EQ(dernier("PB"), "PB 50 50 5");
            QTest::keyClick(controle, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            ASSERT_EQ(dernier("PB"), apres);
            QTest::keyClick(controle, Qt::Key_Z, Qt::ControlModifier);
            QTest::keyClick(controle, Qt::Key_Y, Qt::ControlModifier);
            ASSERT_EQ(dernier("PB"), apres);
            ++essayes;
        }
    }
    EXPECT_GT(essayes, 15);
}

TEST_F(Depart, annuler_retire_ce_qui_vient_d_etre_tape_et_rien_d_autre) {
    ouvrir();
    deplacer({50, 50}, {60, 60});
    editeur().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editeur()));
    taper("X", "77"); // not yet taken
    auto& X = trouver<QDoubleSpinBox>("X");
    QTest::keyClick(&X, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(dernier("PB"), "PB 60 60 5");
    EXPECT_EQ(X.text(), "60 cm");
    QTest::keyClick(&X, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(dernier("PB"), "PB 77 60 5");
    for (int i = 0; i < 9; ++i) // beyond the first step
        QTest::keyClick(&X, Qt::Key_Z, Qt::ControlModifier);
    trouver("vueTable").setFocus();
    EXPECT_EQ(doc().ecrire(), fichier) << "the field has nothing of its own to undo";
}

} // namespace
