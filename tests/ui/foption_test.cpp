#include "ui/banc.h"

#include <QMenu>
#include <QRadioButton>

namespace {

using Options = Banc;

TEST_F(Options, les_cases_reglent_l_etat_et_marquent_les_reglages) {
    struct Cas {
        const char* nom;
        std::function<int(const Etat&)> valeur;
        int cochee, claire;
    };
    for (const Cas& c :
         {Cas{"Check1", [](const Etat& x) { return int(x.AffichageLent); }, 0, -1},
          Cas{"Check2", [](const Etat& x) { return int(x.PasTemps); }, 5, 1},
          Cas{"Check3", [](const Etat& x) { return int(x.TableHorizontale); }, -1, 0}}) {
        demarrer();
        auto& boite = trouver<QCheckBox>(c.nom);
        EXPECT_EQ(c.valeur(e()), boite.isChecked() ? c.cochee : c.claire) << c.nom;
        boite.toggle();
        EXPECT_EQ(c.valeur(e()), boite.isChecked() ? c.cochee : c.claire) << c.nom;
        boite.toggle();
        EXPECT_EQ(c.valeur(e()), boite.isChecked() ? c.cochee : c.claire) << c.nom;
        EXPECT_TRUE(options().modifie) << c.nom;
    }
}

TEST_F(Options, tourner_la_table_change_la_fenetre_et_le_mode_de_dessin) {
    demarrer();
    const QSize debout = sim->size();
    cocher("Check3", true);
    EXPECT_EQ(e().XMax, 320);
    EXPECT_GT(sim->width(), sim->height());
    EXPECT_TRUE(messages.empty()) << messages[0];
    EXPECT_FALSE(e().persistant); // the fast display goes back to direct drawing
    cocher("Check1", false);
    cocher("Check3", false);
    EXPECT_EQ(sim->size(), debout);
    EXPECT_TRUE(e().persistant);
}

TEST_F(Options, le_nombre_de_robots_ne_fait_que_descendre_sauf_par_le_menu) {
    demarrer();
    auto& VScroll1 = trouver<QScrollBar>("VScroll1");
    EXPECT_EQ(VScroll1.minimum(), 1);
    EXPECT_EQ(VScroll1.maximum(), 9);
    for (const int n : {3, 2}) {
        VScroll1.setValue(n);
        EXPECT_EQ(trouver<QLabel>("NbRO").text(), QString::number(n));
        EXPECT_EQ(e().NbRobot, n);
        EXPECT_EQ(VScroll1.maximum(), n);
    }
    VScroll1.setValue(7);
    EXPECT_EQ(e().NbRobot, 2);

    QTimer::singleShot(0, [this] {
        auto& menu = trouver<QMenu>("menu_robots");
        trouver<QMenu>("menu_table").setActiveAction(menu.menuAction()); // opens it
        ASSERT_EQ(menu.actions().size(), 10);                            // a heading, then 1 to 9
        EXPECT_TRUE(menu.actions()[2]->isChecked());
        menu.setActiveAction(menu.actions()[6]);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    emit trouver("Table").customContextMenuRequested({5, 5});
    EXPECT_EQ(e().NbRobot, 6);
    EXPECT_TRUE(options().modifie);
}

TEST_F(Options, vers_le_haut_c_est_plus) {
    for (const bool en_haut : {true, false}) {
        demarrer();
        auto& barre = trouver<QScrollBar>("VScroll1");
        const QPoint fleche(barre.width() / 2, en_haut ? 3 : barre.height() - 3);
        QTest::mouseClick(&barre, Qt::LeftButton, {}, fleche);
        EXPECT_EQ(e().NbRobot, en_haut ? 2 : 1);
    }
}

TEST_F(Options, echap_arrete_la_course_dans_les_deux_fenetres) {
    demarrer();
    for (const char* controle : {"Check1", "Command1", "Table"}) {
        cliquer("Command1");
        ASSERT_TRUE(seance().en_marche());
        QTest::keyClick(&trouver(controle), Qt::Key_Escape);
        EXPECT_FALSE(seance().en_marche()) << controle;
        EXPECT_EQ(trouver<QPushButton>("Command1").text(), "Démarrer");
    }
    EXPECT_TRUE(options().isVisible());
}

TEST_F(Options, une_table_qui_ne_tourne_pas_reste_comme_elle_est) {
    dossier.ecrire("Configuration/Defaut Table.ini", "L,0,0,200,320\r\nPB,-32700,10,5\r\n");
    demarrer();
    cliquer("Check3");
    ASSERT_TRUE(QTest::qWaitFor([this] { return messages.size() == 1; }));
    EXPECT_EQ(messages[0].find("message: Erreur d'exécution : "), 0U);
    EXPECT_FALSE(trouver<QCheckBox>("Check3").isChecked());
    EXPECT_EQ(e().TableHorizontale, 0);
    EXPECT_EQ(e().XMax, 200);
    EXPECT_EQ(e().Zones(1).X2, 200);
}

TEST_F(Options, le_damier_montre_le_compte_des_carreaux) {
    demarrer();
    const auto visibles = [this] {
        return trouver("nbre_carreaux").isVisible() && trouver("lb_utilcarreaux").isVisible();
    };
    EXPECT_FALSE(visibles());
    const QSize avant = options().size();
    cocher("utiliDamier", true);
    EXPECT_TRUE(visibles());
    EXPECT_TRUE(e().utiliDamier);
    EXPECT_EQ(options().size(), avant); // nothing jumps
    fenetres().ecrire_nbre_carreaux("12");
    EXPECT_EQ(trouver<QLineEdit>("nbre_carreaux").text(), "12");
    EXPECT_FALSE(options().modifie); // not a setting of the file
    cocher("utiliDamier", false);
    EXPECT_FALSE(visibles());
}

TEST_F(Options, un_clic_sur_le_libelle_ne_le_coche_pas) {
    demarrer();
    cliquer("Check4");
    QTest::keyClick(&trouver("Check4"), Qt::Key_Space);
    EXPECT_FALSE(trouver<QCheckBox>("Check4").isChecked());
}

} // namespace
