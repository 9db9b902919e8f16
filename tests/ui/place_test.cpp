#include "ui/commun/place.h"

#include "ui/banc.h"
#include "ui/commun/ligne_texte.h"

#include <QPushButton>
#include <QRadioButton>
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
    const QRect ecran = QGuiApplication::primaryScreen()->availableGeometry();
    for (const bool plus_tard : {false, true}) { // in a window of fixed size
        QSettings().clear();
        FenetrePlacee f;
        auto* groupe = new QWidget;
        auto* colonne = new QVBoxLayout(groupe);
        for (int i = 0; i < 40; ++i)
            colonne->addWidget(new QPushButton(QString("bouton %1").arg(i)));
        auto* contenu = new QVBoxLayout(&f);
        contenu->addWidget(groupe);
        if (plus_tard)
            contenu->setSizeConstraint(QLayout::SetFixedSize);
        groupe->setHidden(plus_tard);
        const auto boutons = f.findChildren<QPushButton*>();
        f.show();
        groupe->show();
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return !f.findChildren<QScrollArea*>().isEmpty() && groupe->height() > f.height() &&
                   ecran.contains(f.frameGeometry());
        }));
        EXPECT_TRUE(QTest::qWaitForWindowActive(&f));
        boutons.at(38)->setFocus(); // by keys too
        QTest::keyClick(boutons.at(38), Qt::Key_Tab);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !boutons.last()->visibleRegion().isEmpty(); }));
        f.hide();
        f.show(); // once
        EXPECT_EQ(f.findChildren<QScrollArea*>().size(), 1);
    }
    QSettings().clear();
}

class EcranEtroit : public Banc {};

// 1280 x 720 at 150 %, less a window's frame.
TEST_F(EcranEtroit, chaque_fenetre_tient_sans_defiler) {
    dossier.ecrire("Configuration/depart.bas", "A:\r\n\tReturn\r\n");
    demarrer();
    for (const char* bouton : {"Command5", "dessinAire", "generer", "Aide"})
        trouver<QPushButton>(bouton).click();
    for (const char* bouton : {"Choisir", "visu_gene"})
        trouver<QPushButton>(bouton).click();
    for (const char* action : {"menu_analyse", "menu_trajet", "menu_restaurer"})
        sim->findChild<QAction*>(action)->trigger();
    trouver<QRadioButton>("chx_dessinRobot").click();
    options().show(); // the generator hides it
    const QSize place = QSize(1280, 720) * 2 / 3 - QSize(4, 38);
    QStringList vues;
    for (const QWidget* fenetre : QApplication::topLevelWidgets()) {
        const QSize besoin = fenetre->minimumSize().expandedTo(fenetre->minimumSizeHint());
        if (!fenetre->isVisible())
            continue;
        vues << fenetre->objectName();
        EXPECT_EQ(besoin.boundedTo(place), besoin) << vues.last().toStdString();
    }
    EXPECT_GE(vues.size(), 10) << vues.join(' ').toStdString();
    auto& mess = dynamic_cast<LigneTexte&>(trouver("Mess"));
    EXPECT_LE(mess.largeur_minimale(), sim->width());
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
