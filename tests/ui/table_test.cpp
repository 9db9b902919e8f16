#include "draw/table.h"
#include "outils/fausses_fenetres.h"
#include "sim/secours.h"
#include "ui/principale/table.h"

#include <QImage>
#include <QPaintEvent>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

namespace {

class TableTest : public testing::Test {
protected:
    TableTest() {
        Init_Table_Old(*e);
        Init_Robot_Old(*e);
        table.Echelle = 30;
        e->XRobot(1) = 100;
        e->YRobot(1) = 100;
        // 210 x 330 cm on 420 x 660 pixels: 2 a cm
        table.resize(420, 660);
        table.show();
        dessiner();
        table.grab(); // the second painting: from now on pictures are kept
    }
    void dessiner() {
        table.Dessine_Table();
        table.Dessine_Robot();
        QTest::qWait(1);
    }
    QColor pixel(double x, double y) {
        return table.grab().toImage().pixelColor(table.repere().point(x, y).toPoint());
    }

    std::unique_ptr<Etat> e = std::make_unique<Etat>();
    FaussesFenetres f;
    Table table{*e, f, nullptr};
};

TEST_F(TableTest, l_image_gardee_est_celle_de_la_premiere_peinture) {
    e->Lignes(1) = {0, 0, 200, 320};
    e->NbLignes = 1;
    e->CapRobot(1) = 30;
    Table neuve(*e, f, nullptr);
    neuve.resize(333, 555);
    neuve.Dessine_Table();
    neuve.Dessine_Robot();
    const QImage directe = neuve.grab().toImage();
    EXPECT_EQ(directe, neuve.grab().toImage());
    neuve.Dessine_Robot(); // erased and drawn again at the same place
    EXPECT_EQ(directe, neuve.grab().toImage());
}

// What stands on the screen after ticks that repainted robots alone is what a whole painting gives.
TEST_F(TableTest, des_ticks_ne_laissent_ni_trace_ni_trou) {
    e->NbRobot = 9;
    e->en_course = true;
    for (const bool lisibles : {false, true}) {
        table.montrer_lisibles(lisibles);
        for (int tick = 0; tick < 12; ++tick) {
            for (int i = 1; i <= 9; ++i) { // some meet, some leave the picture
                e->XRobot(i) = static_cast<float>(20 * i + tick * (i % 3 - 1) * 4);
                e->YRobot(i) = static_cast<float>(35 * i + tick);
                e->CapRobot(i) = static_cast<float>(tick * 5 * i);
            }
            dessiner();
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(table.screen()->grabWindow(table.winId()).toImage(), table.grab().toImage());
    }
}

// Keeps what the widget is asked to repaint.
class Espion : public QObject {
public:
    QRegion region;
    int nombre = 0;
    bool eventFilter(QObject*, QEvent* evenement) override {
        if (evenement->type() == QEvent::Paint) {
            region |= static_cast<QPaintEvent*>(evenement)->region();
            ++nombre;
        }
        return false;
    }
};

TEST_F(TableTest, montre_le_fond_la_bordure_et_le_robot) {
    EXPECT_EQ(pixel(50, 50), QColor(0, 128, 0));
    EXPECT_EQ(pixel(-2, 160), QColor(255, 0, 0));
    EXPECT_EQ(pixel(202, 322), QColor(255, 0, 0));
    // the right side of the outline lies about 10 cm below the reference point
    const QImage image = table.grab().toImage();
    const QPoint p = table.repere().point(100, 90).toPoint();
    bool cyan = false;
    for (int dy = -3; dy <= 3; ++dy)
        cyan = cyan || image.pixelColor(p.x(), p.y() + dy).blue() > 150;
    EXPECT_TRUE(cyan);
}

TEST_F(TableTest, un_tick_ne_repeint_que_le_robot_qui_part_et_qui_arrive) {
    Espion espion;
    table.installEventFilter(&espion);
    e->XRobot(1) = 150;
    dessiner();
    EXPECT_EQ(espion.nombre, 1);
    const QPoint quitte = table.repere().point(100, 90).toPoint();
    const QPoint couvre = table.repere().point(150, 90).toPoint();
    EXPECT_TRUE(espion.region.contains(quitte));
    EXPECT_TRUE(espion.region.contains(couvre));
    EXPECT_FALSE(espion.region.contains(table.repere().point(100, 200).toPoint()));
    EXPECT_EQ(e->ZoneRedessin.xmax, 171); // the engine's: 150 + 22.4 cos 0.46, and one more
}

TEST_F(TableTest, les_robots_eloignes_ne_font_pas_repeindre_l_espace_entre_eux) {
    e->NbRobot = 2;
    e->XRobot(2) = 30;
    e->YRobot(2) = 300;
    dessiner();
    Espion espion;
    table.installEventFilter(&espion);
    dessiner();
    EXPECT_FALSE(espion.region.contains(table.repere().point(65, 200).toPoint()));
}

TEST_F(TableTest, le_fond_ne_se_repeint_que_si_la_table_change) {
    e->Zones(1) = {'O', 40, 40, 60, 60};
    e->NbZones = 1;
    dessiner();
    EXPECT_EQ(pixel(50, 50), QColor(0, 128, 0)); // its version has not grown
    ++e->version_table;
    dessiner();
    EXPECT_EQ(pixel(50, 50), QColor(255, 0, 0));
    e->ZoneRedessin = {0, 1, 0, 1};
    table.resize(210, 330); // the whole table, whatever the region to redraw
    EXPECT_EQ(pixel(50, 50), QColor(255, 0, 0));
    EXPECT_EQ(e->ZoneRedessin.xmax, 1);
}

TEST_F(TableTest, une_erreur_de_dessin_garde_l_image_et_le_dit) {
    e->Ellipses(1) = {10, 10, 10, 20};
    e->NbEllipses = 1;
    ++e->version_table;
    table.Dessine_Table();
    EXPECT_TRUE(f.terminee);
    EXPECT_EQ(f.messages.size(), 1U);
    EXPECT_EQ(pixel(50, 50), QColor(0, 128, 0));
}

TEST_F(TableTest, une_pose_qui_n_est_pas_un_nombre_ne_fait_rien_tomber) {
    e->XRobot(1) = std::numeric_limits<float>::quiet_NaN();
    dessiner();
    EXPECT_EQ(pixel(50, 50), QColor(0, 128, 0));
}

} // namespace
