#include "ui/banc_telecommande.h"
#include "ui/principale/table.h"

#include <QAction>
#include <QClipboard>

namespace {

const QColor cyan(0, 255, 255);
const QColor vert(0, 128, 0);

// Robot 1 goes along the lower edge of a bare table, from (30, 30) to (180, 30); its outline is
// 20 cm wide.
class SurLaTable : public ConsoleFenetre {
protected:
    SurLaTable() {
        dossier.ecrire("Configuration/Defaut Table.ini", "T,0,0,200,320\r\n");
        dossier.ecrire("Configuration/Defaut Trajet1.ini", "Init,30,30,0\r\nAvance,150\r\nFIN\r\n");
    }
    Table& table() { return trouver<Table>("Table"); }
    QPoint en(double x, double y) { return table().repere().point(x, y).toPoint(); }
    /// Its colour beside the tick marks; the logo is a ghost there at most.
    QColor pixel(double x, double y) {
        const QImage image = table().grab().toImage();
        return image.pixelColor(en(x, y));
    }
    void touche(Qt::Key touche) { QTest::keyClick(&options(), touche); }
    void glisser(QPointF a, QPointF b, bool echap = false) {
        QTest::mousePress(&table(), Qt::LeftButton, {}, en(a.x(), a.y()));
        for (const QPointF& p : {(a + b) / 2, b}) {
            QMouseEvent e(QEvent::MouseMove, en(p.x(), p.y()),
                          table().mapToGlobal(en(p.x(), p.y())), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&table(), &e);
        }
        if (echap)
            QTest::keyClick(&table(), Qt::Key_Escape);
        QTest::mouseRelease(&table(), Qt::LeftButton, {}, en(b.x(), b.y()));
    }
    std::string depart() {
        std::string texte;
        for (const char* champ : {"TextX", "TextY", "TextA"})
            texte += dans_console<QLineEdit>(champ).text().toStdString() + " ";
        return texte;
    }
};

TEST_F(SurLaTable, t_montre_et_cache_la_trace_au_repos_et_en_course_et_s_en_souvient) {
    demarrer();
    ASSERT_TRUE(QTest::qWaitFor([this] { return pixel(84, 30) == cyan; }));
    EXPECT_EQ(pixel(84, 37), vert);
    sim->findChild<QAction*>("trace_bande")->trigger();
    EXPECT_NE(pixel(84, 37), vert);
    seance().moteur().Run_Jeu();
    EXPECT_EQ(pixel(84, 30), vert) << "off while running";
    touche(Qt::Key_T);
    EXPECT_EQ(pixel(84, 30), cyan);
    touche(Qt::Key_T);
    seance().moteur().Fin_Jeu();
    EXPECT_EQ(pixel(84, 30), cyan);
    touche(Qt::Key_T);
    EXPECT_EQ(pixel(84, 30), vert);
    demarrer();
    QTest::qWait(100);
    EXPECT_EQ(pixel(84, 30), vert);
    EXPECT_FALSE(sim->findChild<QAction*>("trace")->isChecked());
}

TEST_F(SurLaTable, les_robots_sont_lisibles_et_ne_laissent_rien_derriere_eux) {
    demarrer();
    touche(Qt::Key_T);
    const auto rempli = [this](double x, double y) { return pixel(x, y) != vert; };
    EXPECT_TRUE(QTest::qWaitFor([&] { return rempli(35, 36); }));
    seance().moteur().Run_Jeu();
    for (int tick = 0; tick < 120; ++tick)
        seance().moteur().Timer_Timer();
    EXPECT_FALSE(rempli(35, 36));
    bool repere = false; // the mark's outline crosses the robot's middle line somewhere
    for (int k = 0; k < 120; ++k)
        repere = repere || (rempli(145 + k / 4.0, 30) && pixel(145 + k / 4.0, 30) != cyan);
    EXPECT_TRUE(repere) << "the mark at the front";
    seance().moteur().Fin_Jeu();
    EXPECT_TRUE(rempli(155, 36));
    sim->findChild<QAction*>("robots_lisibles")->trigger();
    EXPECT_FALSE(rempli(155, 36));
}

TEST_F(SurLaTable, la_place_du_pointeur_se_lit_et_se_copie_et_le_logo_s_efface) {
    demarrer();
    const auto fantome = [this] { // the mouse goes through a ghost
        return trouver("logo").testAttribute(Qt::WA_TransparentForMouseEvents);
    };
    const auto& verdict = trouver<QAbstractButton>("verdict"); // which takes the lines' place
    EXPECT_TRUE(QTest::qWaitFor([&] { return !verdict.text().isEmpty(); }));
    EXPECT_TRUE(fantome()) << "the trace is shown";
    touche(Qt::Key_T);
    EXPECT_FALSE(fantome());
    QTest::mouseMove(&table(), en(120, 80));
    const auto lue = [this] { return trouver("position_pointeur").accessibleDescription(); };
    EXPECT_EQ(lue(), "x = 120 cm, y = 80 cm");
    EXPECT_TRUE(fantome());
    touche(Qt::Key_C);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "120 ; 80");
    EXPECT_EQ(trouver<LigneTexte>("Mess").texte(), "Position copiée : 120 ; 80");
    QEvent sortie(QEvent::Leave);
    QApplication::sendEvent(&table(), &sortie);
    EXPECT_EQ(lue(), "");
    EXPECT_FALSE(fantome());
}

TEST_F(SurLaTable, tirer_propose_un_depart_a_la_telecommande) {
    ouvrir();
    const std::string avant = depart();
    glisser({60, 40}, {60, 90}, true);
    EXPECT_EQ(depart(), avant) << "Escape gives it up";
    EXPECT_TRUE(console->isVisible());
    glisser({60, 40}, {60, 90});
    EXPECT_EQ(depart(), "60 40 90 ");
    EXPECT_TRUE(console->isVisible());
    commencer();
    EXPECT_EQ(e().XRobot(1), 60);
    auto& pointeur = trouver("position_pointeur");
    EXPECT_TRUE(QTest::qWaitFor([&] { return pointeur.isVisible(); }));
    glisser({150, 50}, {120, 50});
    EXPECT_EQ(depart(), "60 40 90 ");
    EXPECT_EQ(messages.size(), 1U) << "asked, and the answer was no";
    reponses = {true};
    glisser({150, 50}, {120, 50});
    EXPECT_EQ(depart(), "150 50 180 ");
    glisser({150, 50}, {151, 50}); // no further than a click slips
    EXPECT_FALSE(console->isVisible());
}

TEST_F(SurLaTable, le_depart_tire_sur_une_table_tournee_est_celui_que_l_on_voit) {
    demarrer();
    cocher("Check3", true);
    ouvrir();
    glisser({200, 40}, {250, 40});
    commencer();
    EXPECT_EQ(e().XRobot(1), 200);
    EXPECT_EQ(e().YRobot(1), 40);
    EXPECT_EQ(std::fmod(e().CapRobot(1) + 360, 360), 0);
}

} // namespace
