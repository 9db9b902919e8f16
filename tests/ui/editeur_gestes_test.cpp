// How the table editor's mouse, keys and fields take, move and measure what is drawn.
#include "ui/banc_table.h"

#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTreeView>

#include <algorithm>

namespace {

/// A floor of one zone under everything, as most tables have.
constexpr std::string_view sol = "L,0,0,200,200\nO,20,20,40,40\nT,60,60,90,80\nPB,120,120,10\n";

class GestesTable : public EditeurTable {
protected:
    /// The keys of what is chosen.
    std::string cles() {
        std::string textes;
        for (const QListWidgetItem* item : trouver<QListWidget>("listeObjets").selectedItems())
            textes += item->text().section(' ', 1, 1).toStdString() + " ";
        return textes;
    }
    /// Types over a field's number.
    void taper(const char* champ, const char* texte) {
        auto& nombre = trouver<QDoubleSpinBox>(champ);
        nombre.selectAll();
        QTest::keyClicks(&nombre, texte);
        QTest::keyClick(&nombre, Qt::Key_Return);
    }
};

TEST_F(GestesTable, sur_un_sol_d_une_zone_un_rectangle_choisit_et_rien_ne_bouge) {
    ouvrir(sol);
    tirer({10, 10}, {100, 100});
    EXPECT_EQ(cles(), "O T ");
    tirer({30, 30}, {40, 35}); // what is chosen moves together
    EXPECT_EQ(dernier("O") + dernier("T"), "O 30 25 50 45T 70 65 100 85");
    clic(80, 70);
    EXPECT_EQ(cles(), "T ") << "a click on one of several";
    tirer({107, 107}, {135, 135}, Qt::ShiftModifier);
    EXPECT_EQ(cles(), "T PB ");
    tirer({170, 170}, {180, 185});
    EXPECT_EQ(dernier("L"), "L 0 0 200 200") << "not chosen";
    clic(170, 170);
    tirer({170, 170}, {180, 180});
    EXPECT_EQ(dernier("L"), "L 10 10 210 210") << "chosen";
}

TEST_F(GestesTable, les_zones_verrouillees_laissent_passer_la_souris) {
    ouvrir(sol);
    clic(30, 30);
    commande("verrouiller");
    EXPECT_EQ(cles(), "");
    clic(30, 30);
    tirer({5, 5}, {195, 195});
    EXPECT_EQ(cles(), "PB ");
    commande("tout");
    EXPECT_EQ(cles(), "PB ");
    trouver<QListWidget>("listeObjets").clearSelection();
    trouver<QListWidget>("listeObjets").setCurrentRow(1);
    EXPECT_EQ(cles(), "O ") << "the list still chooses";
    tirer({40, 40}, {50, 50}); // no handle there
    EXPECT_EQ(dernier("O"), "O 20 20 40 40");
    commande("verrouiller");
    clic(30, 30);
    EXPECT_EQ(cles(), "O ");
}

TEST_F(GestesTable, un_objet_pose_passe_au_dessus_de_sa_famille) {
    ouvrir("L,0,0,200,200\nO,20,20,180,180\nPB,50,50,5\nX,60,60,5\n");
    cliquer("outil_L");
    clic(100, 100);
    cliquer("outil_PB");
    clic(55, 55);
    EXPECT_TRUE(contient(doc().ecrire(), "O,20,20,180,180\nL , "));
    EXPECT_TRUE(contient(doc().ecrire(), "X,60,60,5\nPB , "));
}

TEST_F(GestesTable, rien_sans_etendue_n_est_pose_ni_tire_ni_tape) {
    ouvrir(sol);
    cliquer("outil_V");
    tirer({100, 20}, {100, 60}); // no width
    cliquer("outil_Verticale");
    tirer({100, 20}, {140, 20}); // no length
    EXPECT_EQ(messages.size(), 2U);
    EXPECT_EQ(doc().nombre(), 4U);
    cliquer("outil_PN");
    tirer({150, 20}, {151, 21}); // a click that slipped
    EXPECT_EQ(dernier("PN"), "PN 150 20 5");
    clic(30, 30);
    tirer({40, 30}, {20, 30}); // a handle onto the other side: as far as there was a width
    EXPECT_EQ(dernier("O"), "O 20 20 30 40");
    clic(120, 120);
    taper("Rayon", "0");
    EXPECT_EQ(dernier("PB"), "PB 120 120 10");
}

TEST_F(GestesTable, une_mesure_qui_ne_peut_pas_etre_prise_attend_ou_est_refusee) {
    ouvrir("L,0,0,200,200\nLN,10,80,90,80\nLN,100,100,130,140\nO,20,20,40,40\n");
    cocher("coins", true);
    clic(30, 30);
    taper("X1", "40"); // for a moment without width
    EXPECT_EQ(dernier("O"), "O 20 20 40 40");
    messages.clear();
    commande("enregistrer");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(contient(messages[0], "n'a pas été enregistré"));
    taper("X2", "150");
    EXPECT_EQ(dernier("O"), "O 40 20 150 40");
    clic(115, 120);
    EXPECT_NEAR(trouver<QDoubleSpinBox>("Incidence").value(), 53.1, 0.01);
    taper("Incidence", "-90");
    EXPECT_EQ(dernier("LN"), "LN 100 100 100 50");
    clic(30, 80);
    taper("Incidence", "180"); // would leave the table at x = 0
    EXPECT_EQ(texte(doc()[1]), "LN 10 80 90 80");
    EXPECT_EQ(trouver<QDoubleSpinBox>("Incidence").value(), 0);
    EXPECT_TRUE(editeur().statusBar()->currentMessage().startsWith("Refusé"));
}

TEST_F(GestesTable, plusieurs_objets_se_mesurent_ensemble) {
    ouvrir(sol);
    clic(30, 30);
    clic(70, 70, Qt::ControlModifier);
    EXPECT_EQ(trouver<QDoubleSpinBox>("Hauteur").text(), "20 cm");
    auto& largeur = trouver<Nombre>("Largeur");
    EXPECT_EQ(largeur.text(), " cm") << "20 and 30";
    taper("Largeur", ""); // nothing typed, nothing changed
    EXPECT_FALSE(editeur().isWindowModified());
    taper("Largeur", "20");
    EXPECT_EQ(dernier("O") + dernier("T"), "O 20 20 40 40T 60 60 80 80");
    EXPECT_EQ(largeur.text(), "20 cm");
    commande("annuler"); // one step
    EXPECT_EQ(doc().ecrire(), sol);
    auto& sorte = trouver<QComboBox>("sorte");
    EXPECT_EQ(sorte.currentIndex(), -1);
    sorte.setCurrentIndex(sorte.findData("V"));
    EXPECT_EQ(doc().compter({"V"}), 2);
    commande("annuler");
    clic(120, 120, Qt::ControlModifier); // a piece has a place, but no width
    taper("Y", "50");
    EXPECT_EQ(dernier("O") + dernier("PB"), "O 20 50 40 70PB 120 50 10");
}

TEST_F(GestesTable, un_geste_finit_avec_son_bouton) {
    ouvrir(sol);
    const auto presser = [&] {
        clic(30, 30);
        QTest::mousePress(&vue(), Qt::LeftButton, {}, en(30, 30));
        QMouseEvent e(QEvent::MouseMove, en(60, 60), vue().mapToGlobal(en(60, 60)), Qt::NoButton,
                      Qt::LeftButton, {});
        QApplication::sendEvent(&vue(), &e);
    };
    const std::vector<std::function<void()>> coupures{
        [&] { QTest::mousePress(&vue(), Qt::RightButton, {}, en(60, 60)); },
        [&] { QTest::mousePress(&vue(), Qt::MiddleButton, {}, en(60, 60)); },
        [&] {
            QFocusEvent part(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
            QApplication::sendEvent(&vue(), &part);
        },
        [&] { // released outside, where nobody told us
            QMouseEvent e(QEvent::MouseMove, en(70, 70), vue().mapToGlobal(en(70, 70)),
                          Qt::NoButton, Qt::NoButton, {});
            QApplication::sendEvent(&vue(), &e);
        }};
    for (const auto& couper : coupures) {
        presser();
        couper();
        QTest::mouseRelease(&vue(), Qt::LeftButton, {}, en(60, 60));
        EXPECT_EQ(dernier("O"), "O 20 20 40 40");
    }
    presser();
    QTest::mouseRelease(&vue(), Qt::RightButton, {}, en(60, 60)); // not its own
    QTest::mouseRelease(&vue(), Qt::LeftButton, {}, en(60, 60));
    EXPECT_EQ(dernier("O"), "O 50 50 70 70");
}

TEST_F(GestesTable, ctrl_suspend_la_grille_comme_alt) {
    ouvrir(sol);
    deplacer({30, 30}, {43, 41});
    EXPECT_EQ(dernier("O"), "O 35 30 55 50");
    clic(45, 40);
    tirer({45, 40}, {47, 41}, Qt::ControlModifier);
    EXPECT_EQ(dernier("O"), "O 37 31 57 51");
    EXPECT_EQ(cles(), "O ") << "moving does not drop it from what is chosen";
}

TEST_F(GestesTable, la_legende_garde_son_curseur_ou_l_on_tape) {
    ouvrir("M,abc\nL,0,0,50,50\n");
    auto& legende = trouver<QPlainTextEdit>("legende");
    QTextCursor curseur = legende.textCursor();
    curseur.setPosition(1);
    legende.setTextCursor(curseur);
    QTest::keyClicks(&legende, "x,#y"); // the comma breaks the line, the sign is not kept
    EXPECT_EQ(legende.toPlainText(), "ax\nybc");
    EXPECT_EQ(legende.textCursor().position(), 4);
}

TEST_F(GestesTable, la_grille_du_menu_est_celle_de_la_vue) {
    for (const int cm : {10, 1, 5}) {
        commande(qPrintable(QString("grille_%1").arg(cm)));
        EXPECT_EQ(vue().grille(), cm);
        for (const int autre : {1, 5, 10})
            EXPECT_EQ(editeur().findChild<QAction*>(QString("grille_%1").arg(autre))->isChecked(),
                      autre == cm);
    }
    EXPECT_TRUE(trouver<QMainWindow>("dessinRobot").findChild<QAction*>("grille_1")->isChecked())
        << "the robot's own from the start";
}

// Qt splits a filter's patterns at blanks: "* Table.ini" showed nothing but "Table.ini".
TEST_F(GestesTable, le_filtre_d_ouverture_montre_les_fichiers_de_table) {
    dossier.ecrire("Configuration/Essai Table.ini", "U,0,0,9,9");
    dossier.ecrire("Configuration/essai2 table.INI", "U,0,0,9,9");
    std::vector<std::string> vus;
    dialogues["choisir_fichier"] = [&](QDialog& dialogue) {
        auto& liste = *dialogue.findChild<QTreeView*>("treeView");
        const auto lignes = [&] { return liste.model()->rowCount(liste.rootIndex()); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return lignes() == 3; })); // read on a thread
        for (int i = 0; i < lignes(); ++i)
            vus.push_back(
                liste.model()->index(i, 0, liste.rootIndex()).data().toString().toStdString());
        dialogue.reject();
    };
    commande("ouvrir");
    std::sort(vus.begin(), vus.end());
    EXPECT_EQ(
        vus, (std::vector<std::string>{"Defaut Table.ini", "Essai Table.ini", "essai2 table.INI"}));
}

} // namespace
