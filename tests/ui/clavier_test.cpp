// What the mouse does in a drawing, by keys and for assistive tools.
#include "ui/banc.h"
#include "ui/commun/vue_echelle.h"
#include "ui/editeurs/dessin_table.h"

#include <QAccessible>
#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>

namespace {

class Clavier : public Banc {
protected:
    Clavier() {
        demarrer();
        cliquer("dessinAire");
        trouver<QRadioButton>("chx_dessinRobot").setChecked(true);
        trouver<QTabWidget>("onglets").setCurrentIndex(2);
        for (const char* action : {"menu_trajet", "menu_analyse"})
            sim->findChild<QAction*>(action)->trigger();
    }
    static void touche(QWidget& vue, int touche, Qt::KeyboardModifiers avec = {}) {
        QTest::keyClick(&vue, static_cast<Qt::Key>(touche), avec);
    }
    static void menu_au_clavier(QWidget& vue) {
        const QPoint milieu = vue.rect().center();
        QContextMenuEvent demande(QContextMenuEvent::Keyboard, milieu, vue.mapToGlobal(milieu));
        QApplication::sendEvent(&vue, &demande);
    }
};

TEST_F(Clavier, chaque_dessin_grossit_glisse_et_revient) {
    constexpr auto glisser = Qt::ControlModifier | Qt::ShiftModifier;
    for (const char* nom : {"vueTable", "vueRobot", "apercuRobot", "vueTrajet", "vueInstant"}) {
        SCOPED_TRACE(nom);
        auto& vue = trouver<VueEchelle>(nom);
        vue.window()->activateWindow();
        vue.setFocus();
        const double echelle = vue.pixels_par_cm();
        touche(vue, Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_GT(vue.pixels_par_cm(), echelle);
        touche(vue, Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_NEAR(vue.pixels_par_cm(), echelle, 1e-9);
        const QPointF coin = vue.en_cm({0, 0});
        touche(vue, Qt::Key_Right, glisser);
        touche(vue, Qt::Key_Up, glisser);
        EXPECT_GT(vue.en_cm({0, 0}).x(), coin.x()) << "what lies to the right comes";
        EXPECT_GT(vue.en_cm({0, 0}).y(), coin.y());
        touche(vue, Qt::Key_0, Qt::ControlModifier);
        EXPECT_NEAR(vue.en_cm({0, 0}).x(), coin.x(), 1e-6);
    }
    auto& vue = trouver<VueEchelle>("vueTable"); // where no window has these for itself
    const double echelle = vue.pixels_par_cm();
    touche(vue, Qt::Key_Plus);
    touche(vue, Qt::Key_Plus);
    touche(vue, Qt::Key_Minus);
    EXPECT_GT(vue.pixels_par_cm(), echelle);
}

TEST_F(Clavier, un_objet_se_pose_se_deplace_et_propose_son_menu) {
    auto& editeur = trouver<dessinTable>("dessinTable");
    auto& vue = trouver<VueEchelle>("vueTable");
    trouver<QRadioButton>("chx_dessinTable").setChecked(true);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editeur));
    const std::size_t avant = editeur.document().nombre();
    trouver<QAbstractButton>("outil_L").click();
    touche(vue, Qt::Key_Return);
    touche(vue, Qt::Key_Return); // the tool is laid down: nothing more
    ASSERT_EQ(editeur.document().nombre(), avant + 1);
    EXPECT_EQ(vue.accessibleDescription(), "Un objet est choisi");
    const auto x = [&] { return trouver<QDoubleSpinBox>("X").value(); };
    const double pose = x();
    vue.setFocus();
    touche(vue, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(x(), pose + 10);
    menu_au_clavier(vue);
    auto& menu = *editeur.findChild<QMenu*>("contextuel");
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    EXPECT_EQ(x(), pose + 10) << "still chosen";
}

TEST_F(Clavier, la_frise_dit_ou_elle_est_et_ouvre_l_action) {
    auto& frise = trouver("frise");
    ASSERT_TRUE(QTest::qWaitForWindowActive(frise.window()));
    frise.setFocus();
    auto& a = *QAccessible::queryAccessibleInterface(&frise);
    EXPECT_EQ(a.role(), QAccessible::Slider);
    auto& valeur = *a.valueInterface();
    valeur.setCurrentValue(2.5);
    EXPECT_EQ(valeur.currentValue().toDouble(), 2.5);
    EXPECT_TRUE(a.text(QAccessible::Value).startsWith("2,50 s"))
        << a.text(QAccessible::Value).toStdString();
    touche(frise, Qt::Key_Home);
    EXPECT_EQ(valeur.currentValue().toDouble(), 0);
    EXPECT_NEAR(valeur.maximumValue().toDouble(), 90, 0.05);
    touche(frise, Qt::Key_Right, Qt::ControlModifier); // an action's start
    bool menu = false;
    QTimer::singleShot(0, [&] { // it waits for its answer
        menu = QApplication::activePopupWidget() != nullptr;
        if (menu)
            QApplication::activePopupWidget()->close();
    });
    menu_au_clavier(frise);
    EXPECT_TRUE(menu);
    touche(frise, Qt::Key_Return);
    auto& trajet = trouver("dessinTrajet");
    EXPECT_TRUE(QTest::qWaitForWindowActive(&trajet));
    EXPECT_TRUE(trajet.findChild<QTableView*>("tableActions")->selectionModel()->hasSelection());
}

} // namespace
