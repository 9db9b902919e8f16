#include "analyse/match.h"
#include "ui/banc.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QMenu>
#include <QThread>

#include <algorithm>

namespace {

using Demarrage = Banc;

TEST_F(Demarrage, le_premier_demarrage_ecrit_le_projet_et_montre_les_deux_fenetres) {
    demarrer();
    EXPECT_TRUE(messages.empty());
    EXPECT_TRUE(std::filesystem::exists(dossier / "Configuration/Defaut Table.ini"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier / "Configuration"), {}),
              20 + 1)
        << "and the project's lock";
    EXPECT_TRUE(sim->isVisible());
    EXPECT_TRUE(options().isVisible());
    EXPECT_EQ(sim->pos(), sim->screen()->availableGeometry().topLeft());
    EXPECT_EQ(e().NomProjet, "Defaut");
    EXPECT_EQ(e().NbRobot, 1);
    EXPECT_EQ(e().XMax, 200);
    EXPECT_EQ(trouver<LigneTexte>("Info").texte(), "");
    EXPECT_TRUE(fins.empty());
}

TEST_F(Demarrage, la_fenetre_d_options_reste_a_cote_et_dans_l_ecran) {
    for (const bool horizontale : {false, true}) {
        demarrer();
        cocher("Check3", horizontale);
        EXPECT_TRUE(messages.empty()) << messages[0];
        const QRect ecran = sim->screen()->availableGeometry();
        EXPECT_TRUE(ecran.contains(options().frameGeometry())) << horizontale;
        EXPECT_TRUE(ecran.contains(sim->frameGeometry())) << horizontale;
        EXPECT_FALSE(sim->frameGeometry().intersects(options().frameGeometry())) << horizontale;
    }
}

struct Reglage {
    const char* lignes;
    int lent, pas, robots, horizontale, x_max;
};

TEST_F(Demarrage, les_reglages_du_fichier_atteignent_l_etat) {
    for (const Reglage& r :
         {Reglage{"Rapide, 1\r\n", 0, 1, 1, 0, 200},
          Reglage{"Rapide, 0\r\nAllege, 1\r\nNbRobot, 4\r\n", -1, 5, 4, 0, 200},
          Reglage{"Rapide, 2\r\nAllege, 2\r\nNbRobot, 12\r\n", -1, 1, 9, 0, 200},
          Reglage{"NbRobot, -3\r\nRapide, 1\r\nHorizontale, 1\r\n", 0, 1, 1, -1, 320}}) {
        dossier.ecrire("Configuration/Tavolmex.ini", r.lignes);
        demarrer();
        EXPECT_EQ(e().AffichageLent, r.lent) << r.lignes;
        EXPECT_EQ(e().PasTemps, r.pas) << r.lignes;
        EXPECT_EQ(e().NbRobot, r.robots) << r.lignes;
        EXPECT_EQ(e().TableHorizontale, r.horizontale) << r.lignes;
        EXPECT_EQ(e().XMax, r.x_max) << r.lignes; // turned once, not twice
        EXPECT_FALSE(options().modifie) << r.lignes;
    }
}

TEST_F(Demarrage, un_second_programme_sur_le_meme_projet_le_dit_et_continue) {
    demarrer();
    Sim1 second(dossier.chemin(), [](int) {});
    second.Form_Load();
    const std::vector<std::string> avis{
        "message: Le projet « Defaut » est déjà ouvert dans un autre programme Tavolmex."};
    EXPECT_EQ(messages, avis);
    EXPECT_TRUE(second.isVisible());
    // The lock follows the project.
    e().NomProjet = "Finale";
    seance().recharger();
    second.seance().recharger();
    EXPECT_EQ(messages, avis);
}

using CourseDeSim1 = Banc;

TEST_F(CourseDeSim1, le_bouton_lance_puis_arrete_et_fige_les_options) {
    demarrer();
    const auto etats = [this] {
        std::string s;
        for (const char* nom :
             {"Check1", "Check2", "NbRO", "VScroll1", "Check4", "Check3", "Command4"})
            s += trouver(nom).isEnabled() ? '1' : '0';
        for (const char* nom : {"logo", "LNom"})
            s += trouver(nom).isVisible() ? 'v' : '-';
        return s;
    };
    auto& Timer = *sim->findChild<QTimer*>("Timer");
    auto& Command1 = trouver<QPushButton>("Command1");
    e().RobotTele = 3;
    EXPECT_EQ(etats(), "1111111vv");

    cliquer("Command1");
    EXPECT_EQ(Command1.text(), "Arrêter");
    EXPECT_EQ(etats(), "0000011--");
    EXPECT_EQ(Timer.interval(), 10);
    EXPECT_TRUE(Timer.isActive());
    EXPECT_EQ(e().RobotTele, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return e().TempsEcoule >= 3; }));
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return trouver<LigneTexte>("Info").texte().startsWith("Xm="); }));
    EXPECT_TRUE(trouver<LigneTexte>("Mess").texte().startsWith("     Durée : 0 mn 0"));

    cliquer("Command1");
    EXPECT_EQ(Command1.text(), "Démarrer");
    EXPECT_EQ(etats(), "1111111vv");
    EXPECT_FALSE(Timer.isActive());
}

TEST_F(CourseDeSim1, toute_boite_ouverte_retient_l_horloge) {
    demarrer();
    cliquer("Command1");
    QDialog d_un_editeur;
    QDialog du_systeme; // as Qt does for a file dialog that the desktop provides
    du_systeme.setAttribute(Qt::WA_DontShowOnScreen);
    QFileDialog de_fichier;
    de_fichier.setOption(QFileDialog::DontUseNativeDialog);
    const std::function<void()> boites[] = {
        [&] { fenetres().message("Un instant"); }, [&] { d_un_editeur.exec(); },
        [&] { du_systeme.exec(); }, [&] { de_fichier.exec(); }, [&] { cliquer("Command2"); }};
    for (const auto& ouvrir : boites) {
        ASSERT_TRUE(seance().en_marche());
        int avant = -1, pendant = -1;
        const auto observer = [&] {
            avant = e().TempsEcoule;
            QTest::qWait(100);
            pendant = e().TempsEcoule;
        };
        avant_de_repondre = [&](QDialog&) { observer(); };
        ouvrir();
        ASSERT_GE(avant, 0);
        EXPECT_EQ(pendant, avant);
        const int apres = e().TempsEcoule;
        QApplication::processEvents();
        EXPECT_LE(e().TempsEcoule - apres, 15) << "what the box lasted is not caught up";
        EXPECT_TRUE(QTest::qWaitFor([&] { return e().TempsEcoule > apres; }));
    }
}

TEST_F(CourseDeSim1, pause_pas_et_vitesse_ne_changent_que_le_rythme) {
    demarrer();
    cocher("Check2", true);
    auto attendu = std::make_unique<Etat>(e());
    const MatchCalcule match = calculer_match(*attendu);
    auto& Timer = *sim->findChild<QTimer*>("Timer");
    QTest::keyClick(&options(), Qt::Key_P); // at rest there is nothing to hold
    cliquer("Command1");
    EXPECT_TRUE(QTest::qWaitFor([this] { return e().TempsEcoule > 0; }));

    QTest::keyClick(&options(), Qt::Key_P);
    EXPECT_FALSE(Timer.isActive());
    EXPECT_TRUE(seance().en_marche());
    EXPECT_EQ(sim->windowTitle(), "Tavolmex – en pause");
    const int avant = e().TempsEcoule;
    for (int n = 0; n < 3; ++n)
        QTest::keyClick(sim.get(), Qt::Key_Period);
    EXPECT_EQ(e().TempsEcoule, avant + 15);
    QTest::qWait(120);
    EXPECT_EQ(e().TempsEcoule, avant + 15);

    for (int n = 0; n < 12; ++n)
        QTest::keyClick(sim.get(), Qt::Key_Plus);
    EXPECT_EQ(sim->windowTitle(), "Tavolmex (vitesse max) – en pause");
    QTest::keyClick(sim.get(), Qt::Key_P);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !seance().en_marche(); }, 20000));
    EXPECT_EQ(e().TempsEcoule, match.duree);
    EXPECT_EQ((PoseTick{e().XRobot(1), e().YRobot(1), e().CapRobot(1)}), match.poses(1).back());
    EXPECT_EQ(e().NbreCarreaux, match.NbreCarreaux.back());

    // What stops a run stops it from the pause too, and the next one is in none.
    for (const auto& arreter : std::initializer_list<std::function<void()>>{
             [this] { cliquer("Command1"); },
             [this] { QTest::keyClick(sim.get(), Qt::Key_Escape); }}) {
        cliquer("Command1");
        QTest::keyClick(sim.get(), Qt::Key_P);
        EXPECT_FALSE(Timer.isActive());
        arreter();
        EXPECT_FALSE(seance().en_marche());
        EXPECT_EQ(trouver<QPushButton>("Command1").text(), "Démarrer");
    }
    QTest::keyClick(sim.get(), Qt::Key_Equal);
    EXPECT_EQ(sim->windowTitle(), "Tavolmex");
}

TEST_F(CourseDeSim1, ce_que_le_systeme_retarde_est_rattrape_avec_peu_de_peintures) {
    struct Peintures : QObject {
        int nombre = 0;
        bool eventFilter(QObject*, QEvent* evenement) override {
            nombre += evenement->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } peintures;
    demarrer();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(sim.get()));
    trouver("Table").installEventFilter(&peintures);
    cliquer("Command1");
    QElapsedTimer montre;
    montre.start();
    int peintes = 0, ticks = 0;
    for (int i = 0; i < 3; ++i) {
        QThread::msleep(200); // no event is delivered meanwhile
        const int avant = e().TempsEcoule;
        peintures.nombre = 0;
        EXPECT_TRUE(QTest::qWaitFor([&] { return 10 * e().TempsEcoule + 30 > montre.elapsed(); }));
        ticks += e().TempsEcoule - avant;
        peintes += peintures.nombre;
    }
    EXPECT_GE(ticks, 50);
    EXPECT_LT(peintes, ticks / 2);
    EXPECT_LE(10 * e().TempsEcoule, montre.elapsed() + 20) << "never ahead";
}

TEST_F(CourseDeSim1, une_panne_dans_un_tick_finit_le_programme_une_seule_fois) {
    demarrer();
    cliquer("Command1");
    e().NumAction(1) = 1000; // the next action would lie beyond the table
    e().TrajNbActions(1) = 1001;
    e().ActionEnCours(1) = Nom10();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !fins.empty(); }));
    QTest::qWait(30);
    EXPECT_EQ(fins, std::vector{3});
    EXPECT_EQ(messages.size(), 1U);
}

using Fenetre = Banc;

TEST_F(Fenetre, le_titre_nomme_le_projet_sauf_celui_par_defaut) {
    for (const auto& [projet, titre] : {std::pair("Defaut", "Tavolmex"),
                                        {"Finale", "Finale – Tavolmex"},
                                        {"A[*]B", "A[*]B – Tavolmex"}}) {
        dossier.ecrire("Configuration/Tavolmex.ini", "Défaut, " + std::string(projet) + "\r\n");
        demarrer();
        QString montre = sim->windowTitle();
        EXPECT_EQ(montre.replace("[*][*]", "[*]").toStdString(), titre);
        e().NomProjet = "Defaut";
        seance().recharger();
        EXPECT_EQ(sim->windowTitle(), "Tavolmex");
    }
}

TEST_F(Fenetre, echap_et_le_cadre_ne_repondent_a_aucune_question) {
    demarrer();
    bool restee = false;
    reponses = {true};
    avant_de_repondre = [&](QDialog& boite) {
        QTest::keyClick(&boite, Qt::Key_Escape);
        boite.close();
        restee = boite.isVisible();
    };
    EXPECT_TRUE(fenetres().question("Doit-on ?", "Non : tout est perdu"));
    EXPECT_TRUE(restee);
}

TEST_F(Fenetre, la_fermer_quitte_et_n_ecrit_les_reglages_que_s_ils_ont_change) {
    for (const bool change : {false, true}) {
        demarrer();
        dossier.ecrire("Configuration/Tavolmex.ini", "temoin");
        if (change) { // there and back still counts as a change
            cocher("Check2", true);
            cocher("Check2", false);
        }
        fins.clear();
        if (change)
            cliquer("Command4");
        sim->close();
        EXPECT_EQ(fins, std::vector{0}) << change;
        EXPECT_EQ(dossier.lire("Configuration/Tavolmex.ini") == "temoin", !change);
    }
}

TEST_F(Fenetre, un_clic_sur_la_table_ou_le_logo_rend_les_options) {
    demarrer();
    for (const char* nom : {"Table", "logo"}) {
        options().hide();
        cliquer(nom);
        EXPECT_TRUE(options().isVisible()) << nom;
    }
    options().hide();
    QTest::mouseClick(&trouver("Table"), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_TRUE(options().isVisible());
}

TEST_F(Fenetre, la_table_suit_la_taille_de_la_fenetre_en_gardant_ses_proportions) {
    demarrer();
    const QWidget& table = trouver("Table");
    const double rapport = double(table.width()) / table.height();
    for (const QSize taille : {QSize(900, 500), QSize(300, 900), QSize(160, 160)}) {
        sim->resize(taille);
        QTest::qWait(1);
        EXPECT_NEAR(double(table.width()) / table.height(), rapport, 0.02);
        EXPECT_LE(table.geometry().right(), sim->width());
        EXPECT_LE(table.geometry().bottom(), sim->height());
        const QPoint ecart = trouver("logo").geometry().center() - table.rect().center();
        EXPECT_LE(std::max(std::abs(ecart.x()), std::abs(ecart.y())), 2);
    }
}

} // namespace
