#include "ui/banc_editeur.h"

#include <QDropEvent>
#include <QMimeData>

namespace {

constexpr std::string_view fichier_robot =
    "# r\r\nV,100,90\r\nA,10,14,10\r\nI,100,60,0\r\nE,10,30,16\r\n"
    "R,0,0,0,34 # gauche\r\nR,0,0,20,0\r\n";

/// The robot editor on a file of its own, driven by the mouse.
class EditeurRobot : public BancEditeur<dessinRobot, VueRobot> {
protected:
    EditeurRobot() : BancEditeur("dessinRobot", "vueRobot", "listeSegments") {
        trouver<QRadioButton>("chx_dessinRobot").setChecked(true);
        editeur().ouvrir(dossier.ecrire("Configuration/Essai Robot2.ini", fichier_robot));
        vue().resize(500, 500);
        vue().ajuster();
    }

    std::string nombres(std::string_view cle) {
        std::string t;
        for (std::size_t i = 0; i < champs_robot(cle); ++i)
            t += (i == 0 ? "" : " ") + std::to_string(static_cast<int>(doc().valeurs(cle)[i]));
        return t;
    }
};

TEST_F(EditeurRobot, les_outils_tracent_des_segments_et_tout_s_annule) {
    EXPECT_TRUE(editeur().isVisible());
    EXPECT_FALSE(trouver("outil_L").isVisible()) << "a robot is made of lines";
    trouver<QSpinBox>("longueur").setValue(10);
    cliquer("outil_Horizontale");
    clic(5, 20);
    EXPECT_EQ(nombres("R"), "0 20 10 20");
    cliquer("outil_Ligne");
    tirer({-2, 3}, {12, 25});
    EXPECT_EQ(nombres("R"), "-2 3 12 25");
    QMimeData donnees;
    donnees.setData(BoutonOutil::format, "outil_Verticale");
    const QPointF ici = vue().en_pixels(QPointF(15, 20));
    QDragEnterEvent entree(ici.toPoint(), Qt::CopyAction, &donnees, Qt::LeftButton, {});
    QApplication::sendEvent(&vue(), &entree);
    QDropEvent lacher(ici, Qt::CopyAction, &donnees, Qt::LeftButton, {});
    QApplication::sendEvent(&vue(), &lacher);
    EXPECT_EQ(nombres("R"), "15 15 15 25");
    donnees.setData(BoutonOutil::format, "outil_L");
    QDropEvent une_zone(ici, Qt::CopyAction, &donnees, Qt::LeftButton, {});
    QApplication::sendEvent(&vue(), &entree);
    QApplication::sendEvent(&vue(), &une_zone);
    EXPECT_EQ(nombres("R"), "15 15 15 25");
    clic(15, 22);
    tirer({15, 25}, {18, 29}); // one end
    EXPECT_EQ(nombres("R"), "15 15 18 29");
    commande("pas_haut_1");
    EXPECT_EQ(nombres("R"), "15 16 18 30");
    trouver<QDoubleSpinBox>("X2").setValue(-40);
    EXPECT_EQ(nombres("R"), "15 16 -40 30");
    commande("supprimer");
    EXPECT_EQ(nombres("R"), "-2 3 12 25");
    for (int i = 0; i < 7; ++i)
        commande("annuler");
    EXPECT_EQ(doc().ecrire(), fichier_robot); // the very bytes
}

TEST_F(EditeurRobot, reperes_tires_a_la_souris_ou_donnes_en_nombres) {
    tirer({10, 14}, {12, 16});
    EXPECT_EQ(nombres("A"), "12 16 10");
    tirer({10, 30}, {13, 28});
    EXPECT_EQ(nombres("E"), "13 28 16");
    tirer({17, 16}, {20, 16}); // a wheel
    EXPECT_EQ(nombres("A"), "12 16 16");
    auto& A1 = trouver<QDoubleSpinBox>("A1");
    EXPECT_EQ(A1.text(), "12 cm");
    A1.selectAll();
    QTest::keyClicks(&A1, "9.5\r"); // whatever the language's own sign
    EXPECT_EQ(A1.text(), "9,5 cm");
    EXPECT_TRUE(contient(doc().ecrire(), "A , 9.5, 16, 16\r\n"));
    trouver<QDoubleSpinBox>("V2").setValue(45);
    EXPECT_EQ(nombres("V"), "100 45");
    trouver<QTabWidget>("onglets").setCurrentIndex(2);
    auto& apercu = trouver<ApercuRobot>("apercuRobot");
    apercu.resize(300, 400);
    apercu.ajuster();
    ::tirer(apercu, {100, 60}, {120, 90});
    EXPECT_EQ(nombres("I"), "120 90 0");
    const QPointF robot = apercu.en_pixels(QPointF(120, 90));
    ::tirer(apercu, apercu.en_cm(robot + QPointF(56, 0)), {121, 140}); // its arrow
    EXPECT_EQ(nombres("I"), "120 90 90");
    ::tirer(apercu, apercu.en_cm(robot - QPointF(0, 56)),
            apercu.en_cm(robot + QPointF(-150, -29.16)), Qt::AltModifier);
    EXPECT_EQ(nombres("I"), "120 90 169");
    for (int i = 0; i < 8; ++i)
        commande("annuler");
    EXPECT_EQ(doc().ecrire(), fichier_robot);
}

TEST_F(EditeurRobot, l_apercu_tourne_autour_du_point_de_reference) {
    trouver<QTabWidget>("onglets").setCurrentIndex(2);
    auto& apercu = trouver<ApercuRobot>("apercuRobot");
    const QImage avant = apercu.grab().toImage();
    trouver<QCheckBox>("tourner").setChecked(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return apercu.grab().toImage() != avant; }, 3000));
    trouver<QCheckBox>("tourner").setChecked(false);
    EXPECT_EQ(apercu.grab().toImage(), avant);
}

TEST_F(EditeurRobot, la_palette_suit_l_editeur_que_l_on_reprend) {
    auto& table = trouver<QRadioButton>("chx_dessinTable");
    table.click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return trouver("dessinTable").isActiveWindow(); }));
    EXPECT_TRUE(trouver("outil_L").isVisible());
    editeur().activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !table.isChecked(); }));
    EXPECT_FALSE(trouver("outil_L").isVisible());
    EXPECT_TRUE(editeur().isActiveWindow()) << "no window takes the place back";
}

TEST_F(EditeurRobot, le_bouton_droit_propose_d_aligner_plusieurs_segments) {
    QContextMenuEvent menu(QContextMenuEvent::Mouse, en(10, 0), vue().mapToGlobal(en(10, 0)));
    QApplication::sendEvent(&vue(), &menu);
    auto& contextuel = *editeur().findChild<QMenu*>("contextuel");
    ASSERT_TRUE(contextuel.isVisible());
    EXPECT_TRUE(contextuel.actions().contains(editeur().findChild<QAction*>("aligner")));
    contextuel.close();
    messages.clear();
    commande("aligner_droite");
    EXPECT_EQ(messages.size(), 1U) << "one alone";
    commande("tout");
    commande("aligner_droite");
    EXPECT_EQ(doc()[4].v, (std::array<float, 4>{20, 0, 20, 34}));
    EXPECT_EQ(trouver<QDoubleSpinBox>("X2").value(), 20) << "common to both";
}

TEST_F(EditeurRobot, miroir_copies_et_capacite) {
    commande("miroir"); // the one on the axis's other side already exists
    EXPECT_EQ(doc().compter({"R"}), 3);
    EXPECT_EQ(nombres("R"), "20 0 20 34");
    commande("miroir");
    EXPECT_EQ(doc().compter({"R"}), 3) << "only what is chosen: its image is there";
    messages.clear();
    for (int i = 0; i < 6; ++i) {
        commande("tout");
        commande("dupliquer");
    }
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages[0], "message: Le robot ne peut pas avoir plus de 50 segments");
    EXPECT_LE(doc().compter({"R"}), 50);
}

TEST_F(EditeurRobot, enregistre_et_charge_le_projet) {
    trouver<QDoubleSpinBox>("V1").setValue(80);
    messages.clear();
    reponses = {true, true};
    commande("enregistrer");
    EXPECT_EQ(messages.back(), "question: Doit-on charger le projet Essai maintenant ?");
    EXPECT_EQ(e().NomProjet, "Essai");
    EXPECT_FLOAT_EQ(e().VitesseLin(2), 0.8F);
    EXPECT_FALSE(editeur().isWindowModified());
}

TEST_F(EditeurRobot, la_liste_montre_les_segments_et_se_parcourt_au_clavier) {
    commande("miroir"); // a third one
    auto& liste = trouver<QListWidget>("listeSegments");
    liste.selectAll();
    EXPECT_EQ(choisis(), "0, 0 – 0, 34 | 0, 0 – 20, 0 | 20, 0 – 20, 34");
    liste.clearSelection();
    liste.setCurrentRow(0);
    EXPECT_EQ(trouver<QDoubleSpinBox>("X2").value(), 0);
    for (const char* suivant : {"0, 0 – 20, 0", "20, 0 – 20, 34"}) {
        QTest::keyClick(&liste, Qt::Key_Down);
        EXPECT_EQ(choisis(), suivant);
    }
    QTest::keyClick(&liste, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(liste.selectedItems().size(), 2);
    clic(10, 0); // the keys go on from what the mouse has chosen
    QTest::keyClick(&liste, Qt::Key_Up);
    EXPECT_EQ(choisis(), "0, 0 – 0, 34");
}

TEST_F(EditeurRobot, un_rectangle_choisit_les_segments_qu_il_contient) {
    commande("miroir");
    tirer({-3, -2}, {22, 3});
    EXPECT_EQ(choisis(), "0, 0 – 20, 0") << "not what only begins in it";
    tirer({-3, -2}, {3, 36}, Qt::ShiftModifier);
    EXPECT_EQ(choisis(), "0, 0 – 0, 34 | 0, 0 – 20, 0");
    clic(0, 25); // a click on one of them
    EXPECT_EQ(choisis(), "0, 0 – 0, 34");
    tirer({-3, -2}, {24, 36});
    EXPECT_EQ(choisis(), "0, 0 – 0, 34 | 0, 0 – 20, 0 | 20, 0 – 20, 34");
    clic(4, 25);
    EXPECT_EQ(choisis(), "") << "nothing lies there";
}

TEST_F(EditeurRobot, un_depart_que_le_trajet_remplace_est_dit) {
    auto& avis = trouver<QLabel>("avisInit");
    EXPECT_TRUE(avis.isHidden()) << "no trajectory of that robot";
    dossier.ecrire("Configuration/Essai Trajet2.ini", "Init,100,60,90\r\nFIN\r\n");
    editeur().ouvrir(dossier / "Configuration/Essai Robot2.ini");
    EXPECT_FALSE(avis.isHidden());
    EXPECT_EQ(avis.text(), "Ce départ ne sert pas : « Init » de Essai Trajet2.ini place le robot à "
                           "x = 100, y = 60, cap 90°.");
    trouver<QDoubleSpinBox>("I3").setValue(90);
    EXPECT_TRUE(avis.isHidden()) << "the same pose";
    trouver<QDoubleSpinBox>("I1").setValue(20);
    EXPECT_FALSE(avis.isHidden());
    dossier.ecrire("Configuration/Essai Trajet2.ini", "Pause,1\r\nFIN\r\n");
    editeur().ouvrir(dossier / "Configuration/Essai Robot2.ini");
    EXPECT_TRUE(avis.isHidden()) << "a trajectory without a pose of its own";
}

} // namespace
