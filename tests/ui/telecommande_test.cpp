#include "ui/banc_telecommande.h"

#include "sim/actions.h"
#include "ui/commun/icones_actions.h"

#include <QKeyEvent>

namespace {

TEST_F(ConsoleFenetre, trois_etats_ouvrent_et_ferment_les_controles) {
    ouvrir();
    auto& Command9 = dans_console<QPushButton>("Command9");
    const auto etat = [&] {
        return std::array{Command9.text() == "Fin Enr.", bouton("Avance").isEnabled(),
                          dans_console("Text1").isEnabled(), dans_console("TextX").isEnabled(),
                          dans_console("VScroll1").isEnabled()};
    };
    EXPECT_EQ(etat(), (std::array{false, false, false, true, true}));
    Command9.click();
    finir_l_action();
    EXPECT_EQ(etat(), (std::array{true, true, true, false, false}));
    bouton("Avance").click();
    EXPECT_EQ(etat(), (std::array{true, false, false, false, false}));
    finir_l_action();
    EXPECT_EQ(etat(), (std::array{true, true, true, false, false}));
    Command9.click();
    EXPECT_EQ(etat(), (std::array{false, false, false, true, true}));
    EXPECT_FALSE(dans_console("annuler").isEnabled());
}

TEST_F(ConsoleFenetre, ce_qui_est_conduit_est_enregistre_et_sauve_en_quittant) {
    ouvrir();
    saisir("TextX", "60");
    saisir("TextY", "40");
    saisir("TextA", "90");
    commencer();
    saisir("Text1", "50");
    QTest::keyClick(console, Qt::Key_Up, Qt::AltModifier);
    finir_l_action();
    saisir("Text4", "90");
    jouer("Droite");
    saisir("Text1", "30");
    jouer("VirAvGa");
    jouer("Pause");
    EXPECT_EQ(dans_console<QListWidget>("liste").count(), 4);
    dans_console<QPushButton>("annuler").click();
    EXPECT_EQ(dans_console<QListWidget>("liste").count(), 3);
    dans_console<QPushButton>("Command9").click();

    reponses = {true};
    sim->close(); // the frame does what "Quitter" does
    EXPECT_EQ(fins, std::vector{0});
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_TRUE(messages[0].starts_with("question: Vous avez modifié le trajet du robot 1\n"))
        << messages[0];
    EXPECT_TRUE(messages[1].ends_with("Defaut PourGenerer10.ini"));
    EXPECT_TRUE(contient(fichier("Defaut Trajet1.ini"),
                         "Init,60,40,90\r\nAVANCE    ,50\r\nDROITE    ,90\r\n"
                         "VIRAVGA   ,90,30\r\nFIN\r\n"));
    EXPECT_TRUE(contient(fichier("Defaut PourGenerer10.ini"), "#\r\nAVANCE:50\r\nGAUCHE:90\r\n"));
}

TEST_F(ConsoleFenetre, une_valeur_refusee_est_nommee_et_la_console_reste_utilisable) {
    ouvrir();
    commencer();
    saisir("Text1", "");
    QTest::mouseClick(&bouton("Avance"), Qt::LeftButton);
    finir_l_action();
    ASSERT_TRUE(QTest::qWaitFor([this] { return messages.size() == 1; }));
    EXPECT_TRUE(contient(messages[0], "Distance, durée ou rayon"));
    saisir("Text1", "300"); // too much for the generation table: it plays all the same
    QTest::mouseClick(&bouton("Avance"), Qt::LeftButton);
    finir_l_action();
    ASSERT_TRUE(QTest::qWaitFor([this] { return messages.size() == 2; }));
    EXPECT_TRUE(contient(messages[1], "300"));
    EXPECT_EQ(e().TrajNbActions(1), 1);
    EXPECT_EQ(e().nb_a_generer, 0);
    EXPECT_TRUE(bouton("Avance").isEnabled());
    QTest::keyClicks(&dans_console("Text4"), "4x,5");
    EXPECT_FALSE(dans_console<QLineEdit>("Text4").text().contains('x'));
    const int avant = e().NumAction(1);
    QTest::keyClick(&dans_console("Text4"), Qt::Key_Return);
    EXPECT_EQ(e().NumAction(1), avant) << "Enter in a field runs nothing";
}

TEST_F(ConsoleFenetre, une_recherche_sans_fin_s_arrete_par_echap_ou_par_arreter) {
    ouvrir();
    e().DistExtr(1) = 50;
    e().PointY = {float(e().Xm(1)) + 10, e().Ym(1), 0}; // closer than the sensor line is long
    commencer();
    bouton("Balise Droite").click();
    for (int tick = 0; tick < 50; ++tick)
        seance().moteur().Timer_Timer();
    EXPECT_FALSE(bouton("Avance").isEnabled());
    QTest::keyClick(console, Qt::Key_Escape);
    finir_l_action();
    EXPECT_TRUE(bouton("Avance").isEnabled());
    bouton("Balise Gauche").click();
    EXPECT_EQ(trouver<QPushButton>("Command1").text(), "Arrêter");
    EXPECT_TRUE(console->isVisible());
    QTest::keyClick(&trouver("FOption"), Qt::Key_Escape); // the same from every window
    finir_l_action();
    EXPECT_TRUE(bouton("Avance").isEnabled());
    bouton("Balise Droite").click();
    options().Command1.click();
    EXPECT_TRUE(bouton("Avance").isEnabled());
    QTest::keyClick(console, Qt::Key_Escape);
    EXPECT_FALSE(console->isVisible());
    EXPECT_TRUE(options().isVisible());
}

TEST_F(ConsoleFenetre, le_clavier_revient_apres_l_action_et_la_pose_tapee_reste) {
    ouvrir();
    saisir("TextX", "77");
    console->hide();
    ouvrir();
    EXPECT_EQ(dans_console<QLineEdit>("TextX").text(), "77");
    commencer();
    for (QWidget* controle : {static_cast<QWidget*>(&bouton("Avance")), &dans_console("Text1")}) {
        controle->setFocus();
        jouer("Avance");
        EXPECT_EQ(console->focusWidget(), controle);
    }
    // A tile count that the user has corrected is what is recorded.
    cocher("utiliDamier", true);
    trouver<QLineEdit>("nbre_carreaux").setText("7");
    jouer("Balise Droite");
    const int n = e().nb_a_generer;
    EXPECT_EQ(e().TableauAGenerer(n - 1, 0), 12);
    EXPECT_EQ(e().TableauAGenerer(n - 1, 1), 7);
}

// In the list an action goes, another one comes in front of the last; the robot follows.
TEST_F(ConsoleFenetre, la_liste_change_l_enregistrement) {
    ouvrir();
    for (const auto& [champ, valeur] : {std::pair{"TextX", "60"}, {"TextY", "40"}, {"TextA", "90"}})
        saisir(champ, valeur);
    commencer();
    saisir("Text1", "20");
    jouer("Avance");
    jouer("Recule");
    jouer("Avance");
    auto& liste = dans_console<QListWidget>("liste");
    liste.setCurrentRow(1);
    liste.setFocus();
    QTest::keyClick(&liste, Qt::Key_Delete);
    EXPECT_EQ(liste.count(), 2);
    EXPECT_EQ(e().YRobot(1), 80);

    saisir("Text4", "90");
    liste.setCurrentRow(1);
    QTimer::singleShot(0, console, [this] {
        auto& actions = trouver<QMenu>("inserer_action");
        for (QAction* action : actions.actions())
            if (action->text() == "Droite")
                action->trigger();
        trouver<QMenu>("menu_liste").close();
    });
    emit liste.customContextMenuRequested({});
    EXPECT_EQ(liste.count(), 3);
    EXPECT_EQ(e().TrajAction(1, 2), actions::DROITE);
    EXPECT_EQ(e().XRobot(1), 80);
    EXPECT_EQ(liste.currentRow(), 1);
}

/// How many pixels differ to the eye.
int ecarts(const QImage& a, const QImage& b) {
    int n = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            n += std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y))) > 64 ? 1 : 0;
    return n;
}

TEST(IconesActions, a_gauche_le_miroir_d_a_droite_et_aucune_comme_une_autre) {
    const auto image = [](const Nom10& nom) {
        return icone_action(*actions::trouver(nom)).pixmap(32, 32).toImage();
    };
    for (const actions::Action& a : actions::boutons) {
        EXPECT_LT(ecarts(image(a.nom), image(a.miroir).mirrored(a.nom != a.miroir, false)), 4)
            << a.legende;
        for (const actions::Action& autre : actions::boutons)
            EXPECT_TRUE(autre.nom == a.nom || ecarts(image(a.nom), image(autre.nom)) > 20)
                << a.legende << autre.legende;
    }
    EXPECT_LT(ecarts(image(actions::RECULE), image(actions::AVANCE).mirrored(false, true)), 4);
}

} // namespace
