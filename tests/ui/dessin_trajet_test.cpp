#include "ui/banc.h"

#include "base/fichiers.h"
#include "ui/editeurs/dessin_trajet.h"

#include <QCheckBox>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTreeWidget>

namespace {

namespace fs = std::filesystem;

constexpr const char* depart = "# plan\r\n"
                               "Init,100,50,90\r\n"
                               "Avance, 80 # vers le haut\r\n"
                               "\r\n"
                               "DROITE,90\r\n"
                               "VirAvGa,90,30\r\n"
                               "FIN\r\n";

/// The trajectory editor on robot 1 of a project whose path is known.
class EditeurTrajet : public Banc {
protected:
    EditeurTrajet() {
        dossier.ecrire("Configuration/Tavolmex.ini", "NbRobot, 1\n");
        demarrer();
        dossier.ecrire("Configuration/Defaut Trajet1.ini", depart);
        seance().relire_tout();
        sim->findChild<QAction*>("menu_trajet")->trigger();
        QCoreApplication::processEvents();
    }

    dessinTrajet& editeur() { return trouver<dessinTrajet>("dessinTrajet"); }
    const DocumentTrajet& doc() { return editeur().document(); }
    QTableView& table() { return trouver<QTableView>("tableActions"); }
    VueTrajet& vue() { return trouver<VueTrajet>("vueTrajet"); }
    std::string texte() { return doc().ecrire(); }
    std::string sur_le_disque(int robot = 1) {
        return dossier.lire("Configuration/Defaut Trajet" + std::to_string(robot) + ".ini");
    }
    QString cellule(int rang, ModeleActions::Colonne colonne) {
        return table().model()->index(rang, colonne).data().toString();
    }
    void faire(const char* nom) {
        editeur().findChild<QAction*>(nom)->trigger();
        QCoreApplication::sendPostedEvents(&editeur(), QEvent::MetaCall);
    }
    void choisir(int premier, int dernier) {
        table().selectionModel()->select(
            QItemSelection(table().model()->index(premier, 0), table().model()->index(dernier, 0)),
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    /// Types into a cell as a user would.
    void taper(int rang, ModeleActions::Colonne colonne, const QString& texte, Qt::Key fin) {
        const QModelIndex ou = table().model()->index(rang, colonne);
        table().setCurrentIndex(ou);
        table().edit(ou);
        auto* ligne = table().viewport()->findChild<QLineEdit*>();
        ligne->selectAll();
        QTest::keyClicks(ligne, texte);
        QTest::keyClick(ligne, fin);
        QCoreApplication::processEvents(); // the cell takes it later,
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // then its line goes
    }
    void tirer(QPointF de, QPointF a, bool abandonner = false) {
        const QPoint debut = vue().en_pixels(de).toPoint();
        const QPoint fin = vue().en_pixels(a).toPoint();
        QTest::mousePress(&vue(), Qt::LeftButton, {}, debut);
        QTest::mouseMove(&vue(), (debut + fin) / 2);
        QTest::mouseMove(&vue(), fin);
        if (abandonner)
            QTest::keyClick(&vue(), Qt::Key_Escape);
        QTest::mouseRelease(&vue(), Qt::LeftButton, {}, fin);
    }
};

TEST_F(EditeurTrajet, chaque_ligne_dit_quand_et_ou_elle_finit) {
    ASSERT_EQ(table().model()->rowCount(), 5);
    EXPECT_EQ(cellule(0, ModeleActions::numero), "–");
    EXPECT_EQ(cellule(0, ModeleActions::valeur3), "cap 90°");
    EXPECT_EQ(cellule(1, ModeleActions::action), "Avance");
    EXPECT_EQ(cellule(1, ModeleActions::valeur1), "80 cm");
    EXPECT_EQ(cellule(1, ModeleActions::debut), "0,01 s");
    EXPECT_EQ(cellule(1, ModeleActions::arrivee), "100,0 ; 130,0 ; 90,0°");
    EXPECT_EQ(cellule(2, ModeleActions::arrivee), "100,0 ; 130,0 ; 0,0°");
    EXPECT_EQ(cellule(3, ModeleActions::valeur2), "rayon 30 cm");
    EXPECT_EQ(cellule(3, ModeleActions::arrivee), "130,0 ; 160,0 ; 90,0°");
    EXPECT_EQ(cellule(4, ModeleActions::fin), "");
    EXPECT_TRUE(table()
                    .model()
                    ->index(3, ModeleActions::valeur2)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .endsWith("rayon en centimètres : de -32768 à 32767, de 0 à 255 pour entrer "
                              "dans le code"));
}

TEST_F(EditeurTrajet, ce_qui_est_tape_est_pris_refuse_ou_rendu) {
    taper(1, ModeleActions::valeur1, "30", Qt::Key_Return);
    EXPECT_NE(texte().find("Avance, 30 # vers le haut\r\n\r\nDROITE,90\r\n"), std::string::npos);
    EXPECT_EQ(cellule(3, ModeleActions::arrivee), "130,0 ; 110,0 ; 90,0°");
    taper(2, ModeleActions::action, "gauche", Qt::Key_Return);
    EXPECT_NE(texte().find("GAUCHE,90\r\n"), std::string::npos);
    taper(3, ModeleActions::valeur1, "45", Qt::Key_Escape);
    EXPECT_EQ(cellule(3, ModeleActions::valeur1), "angle 90°");

    taper(1, ModeleActions::valeur1, "4x", Qt::Key_Return);
    EXPECT_EQ(cellule(1, ModeleActions::valeur1), "4x");
    EXPECT_NE(trouver<QLabel>("avis").text().indexOf("Ligne 3"), -1);
    faire("enregistrer");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_NE(messages.front().find("Ligne 3 : « 4x » est refusé"), std::string::npos);
    EXPECT_EQ(sur_le_disque(), depart);
    taper(1, ModeleActions::valeur1, "30", Qt::Key_Return);

    for (int k = 0; k < 2; ++k)
        faire("annuler");
    EXPECT_EQ(texte(), depart) << "tout annulé, les octets du fichier";
}

TEST_F(EditeurTrajet, la_souris_tire_le_depart_et_les_fins) {
    struct Cas {
        const char* quoi;
        QPointF de, a;
        std::size_t rang;
        std::array<float, 3> attendu; ///< to a pixel
    };
    const double fleche = 48 / vue().pixels_par_cm();
    for (const Cas& cas : {Cas{"le départ", {100, 50}, {120, 60}, 0, {120, 60, 90}},
                           Cas{"son cap", {100, 50 + fleche}, {150, 50}, 0, {100, 50, 0}},
                           Cas{"une ligne droite", {100, 130}, {104, 150}, 1, {100, 0, 0}},
                           Cas{"un arc", {130, 160}, {150, 180}, 3, {90, 50, 0}}}) {
        tirer(cas.de, cas.a, true);
        ASSERT_EQ(texte(), depart) << cas.quoi << ", abandonné";
        tirer(cas.de, cas.a);
        EXPECT_NE(texte(), depart) << cas.quoi;
        for (std::size_t i = 0; i < cas.attendu.size(); ++i)
            EXPECT_NEAR(doc()[cas.rang].v[i], cas.attendu[i], 1.5) << cas.quoi;
        faire("annuler");
        ASSERT_EQ(texte(), depart) << cas.quoi << ", annulé";
    }
}

TEST_F(EditeurTrajet, les_lignes_se_copient_se_deplacent_et_se_retournent) {
    choisir(1, 2);
    faire("couper");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Avance, 80 # vers le haut\r\nDROITE,90\r\n");
    choisir(1, 1); // the arc
    faire("coller");
    EXPECT_EQ(texte(), "# plan\r\nInit,100,50,90\r\n\r\nVirAvGa,90,30\r\n"
                       "Avance, 80 # vers le haut\r\nDROITE,90\r\nFIN\r\n");
    faire("monter");
    EXPECT_EQ(doc()[1].cle, "AVANCE");
    QGuiApplication::clipboard()->setText("Avance,10\nAvanc,3\n");
    faire("coller");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages.front().rfind("message: Ligne 2 : ", 0), 0U) << messages.front();
    choisir(0, 0);
    faire("miroir_vertical");
    EXPECT_EQ(doc()[0], (Fiche{"INIT", {float(e().XMax) - 100, 50, 90}, ""}));
    EXPECT_EQ(doc()[2].cle, "GAUCHE");
    faire("inserer_BALISE_DRO");
    EXPECT_EQ(doc()[1].cle, "BALISE DRO");
    trouver<QLineEdit>("chercheAction").setText("rayon");
    QTest::keyClick(&trouver("chercheAction"), Qt::Key_Return);
    ASSERT_EQ(table().selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(
        doc()[static_cast<std::size_t>(table().selectionModel()->selectedRows()[0].row())].cle,
        "VIRAVDR");
    // A number is a whole one: "8" stands in 80 only.
    for (const auto& [nombre, rang] : {std::pair{"80", 2}, {"30", 4}, {"2", 2}, {"8", -1}}) {
        table().clearSelection();
        trouver<QLineEdit>("chercheAction").setText(nombre);
        QTest::keyClick(&trouver("chercheAction"), Qt::Key_Return);
        const auto choisies = table().selectionModel()->selectedRows();
        EXPECT_EQ(choisies.isEmpty() ? -1 : choisies[0].row(), rang) << nombre;
    }
}

// Saved with its generation input, and as another robot's from the other side.
TEST_F(EditeurTrajet, enregistrer_prepare_le_code_et_l_autre_robot) {
    trouver<QCheckBox>("avecGeneration").toggle(); // as an assistive tool does, without a click
    taper(1, ModeleActions::valeur1, "30", Qt::Key_Return);
    faire("enregistrer");
    EXPECT_TRUE(messages.empty()) << "what was opened, and nothing in the way of loading it";
    EXPECT_EQ(e().TrajParam1(1, 1), 30) << "loaded";
    EXPECT_NE(sur_le_disque().find("Avance, 30 # vers"), std::string::npos);
    const std::string generation = dossier.lire("Configuration/Defaut PourGenerer10.ini");
    EXPECT_NE(generation.find("AVANCE:30\r\nGAUCHE:90\r\nAVANCE:"), std::string::npos)
        << generation;

    dialogues["copieTrajet"] = [](QDialog& d) {
        d.findChild<QComboBox*>("cote")->setCurrentIndex(1);
        d.accept();
    };
    reponses = {true}; // replace
    faire("copier_vers");
    EXPECT_NE(sur_le_disque(2).find("GAUCHE,90\r\nVirAvDr,90,30\r\n"), std::string::npos);
    EXPECT_EQ(e().TrajParam1(2, 1), 30) << "chargé";
}

// One act: this trajectory saved, its other side as robot 2's, both as subroutines of the program.
TEST_F(EditeurTrajet, les_deux_cotes_entrent_dans_le_programme_en_un_geste) {
    const auto bas = dossier.ecrire("robot.bas", "PRINCIPAL:\r\n\tReturn\r\n");
    taper(1, ModeleActions::valeur1, "30", Qt::Key_Return);
    QString titre, apercu;
    const auto remplir = [&](QDialog& d, const QString& programme) {
        d.findChild<QComboBox*>("cote")->setCurrentIndex(1);
        d.findChild<QCheckBox*>("deuxFonctions")->setChecked(true);
        d.findChild<QLineEdit*>("programmePicbasic")->setText(programme);
        titre = d.findChild<QLabel*>("titreApercuCopie")->text();
        apercu = d.findChild<QPlainTextEdit*>("apercuCopie")->toPlainText();
        auto& copier = *d.findChild<QPushButton*>("copierTrajet");
        copier.isEnabled() ? copier.click() : d.reject();
    };
    for (const char* refuse : {"", "absent.bas", "Configuration/Defaut Table.ini"}) {
        dialogues["copieTrajet"] = [&](QDialog& d) { remplir(d, refuse); };
        faire("copier_vers");
        EXPECT_TRUE(titre.startsWith("Rien ne peut encore être écrit : ")) << titre.toStdString();
    }
    EXPECT_TRUE(messages.empty());

    const QString fichier = QString::fromStdString(bas.string());
    dialogues["copieTrajet"] = [&](QDialog& d) { remplir(d, fichier); };
    reponses = {true}; // replace
    faire("copier_vers");
    EXPECT_NE(sur_le_disque().find("Avance, 30 # vers"), std::string::npos) << "saved too";
    EXPECT_NE(sur_le_disque(2).find("GAUCHE,90\r\nVirAvDr,90,30\r\n"), std::string::npos);
    const std::string code = dossier.lire("robot.bas");
    const std::string pas = "\tVal_Action=30\r\n\tGosub Action_Avance\r\n\tVal_Action=90\r\n";
    const auto un = code.find(pas + "\tGosub Action_Gauche");
    const auto deux = code.find(pas + "\tGosub Action_Droite");
    EXPECT_LT(un, deux) << code;
    EXPECT_NE(deux, std::string::npos) << code;
    EXPECT_TRUE(apercu.contains("+ TRAJECTOIRE_AUTRE:"));
    EXPECT_EQ(versions_gardees(bas, dossier / "Configuration/Sauvegardes").size(), 1U);

    // The next time everything is proposed again, and what stands there is replaced.
    dialogues["copieTrajet"] = [&](QDialog& d) {
        EXPECT_EQ(d.findChild<QLineEdit*>("programmePicbasic")->text(), fichier);
        EXPECT_EQ(d.findChild<QComboBox*>("cote")->currentIndex(), 1);
        titre = d.findChild<QLabel*>("titreApercuCopie")->text();
        d.findChild<QPushButton*>("copierTrajet")->click();
    };
    reponses = {true};
    faire("copier_vers");
    EXPECT_TRUE(titre.contains("en remplaçant TRAJECTOIRE et TRAJECTOIRE_AUTRE"));
    EXPECT_EQ(dossier.lire("robot.bas"), code);
}

TEST_F(EditeurTrajet, la_difference_aligne_et_rend_une_version) {
    taper(1, ModeleActions::valeur1, "30", Qt::Key_Return);
    std::vector<std::string> lignes;
    dialogues["differenceTrajet"] = [&](QDialog& d) {
        auto* liste = d.findChild<QTreeWidget*>("listeDifferences");
        for (int i = 0; i < liste->topLevelItemCount(); ++i)
            lignes.push_back(
                (liste->topLevelItem(i)->text(0) + liste->topLevelItem(i)->text(1)).toStdString());
        d.findChild<QPushButton*>("reprendreVersion")->click();
    };
    faire("comparer");
    ASSERT_EQ(lignes.size(), 5U);
    EXPECT_EQ(lignes[0], "=Init,100,50,90");
    EXPECT_EQ(lignes[1], "≠Avance, 80 # vers le haut");
    EXPECT_EQ(texte(), depart);
    faire("annuler");
    EXPECT_NE(texte(), depart) << "en un pas qui s'annule";
}

TEST_F(EditeurTrajet, le_programme_finit_pendant_que_l_on_tape) {
    const QModelIndex ou = table().model()->index(1, ModeleActions::valeur1);
    table().setFocus();
    table().setCurrentIndex(ou);
    table().edit(ou);
    auto* ligne = table().viewport()->findChild<QLineEdit*>();
    QTest::keyClick(ligne, Qt::Key_Home);
    QTest::keyClicks(ligne, "12");
    ASSERT_EQ(ligne->text(), "1280") << "where the cursor was put";
    ASSERT_TRUE(ligne->hasFocus());
    sim.reset(); // its controls go one by one
}

// Ends without saving: the next start offers the changes again.
TEST_F(EditeurTrajet, un_arret_brutal_ne_perd_rien) {
    taper(1, ModeleActions::valeur1, "33", Qt::Key_Return);
    sim->ecrire_reprises();
    sim.reset();
    reponses = {true};
    demarrer();
    QCoreApplication::processEvents();
    EXPECT_NE(texte().find("Avance, 33 # vers"), std::string::npos);
    EXPECT_NE(messages.front().find("Un trajet n'a pas été enregistré"), std::string::npos);
    EXPECT_EQ(sur_le_disque(), depart);
}

} // namespace
