// The palette docked in the editors, their toolbar, their right button, the tools of several
// clicks.
#include "ui/banc_table.h"
#include "ui/editeurs/colonne_palette.h"

#include <QClipboard>
#include <QMenu>
#include <QTabWidget>
#include <QToolBar>

namespace {

class Palette : public EditeurTable {
protected:
    dessinRobot& robot() { return trouver<dessinRobot>("dessinRobot"); }
    Foutil& palette() { return trouver<Foutil>("Foutil"); }
    void touche(Qt::Key touche) { QTest::keyClick(&vue(), touche); }
    std::size_t lignes() { return static_cast<std::size_t>(doc().compter({"LN"})); }
};

TEST_F(Palette, elle_est_dans_l_editeur_que_l_on_reprend_ou_flotte_si_l_on_prefere) {
    EXPECT_EQ(palette().window(), &editeur());
    trouver<QRadioButton>("chx_dessinRobot").click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return palette().window() == &robot(); }));
    EXPECT_TRUE(palette().isVisible());
    editeur().activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return palette().window() == &editeur(); }));
    const int largeur = vue().width();
    cliquer("ancrage");
    EXPECT_EQ(palette().window(), &palette());
    EXPECT_TRUE(palette().isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return vue().width() > largeur; }))
        << "its place is given back";
    palette().close();
    cliquer("dessinAire");
    EXPECT_TRUE(palette().isVisible());
    ouvrir();
    deplacer({50, 50}, {60, 60});
    palette().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&palette()));
    QTest::keyClick(&palette(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(dernier("PB"), "PB 50 50 5") << "undone from its own window";
    sim.reset();
    demarrer();
    cliquer("dessinAire");
    EXPECT_EQ(palette().window(), &palette()) << "at the next start too";
    cliquer("ancrage");
    EXPECT_EQ(palette().window(), &editeur());
}

TEST_F(Palette, la_ligne_brisee_se_fait_de_clic_en_clic) {
    ouvrir();
    cliquer("outil_LigneBrisee");
    for (const QPointF p : {QPointF(10, 10), QPointF(40, 10), QPointF(40, 40), QPointF(70, 70)})
        clic(p.x(), p.y());
    EXPECT_EQ(lignes(), 1U) << "nothing before it is finished";
    touche(Qt::Key_Backspace);
    clic(11, 11); // near the first point
    EXPECT_EQ(dernier("LN"), "LN 40 40 10 10");
    EXPECT_EQ(lignes(), 4U);
    EXPECT_TRUE(trouver<QToolButton>("outil_Selection").isChecked());
    commande("annuler"); // one step
    EXPECT_EQ(doc().ecrire(), fichier);
    cliquer("outil_LigneBrisee");
    clic(10, 10);
    clic(40, 10);
    touche(Qt::Key_Escape);
    clic(60, 10);
    EXPECT_EQ(doc().ecrire(), fichier) << "given up";
    cliquer("outil_LigneBrisee");
    clic(10, 10);
    clic(40, 10);
    touche(Qt::Key_Return);
    EXPECT_EQ(dernier("LN"), "LN 10 10 40 10");
    cliquer("outil_LigneBrisee");
    clic(20, 20);
    clic(20, 60);
    clic(20, 60); // the last point again
    EXPECT_EQ(dernier("LN"), "LN 20 20 20 60");
}

TEST_F(Palette, un_robot_prend_la_ligne_brisee_et_dit_ce_qui_ne_tient_pas) {
    trouver<QRadioButton>("chx_dessinRobot").click();
    std::string plein;
    for (int i = 0; i < 48; ++i)
        plein += "R,0,0,9,9\r\n";
    robot().ouvrir(dossier.ecrire("Configuration/Essai Robot1.ini", plein));
    auto& v = trouver<VueRobot>("vueRobot");
    v.resize(500, 500);
    v.ajuster();
    const auto cliquer_en = [&](double x, double y) {
        QTest::mouseClick(&v, Qt::LeftButton, {}, v.en_pixels(QPointF(x, y)).toPoint());
    };
    messages.clear();
    cliquer("outil_LigneBrisee");
    for (const QPointF p : {QPointF(-4, 0), QPointF(-4, 4), QPointF(0, 4), QPointF(-4, 0)})
        cliquer_en(p.x(), p.y());
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0], "message: Le robot ne peut pas avoir plus de 50 segments");
    EXPECT_EQ(robot().document().compter({"R"}), 48) << "all or nothing";
    QTest::keyClick(&v, Qt::Key_Backspace); // it is still in hand
    QTest::keyClick(&v, Qt::Key_Return);
    EXPECT_EQ(robot().document().compter({"R"}), 50);
}

TEST_F(Palette, couper_et_coller_d_une_table_a_une_autre) {
    ouvrir();
    clic(50, 50);
    commande("couper");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "PB , 50, 50, 5\r\n");
    EXPECT_EQ(dernier("PB"), "");
    commande("annuler");
    commande("nouveau");
    commande("coller");
    EXPECT_EQ(dernier("PB"), "PB 50 50 5");
    commande("copier");
    commande("coller"); // beside itself
    EXPECT_EQ(dernier("PB"), "PB 55 55 5");
    messages.clear();
    QGuiApplication::clipboard()->setText("Bonjour 1");
    commande("coller");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(contient(messages[0], "message: Ligne 1 : "));
}

TEST_F(Palette, le_bouton_droit_choisit_et_propose_les_commandes_des_menus) {
    ouvrir();
    auto& menu = *editeur().findChild<QMenu*>("contextuel");
    QContextMenuEvent demande(QContextMenuEvent::Mouse, en(50, 50), vue().mapToGlobal(en(50, 50)));
    QApplication::sendEvent(&vue(), &demande);
    EXPECT_TRUE(menu.isVisible());
    EXPECT_TRUE(menu.actions().contains(editeur().findChild<QAction*>("copier")));
    menu.close();
    EXPECT_TRUE(contient(choisis(), "PB")) << choisis();
}

TEST_F(Palette, le_projet_charge_s_ouvre_tant_que_l_on_n_a_rien_choisi) {
    EXPECT_EQ(editeur().windowTitle(), "Defaut Table.ini[*] – Dessin de la table");
    editeur().close();
    e().NomProjet = "Autre";
    dossier.ecrire("Configuration/Autre Table.ini", "U,0,0,9,9");
    cliquer("dessinAire");
    EXPECT_EQ(dernier("U"), "U 0 0 9 9");
    ouvrir();
    editeur().close();
    cliquer("dessinAire");
    EXPECT_EQ(doc().ecrire(), fichier) << "what was opened stays";
    trouver<QRadioButton>("chx_dessinRobot").click();
    EXPECT_TRUE(robot().windowTitle().startsWith("Sans nom")) << "that project has no robot";
    EXPECT_EQ(trouver<QDoubleSpinBox>("I1").value(), e().XMax / 2);
}

TEST_F(Palette, une_mesure_du_robot_se_montre_sur_le_dessin) {
    trouver<QRadioButton>("chx_dessinRobot").click();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&robot()));
    trouver<QTabWidget>("onglets").setCurrentIndex(1);
    auto& v = trouver<VueRobot>("vueRobot");
    trouver("listeSegments").setFocus();
    const QImage sans = v.grab().toImage();
    for (const char* mesure : {"A1", "A2", "A3", "V1", "V2", "E1", "E2", "E3"}) {
        trouver<Nombre>(mesure).setFocus();
        EXPECT_NE(v.grab().toImage(), sans) << mesure;
    }
    v.setFocus();
    EXPECT_EQ(v.grab().toImage(), sans);
}

TEST_F(Palette, la_barre_partage_les_commandes_et_dit_leur_touche) {
    ouvrir();
    auto& barre = trouver<QToolBar>("barre");
    for (const auto* bouton : barre.findChildren<QToolButton*>())
        if (bouton->objectName().startsWith("barre_")) {
            EXPECT_FALSE(bouton->icon().isNull()) << bouton->objectName().toStdString();
            EXPECT_FALSE(bouton->accessibleName().isEmpty());
        }
    deplacer({50, 50}, {60, 60});
    EXPECT_EQ(trouver("barre_annuler").toolTip(), "Annuler : Déplacer (Ctrl+Z)");
    cliquer("barre_annuler");
    EXPECT_EQ(doc().ecrire(), fichier);
    cliquer("barre_accrocher");
    deplacer({50, 50}, {53, 51});
    EXPECT_EQ(dernier("PB"), "PB 53 51 5") << "no grid";
    const QImage avec = vue().grab().toImage();
    cliquer("barre_grille");
    EXPECT_NE(vue().grab().toImage(), avec);
}

} // namespace
