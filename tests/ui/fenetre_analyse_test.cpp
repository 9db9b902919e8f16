#include "ui/banc.h"
#include "ui/commun/ligne_texte.h"
#include "ui/verdict/vue_frise.h"

#include <QComboBox>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>

namespace {

/// Two robots at 100 cm/s. Robot 1 goes from 0,01 s to 1,61 s and leaves the table; robot 2 waits
/// from 0,01 s to 3,02 s and turns.
class FenetreDuMatch : public Banc {
protected:
    FenetreDuMatch() {
        dossier.ecrire("Configuration/Tavolmex.ini", "NbRobot, 2\r\n");
        dossier.ecrire("Configuration/Defaut Trajet1.ini", "Init,50,30,0\r\nAvance,160\r\nFIN\r\n");
        dossier.ecrire("Configuration/Defaut Trajet2.ini",
                       "Init,50,200,0\r\nPause,300\r\nDroite,90\r\nFIN\r\n");
        demarrer();
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return !trouver<QAbstractButton>("verdict").text().isEmpty(); }));
        QTest::keyClick(&options(), Qt::Key_F7);
        EXPECT_TRUE(QTest::qWaitFor([this] { return fenetre().isActiveWindow(); }));
    }

    QWidget& fenetre() { return trouver("Analyse"); }
    VueFrise& frise() { return trouver<VueFrise>("frise"); }
    void touche(int code, Qt::KeyboardModifiers touches = {}) {
        QTest::keyClick(&frise(), static_cast<Qt::Key>(code), touches);
    }
    std::string lecture() { return trouver<LigneTexte>("lecture_instant").texte().toStdString(); }
    std::string instant() { return lecture().substr(0, lecture().find(" ·")); }
    /// In a robot's lane, or on the axis.
    QPoint en(std::int32_t temps, int robot = 0) {
        const int y = robot == 0 ? 8 : frise().places().piste(robot).center().y();
        return {static_cast<int>(std::lround(frise().pixel(temps))), y};
    }
    void bouger(QPoint ou, Qt::MouseButton bouton) {
        QMouseEvent e(QEvent::MouseMove, ou, frise().mapToGlobal(ou), Qt::NoButton, bouton,
                      Qt::NoModifier);
        QApplication::sendEvent(&frise(), &e);
    }
    void roulette(QPoint ou, int crans) {
        QWheelEvent e(ou, frise().mapToGlobal(ou), {}, {0, 120 * crans}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&frise(), &e);
    }
    double echelle() { return frise().pixel(100) - frise().pixel(0); }
    QTreeWidgetItem& constat(int groupe, int rang) {
        return *trouver<QTreeWidget>("constats").topLevelItem(groupe)->child(rang);
    }
};

TEST_F(FenetreDuMatch, les_touches_menent_le_curseur_et_les_boutons_aussi) {
    struct Cas {
        int touche;
        Qt::KeyboardModifiers avec;
        const char* bouton;
        const char* instant;
    };
    for (const Cas& c :
         {Cas{Qt::Key_Right, {}, "pas_suivant", "0,02 s"},
          Cas{Qt::Key_Left, {}, "pas_precedent", "0,00 s"},
          Cas{Qt::Key_Right, Qt::ControlModifier, "action_suivante", "1,61 s"},
          Cas{Qt::Key_Left, Qt::ControlModifier, "action_precedente", "0,00 s"},
          Cas{Qt::Key_End, {}, "fin", "90,01 s"}, Cas{Qt::Key_Home, {}, "debut", "0,00 s"}}) {
        touche(c.touche, c.avec);
        auto& bouton = trouver<QToolButton>(c.bouton);
        QTest::mouseClick(&bouton, Qt::LeftButton);
        EXPECT_EQ(instant(), c.instant) << c.bouton;
        EXPECT_FALSE(bouton.accessibleName().isEmpty());
        EXPECT_TRUE(bouton.toolTip().contains("(")) << c.bouton;
    }
    touche(Qt::Key_Right);
    touche(Qt::Key_Down);
    EXPECT_EQ(lecture(),
              "0,01 s · robot 2, action 1 sur 2 : Pause 3,00 s · x = 50,0 cm, y = 200,0 cm, "
              "cap = 0,0°");
}

TEST_F(FenetreDuMatch, la_lecture_va_au_bout_tourne_entre_a_et_b_et_s_arrete_cachee) {
    trouver<QComboBox>("vitesse").setCurrentText("max");
    touche(Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([this] { return instant() == "90,01 s"; }));
    touche(Qt::Key_Right, Qt::ControlModifier);
    touche(Qt::Key_A); // at the end: from there to nowhere
    touche(Qt::Key_Home);
    touche(Qt::Key_A);
    touche(Qt::Key_Right, Qt::ControlModifier);
    touche(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(instant(), "1,61 s");
    touche(Qt::Key_B);
    touche(Qt::Key_Space);
    int retours = 0;
    std::string avant = instant();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        retours += instant() == "0,00 s" && avant != "0,00 s" ? 1 : 0;
        avant = instant();
        return retours > 1;
    })) << instant();
    fenetre().hide();
    const std::string arret = instant();
    QTest::qWait(60);
    EXPECT_EQ(instant(), arret);
}

TEST_F(FenetreDuMatch, la_souris_pose_le_curseur_choisit_zoome_et_deplace) {
    QTest::mouseClick(&frise(), Qt::LeftButton, {}, en(4500));
    const std::string pose = instant();
    EXPECT_NEAR(std::stod(pose), 45, 1);
    QTest::mousePress(&frise(), Qt::LeftButton, {}, en(2000));
    bouger(en(6000), Qt::LeftButton);
    EXPECT_NEAR(std::stod(instant()), 60, 1);
    touche(Qt::Key_Escape);
    EXPECT_EQ(instant(), pose) << "as if it had not been";
    EXPECT_TRUE(fenetre().isVisible());
    QTest::mouseRelease(&frise(), Qt::LeftButton, {}, en(6000));
    QTest::mouseClick(&frise(), Qt::LeftButton, {}, en(200, 2));
    EXPECT_NE(lecture().find("robot 2, action 1"), std::string::npos) << lecture();

    const double toute = echelle();
    const QPoint ici = en(3000);
    roulette(ici, 5);
    EXPECT_GT(echelle(), 2 * toute);
    EXPECT_NEAR(frise().pixel(3000), ici.x(), 1) << "what is under the mouse stays there";
    QTest::mousePress(&frise(), Qt::MiddleButton, {}, ici);
    bouger(ici + QPoint(40, 0), Qt::MiddleButton);
    QTest::mouseRelease(&frise(), Qt::MiddleButton, {}, ici + QPoint(40, 0));
    EXPECT_NEAR(frise().pixel(3000), ici.x() + 40, 1);
    const std::string avant = instant();
    QTest::mouseClick(&frise(), Qt::LeftButton, {}, en(3000, 2));
    QTest::mouseDClick(&frise(), Qt::LeftButton, {}, en(3000, 2));
    EXPECT_EQ(echelle(), toute);
    EXPECT_EQ(instant(), avant) << "the cursor is where it was";
    roulette(en(0), 5);
    QTest::mouseDClick(&frise(), Qt::LeftButton, {}, en(100, 1));
    EXPECT_NE(echelle(), toute) << "on an action: kept for it";
}

TEST_F(FenetreDuMatch, un_constat_ou_une_recherche_mene_a_son_instant) {
    auto& liste = trouver<QTreeWidget>("constats");
    liste.setFocus();
    liste.setCurrentItem(&constat(0, 0));
    QTest::keyClick(&liste, Qt::Key_Return);
    EXPECT_EQ(instant(), constat(0, 0).text(0).toStdString());
    EXPECT_NE(instant(), "0,00 s");
    EXPECT_TRUE(QTest::qWaitFor([&] { return liste.topLevelItem(1)->childCount() == 2; }));
    EXPECT_TRUE(constat(1, 1).text(4).startsWith("Au plus près"));
    liste.scrollToItem(&constat(1, 1));
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                      liste.visualItemRect(&constat(1, 1)).topLeft() + QPoint(30, 4));
    EXPECT_EQ(instant(), constat(1, 1).text(0).toStdString());
    EXPECT_NE(lecture().find("robot 2"), std::string::npos);

    touche(Qt::Key_F, Qt::ControlModifier);
    auto& recherche = trouver<QLineEdit>("recherche");
    EXPECT_TRUE(recherche.hasFocus());
    QTest::keyClicks(&recherche, "droite ba"); // A and B are letters here, Space a blank
    QTest::keyClick(&recherche, Qt::Key_Return);
    EXPECT_TRUE(trouver("introuvable").isVisible());
    recherche.setText("droite");
    QTest::keyClick(&recherche, Qt::Key_Return);
    EXPECT_FALSE(trouver("introuvable").isVisible());
    recherche.setText("rotation");
    QTest::keyClick(&recherche, Qt::Key_Return);
    EXPECT_NE(lecture().find("3,03 s · robot 2, action 2 sur 2 : Droite 90°"), std::string::npos)
        << lecture();
    QTest::keyClick(&recherche, Qt::Key_Escape);
    EXPECT_TRUE(fenetre().isVisible()) << "out of the search first";
    touche(Qt::Key_Escape);
    EXPECT_FALSE(fenetre().isVisible());
}

TEST_F(FenetreDuMatch, un_autre_calcul_garde_instant_et_echelle_une_course_se_signale) {
    touche(Qt::Key_Right, Qt::ControlModifier);
    touche(Qt::Key_Right, Qt::ControlModifier);
    roulette(en(100), 8);
    const double avant = echelle();
    dossier.ecrire("Configuration/Defaut Trajet1.ini", "Init,50,30,0\r\nAvance,190\r\nFIN\r\n");
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return lecture() == "1,61 s · robot 1, action 1 sur 1 : Avance 190 cm · x = 210,0 cm, "
                            "y = 30,0 cm, cap = 0,0°";
    })) << lecture();
    EXPECT_EQ(echelle(), avant);
    EXPECT_FALSE(trouver("course").isVisible());
    cliquer("Command1");
    EXPECT_TRUE(trouver("course").isVisible());
    seance().moteur().Fin_Jeu();
    EXPECT_FALSE(trouver("course").isVisible());
}

// A double click on a segment is a wish to change that action.
TEST_F(FenetreDuMatch, un_segment_ouvre_son_action_dans_l_editeur) {
    QTest::mouseDClick(&frise(), Qt::LeftButton, {}, en(303, 2));
    QCoreApplication::processEvents();
    auto& editeur = trouver("dessinTrajet");
    EXPECT_TRUE(editeur.isVisible());
    EXPECT_EQ(trouver<QComboBox>("robot").currentText(), "2");
    const auto lignes = trouver<QTableView>("tableActions").selectionModel()->selectedRows(1);
    ASSERT_EQ(lignes.size(), 1);
    EXPECT_EQ(lignes.front().data().toString(), "Droite");
}

} // namespace
