// The desktop turns dark while the program runs.
#include "ui/banc.h"

#include <QAction>
#include <QRadioButton>

#include <map>

namespace {

class Theme : public Banc {
protected:
    ~Theme() override { QApplication::setPalette(claire_); }

    void ouvrir_les_fenetres() {
        demarrer();
        for (const char* bouton : {"Command5", "dessinAire", "generer", "Aide"})
            trouver<QPushButton>(bouton).click();
        for (const char* bouton : {"chx_dessinRobot", "Choisir", "visu_gene"})
            trouver<QAbstractButton>(bouton).click();
        for (const char* action : {"menu_analyse", "menu_trajet", "menu_restaurer"})
            sim->findChild<QAction*>(action)->trigger();
        options().show();
    }
    std::map<std::string, QImage> images() {
        // The generator's preview comes a moment later.
        const auto& apercu = trouver<QLabel>("titre_apercu");
        EXPECT_TRUE(QTest::qWaitFor([&] { return apercu.text() != "Aperçu :"; }));
        QCoreApplication::processEvents();
        std::map<std::string, QImage> vues;
        for (QWidget* fenetre : QApplication::topLevelWidgets())
            if (fenetre->isVisible())
                vues[fenetre->objectName().toStdString()] = fenetre->grab().toImage();
        return vues;
    }
    static QPalette sombre() {
        QPalette p(QColor(42, 46, 50));
        p.setColor(QPalette::Base, QColor(27, 30, 32));
        p.setColor(QPalette::PlaceholderText, QColor(190, 190, 190));
        p.setColor(QPalette::Link, QColor(120, 180, 255));
        return p;
    }

private:
    const QPalette claire_ = QApplication::palette();
};

TEST_F(Theme, chaque_fenetre_ouverte_devient_ce_qu_une_neuve_serait) {
    dossier.ecrire("Configuration/depart.bas", "A: ' mot\r\n\tGosub B\r\n\tDelay 5\r\n");
    ouvrir_les_fenetres();
    QApplication::setPalette(sombre());
    const auto changees = images();
    sim.reset();
    ouvrir_les_fenetres();
    const auto neuves = images();
    EXPECT_GE(changees.size(), 10U);
    for (const auto& [nom, image] : neuves)
        EXPECT_TRUE(changees.at(nom) == image) << nom;
}

} // namespace
