#include "ui/aide/aide.h"

#include "ui/aide/manuel.h"
#include "ui/banc.h"
#include "ui/principale/editeurs.h"

#include <QDir>
#include <QTextBlock>

namespace {

class Manuel : public Banc {
protected:
    Aide& aide() { return trouver<Aide>("Aide"); }
    QString titre(QWidget& fenetre) {
        return fenetre.findChild<QTextBrowser*>("page")->document()->begin().text();
    }
};

TEST_F(Manuel, chaque_page_existe_et_ses_liens_menent_a_une_page) {
    const QRegularExpression lien("\\]\\(([^)]*)\\)");
    QStringList fichiers;
    for (const PageManuel& page : pages_du_manuel())
        fichiers << QString(page.fichier) + ".md";
    QStringList presents = QDir(":/manuel").entryList(QDir::Files);
    EXPECT_EQ(presents.size(), fichiers.size());
    for (const PageManuel& page : pages_du_manuel()) {
        const QString texte = texte_de(page);
        EXPECT_TRUE(texte.startsWith("# ")) << page.fichier;
        EXPECT_FALSE(texte.contains("<")) << page.fichier; // would be taken for markup
        int images = 0;
        for (const auto& trouve : lien.globalMatch(texte)) {
            const QString cible = trouve.captured(1);
            if (cible.startsWith("images/") && ++images > 0)
                EXPECT_FALSE(QImage(":/manuel/" + cible).isNull()) << cible.toStdString();
            else
                EXPECT_TRUE(fichiers.contains(cible)) << page.fichier << cible.toStdString();
        }
        EXPECT_EQ(images, 2) << page.fichier;
    }
}

TEST_F(Manuel, chaque_fenetre_ouvre_sa_page) {
    demarrer();
    cliquer("Aide");
    EXPECT_TRUE(aide().isVisible());
    EXPECT_EQ(titre(aide()), "Les options et les projets");
    for (const auto& [controle, page] : {std::pair{"Table", "La fenêtre principale"},
                                         {"Command1", "Les options et les projets"}}) {
        aide().hide();
        QTest::keyClick(&trouver(controle), Qt::Key_F1);
        EXPECT_TRUE(aide().isVisible()) << controle;
        EXPECT_EQ(titre(aide()).toStdString(), page);
    }
    cliquer("Command5");
    QTest::keyClick(&trouver("Text1"), Qt::Key_F1);
    EXPECT_EQ(titre(aide()), "La télécommande");
    trouver<QAbstractButton>("verdict").click();
    QTest::keyClick(&trouver("frise"), Qt::Key_F1);
    EXPECT_EQ(titre(aide()), "L'analyse du match");
    cliquer("generer");
    trouver<QPushButton>("Choisir").click();
    trouver<QPushButton>("visu_gene").click(); // no such file: said, the window opens all the same
    for (const char* fenetre : {"Dialog", "OuvGeneration", "Visualiser"}) {
        trouver<QPushButton>("Aide").click();
        QTest::keyClick(&trouver(fenetre), Qt::Key_F1);
        EXPECT_EQ(titre(aide()), "La génération PICBASIC") << fenetre;
    }
    cliquer("dessinAire");
    trouver<QRadioButton>("chx_dessinRobot").setChecked(true);
    for (const char* fenetre :
         {"Foutil", "dessinTable", "dessinRobot", "vueTable", "apercuRobot"}) {
        trouver<QPushButton>("Aide").click();
        QTest::keyClick(&trouver(fenetre), Qt::Key_F1);
        EXPECT_EQ(titre(aide()), "Les éditeurs de table et de robot") << fenetre;
    }
    QTest::keyClick(&aide(), Qt::Key_F1); // stays
    EXPECT_EQ(titre(aide()), "Les éditeurs de table et de robot");
    QTest::keyClick(&aide(), Qt::Key_Escape);
    EXPECT_FALSE(aide().isVisible());
}

TEST_F(Manuel, une_fenetre_modale_a_son_aide_a_elle) {
    demarrer();
    const auto demander_l_aide = [this](const char* dialogue, const char* controle,
                                        const char* page) {
        dialogues[dialogue] = [this, controle, page](QDialog& fenetre) {
            QTest::keyClick(fenetre.findChild<QWidget*>(controle), Qt::Key_F1);
            auto* locale = fenetre.findChild<QWidget*>("Aide");
            ASSERT_NE(locale, nullptr);
            EXPECT_EQ(titre(*locale), page);
            QTest::keyClick(&fenetre, Qt::Key_Escape);
        };
    };
    demander_l_aide("Ouvrir", "Combo1", "Les options et les projets");
    cliquer("Command2");
    cliquer("dessinAire");
    demander_l_aide("nouveauProjet", "nomProjet", "Les éditeurs de table et de robot");
    trouver<dessinTable>("dessinTable").enregistrer_sous();
}

TEST_F(Manuel, les_pages_se_suivent_et_la_recherche_les_trie) {
    demarrer();
    cliquer("Aide");
    auto& sommaire = trouver<QListWidget>("sommaire");
    auto& page = trouver<QTextBrowser>("page");
    const int depart = sommaire.currentRow();
    sommaire.setCurrentRow(depart + 1);
    EXPECT_EQ(titre(aide()), "La télécommande");
    QTest::mouseClick(&trouver("precedent"), Qt::LeftButton);
    EXPECT_EQ(sommaire.currentRow(), depart);
    QTest::mouseClick(&trouver("suivante"), Qt::LeftButton);
    EXPECT_EQ(sommaire.currentRow(), depart + 1);

    auto& recherche = trouver<QLineEdit>("recherche");
    recherche.setText("DEFAUTGENERE"); // in one page only
    int visibles = 0;
    for (int i = 0; i < sommaire.count(); ++i)
        visibles += sommaire.item(i)->isHidden() ? 0 : 1;
    EXPECT_EQ(visibles, 1);
    QTest::keyClick(&recherche, Qt::Key_Return);
    EXPECT_EQ(titre(aide()), "La génération PICBASIC");
    EXPECT_EQ(page.textCursor().selectedText(), "DefautGENERE");
    recherche.setText("telecommande");
    EXPECT_FALSE(page.extraSelections().isEmpty());
    EXPECT_EQ(page.extraSelections().first().cursor.selectedText(), "télécommande");
    recherche.clear();
    EXPECT_TRUE(page.extraSelections().isEmpty());
}

} // namespace
