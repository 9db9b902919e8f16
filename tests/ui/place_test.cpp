#include "ui/commun/place.h"

#include "ui/banc.h"

#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

struct FenetrePlacee : QWidget {
    FenetrePlacee() {
        setObjectName("Essai");
        resize(300, 200);
        retenir_place(*this);
    }
};

TEST(Place, la_place_choisie_revient_celle_du_programme_non) {
    {
        FenetrePlacee f;
        proposer_place(f, {100, 80});
        f.show();
        EXPECT_EQ(f.pos(), QPoint(100, 80));
    }
    {
        FenetrePlacee f; // left where the program had put it: the program puts it anew
        proposer_place(f, {200, 90});
        f.show();
        EXPECT_EQ(f.pos(), QPoint(200, 90));
        f.move(310, 150);
        proposer_place(f, {10, 10}); // the user has moved it
        EXPECT_EQ(f.pos(), QPoint(310, 150));
        f.resize(350, 250);
        f.hide();
        proposer_place(f, {10, 10}); // nor when it is shown again
        EXPECT_EQ(f.pos(), QPoint(310, 150));
    }
    FenetrePlacee f;
    proposer_place(f, {100, 80});
    f.show();
    EXPECT_EQ(f.pos(), QPoint(310, 150));
    EXPECT_EQ(f.size(), QSize(350, 250));
}

TEST(Place, un_cadre_est_ramene_entier_dans_son_ecran) {
    const QRect ecran(100, 30, 853, 450);
    struct Cas {
        QRect cadre, attendu;
    };
    for (const Cas& c : {Cas{{200, 100, 300, 200}, {200, 100, 300, 200}},
                         Cas{{900, 400, 300, 200}, {653, 280, 300, 200}},
                         Cas{{-50, -20, 300, 200}, {100, 30, 300, 200}},
                         Cas{{300, 200, 1500, 460}, {100, 30, 853, 450}}})
        EXPECT_EQ(dans_l_ecran(c.cadre, ecran), c.attendu) << c.cadre.left();
}

TEST(Place, meme_trop_grande_ou_sans_place_retenue_elle_s_ouvre_entiere) {
    const QRect ecran = QGuiApplication::primaryScreen()->availableGeometry();
    QSettings().clear();
    for (const QRect& r : {QRect(ecran.right() - 20, ecran.bottom() - 20, 300, 200),
                           QRect(0, 0, 3 * ecran.width(), 2 * ecran.height())}) {
        FenetrePlacee f;
        f.resize(r.size());
        f.move(r.topLeft());
        f.show();
        EXPECT_TRUE(ecran.contains(f.frameGeometry())) << r.left();
    }
    QSettings().clear();
}

TEST(Place, des_controles_plus_grands_que_l_ecran_defilent) {
    QSettings().clear();
    const QRect ecran = QGuiApplication::primaryScreen()->availableGeometry();
    FenetrePlacee f;
    auto* colonne = new QVBoxLayout(&f);
    for (int i = 0; i < 40; ++i)
        colonne->addWidget(new QPushButton(QString("bouton %1").arg(i)));
    const auto boutons = f.findChildren<QPushButton*>();
    f.show();
    EXPECT_TRUE(ecran.contains(f.frameGeometry()));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&f));
    boutons.at(38)->setFocus(); // by keys too
    QTest::keyClick(boutons.at(38), Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !boutons.last()->visibleRegion().isEmpty(); }));
    f.hide();
    f.show(); // once
    EXPECT_EQ(f.findChildren<QScrollArea*>().size(), 1);
    QSettings().clear();
}

TEST(Place, revient_sur_un_ecran_qui_existe) {
    {
        FenetrePlacee f;
        f.show();
        f.move(90000, 90000);
    }
    FenetrePlacee f;
    f.show();
    EXPECT_TRUE(f.screen()->geometry().intersects(f.frameGeometry()));
}

} // namespace
