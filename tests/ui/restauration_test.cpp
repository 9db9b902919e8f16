#include "base/fichiers.h"
#include "ui/banc.h"

#include <QComboBox>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTreeWidget>

namespace {

const std::string ancien = "Init,10,20,0\r\nAvance,50\r\nFIN\r\n";
const std::string present = "Init,60,70,90\r\nAvance,50\r\nFIN\r\n";

class FenetreRestauration : public Banc {
protected:
    FenetreRestauration() {
        ecrire("Defaut Trajet1.ini", ancien);
        copie_ = garder("Defaut Trajet1.ini");
        ecrire("Defaut Trajet1.ini", present);
        ecrire("Finale Trajet1.ini", "autre projet");
        garder("Finale Trajet1.ini");
        demarrer();
    }
    void ecrire(const std::string& nom, const std::string& octets) {
        dossier.ecrire("Configuration/" + nom, octets);
    }
    std::filesystem::path garder(const std::string& nom) {
        return sauvegarder_version(dossier / "Configuration" / nom,
                                   dossier / "Configuration/Sauvegardes");
    }
    /// From the table's context menu, as a student finds it.
    void ouvrir() {
        QTimer::singleShot(0, [this] {
            auto& menu = trouver<QMenu>("menu_table");
            menu.setActiveAction(sim->findChild<QAction*>("menu_restaurer"));
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        emit trouver("Table").customContextMenuRequested({5, 5});
        fenetre = &trouver("Restauration");
        ASSERT_TRUE(fenetre->isVisible());
    }
    template <typename Controle>
    Controle& dans(const char* nom) {
        return *fenetre->findChild<Controle*>(nom);
    }

    QWidget* fenetre = nullptr;
    std::filesystem::path copie_;
};

TEST_F(FenetreRestauration, une_version_revient_et_le_projet_est_relu) {
    ouvrir();
    auto& versions = dans<QTreeWidget>("versions");
    ASSERT_EQ(versions.topLevelItemCount(), 1) << "another project's copies are left out";
    EXPECT_EQ(versions.topLevelItem(0)->text(0), "Trajet du robot 1 – Defaut Trajet1.ini");
    EXPECT_EQ(versions.topLevelItem(0)->text(2), "30 octets");
    EXPECT_EQ(dans<QPlainTextEdit>("apercu").toPlainText(),
              "- Init,60,70,90\n+ Init,10,20,0\n  Avance,50\n  FIN\n");
    EXPECT_EQ(e().XRobot(1), 60);

    dans<QPushButton>("restaurer").click();
    EXPECT_EQ(dossier.lire("Configuration/Defaut Trajet1.ini"), ancien);
    EXPECT_EQ(versions.topLevelItemCount(), 2) << "the one that was replaced is kept";
    EXPECT_FALSE(dans<QPushButton>("restaurer").isEnabled()) << "it stands there now";
    EXPECT_TRUE(dans<QLabel>("compte_rendu").text().contains("Defaut Trajet1.ini."));
    EXPECT_TRUE(QTest::qWaitFor([&] { return e().XRobot(1) == 10; })) << "read again by itself";

    versions.setCurrentItem(versions.topLevelItem(0));
    EXPECT_TRUE(
        dans<QPlainTextEdit>("apercu").toPlainText().startsWith("- Init,10,20,0\n+ Init,6"));
    dans<QPushButton>("restaurer").click();
    EXPECT_EQ(dossier.lire("Configuration/Defaut Trajet1.ini"), present) << "and back";
    EXPECT_EQ(messages, std::vector<std::string>{});
}

TEST_F(FenetreRestauration, le_filtre_ne_montre_qu_un_fichier_et_la_liste_suit_le_dossier) {
    ouvrir();
    auto& versions = dans<QTreeWidget>("versions");
    ecrire("robot.bas", "un");
    garder("robot.bas");
    ASSERT_TRUE(QTest::qWaitFor([&] { return versions.topLevelItemCount() == 2; }));
    auto& filtre = dans<QComboBox>("filtre");
    ASSERT_EQ(filtre.count(), 3);
    EXPECT_EQ(filtre.itemText(1), "Programme PICBASIC – robot.bas");
    filtre.setCurrentIndex(1);
    ASSERT_EQ(versions.topLevelItemCount(), 1);
    EXPECT_FALSE(dans<QPushButton>("restaurer").isEnabled()) << "the same as the file";
    std::filesystem::remove(dossier / "Configuration/robot.bas");
    ASSERT_TRUE(QTest::qWaitFor([&] { return dans<QPushButton>("restaurer").isEnabled(); }));
    dans<QPushButton>("restaurer").click();
    EXPECT_EQ(dossier.lire("Configuration/robot.bas"), "un");
}

TEST_F(FenetreRestauration, un_refus_du_disque_se_dit_et_rien_ne_change) {
    ouvrir();
    std::filesystem::remove(copie_);
    QTest::mouseClick(&dans<QPushButton>("restaurer"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !messages.empty(); }));
    EXPECT_TRUE(messages.front().starts_with("message: Erreur d'exécution : ")) << messages.front();
    EXPECT_EQ(dossier.lire("Configuration/Defaut Trajet1.ini"), present);
    QTest::keyClick(fenetre, Qt::Key_Escape);
    EXPECT_FALSE(fenetre->isVisible());
}

} // namespace
