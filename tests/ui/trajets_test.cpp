// What becomes of recorded paths: interrupted, recovered, replaced, refused, not writable.
#include "ui/banc_telecommande.h"

#include "sim/actions.h"

#include <QWheelEvent>

namespace {

class Trajets : public ConsoleFenetre {
protected:
    int lignes() { return dans_console<QListWidget>("liste").count(); }
    QString Command9() { return dans_console<QPushButton>("Command9").text(); }
    std::string dit(const char* etiquette) {
        return dans_console<QLabel>(etiquette).text().toStdString();
    }
    QMenu& menu() {
        auto& m = dans_console<QMenu>("menu_reprendre");
        emit m.aboutToShow();
        return m;
    }
};

// As seen from above the robot: ahead is up, left is left.
TEST_F(Trajets, les_onze_boutons_sont_a_leur_place) {
    ouvrir();
    const char* const rangees[][3] = {{"VirAvGa", "Avance", "VirAvDr"},
                                      {"Gauche", "Pause", "Droite"},
                                      {"VirArGa", "Recule", "VirArDr"},
                                      {"Balise Gauche", nullptr, "Balise Droite"}};
    int bas = -1;
    for (const auto& rangee : rangees) {
        int droite = -1;
        int plus_bas = 0;
        for (const char* const legende : rangee) {
            if (legende == nullptr)
                continue;
            const QRect r = bouton(legende).geometry();
            EXPECT_GT(r.left(), droite) << legende;
            EXPECT_GT(r.top(), bas) << legende;
            droite = r.right();
            plus_bas = std::max(plus_bas, r.bottom());
        }
        bas = plus_bas;
    }
}

TEST_F(Trajets, un_double_clic_sur_fin_enr_ne_recommence_pas) {
    ouvrir();
    commencer();
    jouer("Avance");
    QTest::mouseClick(&dans_console("Command9"), Qt::LeftButton);
    QTest::mouseDClick(&dans_console("Command9"), Qt::LeftButton); // its second half
    EXPECT_EQ(Command9(), "Début Enr.");
    EXPECT_EQ(lignes(), 1);
}

TEST_F(Trajets, debut_enr_sur_un_trajet_non_sauve_le_dit_et_se_reprend) {
    ouvrir();
    saisir("TextX", "70");
    commencer();
    jouer("Avance");
    dans_console<QPushButton>("Command9").click();
    saisir("TextX", "90");
    commencer();
    ASSERT_EQ(lignes(), 1);
    EXPECT_TRUE(dans_console<QListWidget>("liste").item(0)->text().contains("Sauvegardes"));
    dans_console<QPushButton>("annuler").click();
    EXPECT_EQ(lignes(), 1);
    EXPECT_EQ(dans_console<QLineEdit>("TextX").text(), "70");
    EXPECT_EQ(Command9(), "Début Enr.");
}

// Killed with robot 3: it is on the table again, its path is listed, and the next action follows.
TEST_F(Trajets, une_reprise_se_continue) {
    demarrer();
    options().choisir_robots(3);
    ouvrir();
    dans_console<QScrollBar>("VScroll1").setValue(3);
    saisir("TextX", "70");
    commencer();
    jouer("Avance");
    jouer("Recule");
    const float x = e().XRobot(3);
    sim.reset(); // killed: nothing was asked
    EXPECT_TRUE(messages.empty());
    reponses = {true};
    demarrer();
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(e().NbRobot, 3);
    console = &trouver("Télécommande");
    EXPECT_EQ(dans_console<QLineEdit>("TextX").text(), "70");
    EXPECT_TRUE(console->isVisible());
    EXPECT_EQ(lignes(), 2);
    EXPECT_EQ(Command9(), "Fin Enr.");
    EXPECT_EQ(dans_console<QLabel>("NbRO").text(), "3");
    EXPECT_EQ(e().XRobot(3), x);
    jouer("Avance");
    EXPECT_EQ(lignes(), 3);
    EXPECT_EQ(e().TrajNbActions(3), 3);
}

TEST_F(Trajets, un_trajet_refuse_revient_par_le_menu) {
    ouvrir();
    EXPECT_FALSE(menu().actions().at(0)->isEnabled());
    commencer();
    jouer("Avance");
    jouer("Avance");
    reponses = {false};
    EXPECT_TRUE(seance().SauvRobot());
    EXPECT_TRUE(contient(explications.back(), "ne sera plus proposé"));
    EXPECT_TRUE(contient(explications.back(), "fichier de génération"));
    seance().recharger();
    e().TrajNbActions(1) = 0;
    QMenu& m = menu();
    ASSERT_EQ(m.actions().size(), 1);
    EXPECT_TRUE(m.actions().at(0)->text().contains("robot 1 (2 actions)"));
    m.actions().at(0)->trigger();
    EXPECT_EQ(lignes(), 2);
    EXPECT_EQ(Command9(), "Fin Enr.");
    EXPECT_TRUE(e().TrajetModifie(1));
}

TEST_F(Trajets, quitter_reste_quand_rien_ne_peut_etre_ecrit) {
    ouvrir();
    commencer();
    jouer("Avance");
    perdre_le_dossier();
    reponses = {true, false};
    cliquer("Command4");
    EXPECT_TRUE(fins.empty());
    ASSERT_EQ(messages.size(), 3U); // the saving, the path shown, the other directory
    EXPECT_TRUE(contient(messages[2], "dans un autre dossier ?"));

    const auto ailleurs = dossier / "ailleurs";
    std::filesystem::create_directory(ailleurs);
    chemins_choisis = {QString::fromStdString(ailleurs.string())};
    reponses = {true, true, true}; // the path shown takes one
    cliquer("Command4");
    EXPECT_EQ(fins, std::vector{0});
    EXPECT_TRUE(std::filesystem::exists(ailleurs / "Defaut Trajet1.ini"));
    EXPECT_TRUE(std::filesystem::exists(ailleurs / "Defaut PourGenerer10.ini"));
    EXPECT_TRUE(messages.back().starts_with("information: Le trajet est écrit dans "))
        << messages.back();
    retrouver_le_dossier();
}

// Cut short, saved, read again and played: the robot ends where it stood.
TEST_F(Trajets, echap_garde_ce_qui_a_ete_conduit_et_le_fichier_le_rejoue) {
    ouvrir();
    saisir("TextX", "60");
    saisir("TextY", "40");
    saisir("TextA", "90");
    commencer();
    saisir("Text1", "100");
    jouer("Avance");
    saisir("Text1", "80");
    bouton("VirAvDr").click();
    for (int tick = 0; tick < 60; ++tick)
        seance().moteur().Timer_Timer();
    QTest::keyClick(console, Qt::Key_Escape);
    EXPECT_TRUE(bouton("Avance").isEnabled());
    EXPECT_EQ(lignes(), 2);
    EXPECT_LT(e().TrajParam1(1, 2), 90);
    const std::array pose{e().XRobot(1), e().YRobot(1), e().CapRobot(1)};
    reponses = {true};
    seance().SauvRobot();
    seance().recharger();
    e().RobotTele = 0;
    seance().moteur().Run_Jeu();
    while (seance().en_marche())
        seance().moteur().Timer_Timer();
    EXPECT_EQ(pose, (std::array{e().XRobot(1), e().YRobot(1), e().CapRobot(1)}));
}

TEST_F(Trajets, la_fin_du_match_s_annonce) {
    ouvrir();
    commencer();
    jouer("Avance");
    const QColor ordinaire = dans_console<QLabel>("total").palette().windowText().color();
    EXPECT_FALSE(contient(dit("total"), "sur 90 s"));
    e().TempsEcoule = 7990;
    jouer("Avance");
    EXPECT_TRUE(contient(dit("total"), "sur 90 s"));
    EXPECT_NE(dans_console<QLabel>("total").palette().windowText().color(), ordinaire);
    e().TempsEcoule = 8995;
    saisir("Text1", "200");
    jouer("Avance");
    EXPECT_TRUE(contient(dit("total"), "recommence le trajet à l'action 1"));
    jouer("Avance");
    EXPECT_FALSE(contient(dit("total"), "recommence"));
}

TEST_F(Trajets, la_position_dit_ce_que_la_table_tournee_en_fait) {
    ouvrir();
    const auto teinte = [this](const char* champ) {
        return dans_console(champ).palette().color(QPalette::Base) !=
               console->palette().color(QPalette::Base);
    };
    saisir("TextX", "200");
    saisir("TextY", "321");
    EXPECT_FALSE(teinte("TextX"));
    EXPECT_TRUE(teinte("TextY"));
    EXPECT_EQ(dit("indication"), "Hors de la table (200 × 320 cm).");
    saisir("TextY", "320");
    EXPECT_FALSE(dans_console("indication").isVisible());
    cocher("Check3", true);
    EXPECT_EQ(dit("indication"), "Table tournée : tapez X et Y de la table droite\n(200 × 320 cm). "
                                 "Le X que le programme relit\na 120 cm de trop.");
    saisir("TextX", "201");
    EXPECT_TRUE(teinte("TextX"));
    EXPECT_FALSE(trouver("damier_tourne").isVisible());
    options().montrer();
    cocher("utiliDamier", true);
    EXPECT_TRUE(trouver("damier_tourne").isVisible());
    cocher("Check3", false);
    EXPECT_FALSE(trouver("damier_tourne").isVisible());
}

TEST_F(Trajets, la_roue_ne_change_le_nombre_d_aucune_barre) {
    ouvrir();
    options().choisir_robots(5);
    dans_console<QScrollBar>("VScroll1").setValue(2);
    for (auto* barre : sim->findChildren<QScrollBar*>("VScroll1")) {
        const int avant = barre->value();
        for (const int cran : {120, -120}) {
            QWheelEvent roue({5, 5}, barre->mapToGlobal(QPointF(5, 5)), {}, {0, cran}, Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(barre, &roue);
            EXPECT_EQ(barre->value(), avant);
        }
        QTest::keyClick(barre, Qt::Key_Down); // up is more, in both windows
        EXPECT_EQ(barre->value(), avant - 1);
    }
}

// At any width the line is as high as the whole question.
TEST_F(Trajets, la_question_se_lit_en_entier) {
    demarrer();
    auto& Mess = trouver<LigneTexte>("Mess");
    const int ordinaire = Mess.height();
    for (const int largeur : {1200, 400, 200}) {
        sim->resize(largeur, 700);
        fenetres().ecrire_texte_Mess(
            "Vous avez modifié le trajet du robot 1\r\nDoit-on le sauvegarder "
            "?\r\n( Fichier : /un/chemin/" +
            std::string(150, 'x') + "/Defaut Trajet1.ini");
        const int chemin = Mess.fontMetrics().horizontalAdvance(QString(150, 'x'));
        EXPECT_GE(Mess.height(), (2 + chemin / largeur) * Mess.fontMetrics().height()) << largeur;
    }
    fenetres().ecrire_Mess({});
    EXPECT_LE(Mess.height(), 3 * Mess.fontMetrics().height() + 8);
    EXPECT_GT(ordinaire, 0);
}

} // namespace
