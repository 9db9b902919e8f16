#include "ui/banc_telecommande.h"

#include <QAbstractButton>
#include <QMenu>
#include <QTreeWidget>

#include <algorithm>

namespace {

class LeVerdict : public ConsoleFenetre {
protected:
    void trajet(int robot, const std::string& lignes) {
        dossier.ecrire("Configuration/Defaut Trajet" + std::to_string(robot) + ".ini", lignes);
    }
    std::string ligne() { return trouver<QAbstractButton>("verdict").text().toStdString(); }
    /// The line, once what was asked for is computed.
    void attendre(const std::string& voulu) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return ligne() == voulu; })) << ligne() << "\n" << voulu;
    }
    QWidget& ouvrir_liste() {
        QTest::keyClick(&options(), Qt::Key_F7);
        return trouver("Analyse");
    }
    /// The findings of the list, "robot/sentence" each.
    std::vector<std::string> constats() {
        std::vector<std::string> textes;
        const auto& liste = trouver<QTreeWidget>("constats");
        for (int i = 0; i < liste.topLevelItemCount(); ++i)
            for (int j = 0; j < liste.topLevelItem(i)->childCount(); ++j)
                textes.push_back((liste.topLevelItem(i)->text(0).section(" :", 0, 0) + "/" +
                                  liste.topLevelItem(i)->child(j)->text(4))
                                     .toStdString());
        return textes;
    }
    bool signale(std::string_view debut) {
        return std::ranges::any_of(
            constats(), [&](const std::string& texte) { return texte.starts_with(debut); });
    }
};

// 100 cm/s: n cm take n + 1 ticks of 1/100 s, a pause one more.
TEST_F(LeVerdict, dit_fin_marge_arrivee_et_constats_et_suit_les_fichiers) {
    demarrer();
    attendre("Robot 1 pas fini à 90 s · arrivée x = 20 cm, y = 22 cm, cap = 270° · 3 constats");
    EXPECT_TRUE(trouver("verdict").accessibleDescription().startsWith("Projet Defaut · 1 robot."));
    const std::pair<const char*, const char*> cas[] = {
        {"Init,100,30,0\r\nAvance,150\r\nFIN\r\n",
         "Fin à 1,51 s · marge 88,49 s · arrivée x = 250 cm, y = 30 cm, cap = 0° · 1 constat"},
        {"Init,100,30,-90\r\nRecule,40\r\nFIN\r\n",
         "Fin à 0,41 s · marge 89,59 s (+1,10 s) · arrivée x = 100 cm, y = 70 cm, cap = 270° · "
         "aucun constat"},
        {"Init,32700,30,0\r\nAvance,200\r\nFIN\r\n", ""}, // ends in an error, without a box
        {"Init,100,30,0\r\nFIN\r\n",
         "Aucune action · arrivée x = 100 cm, y = 30 cm, cap = 0° · aucun constat"},
    };
    for (const auto& [lignes, voulu] : cas) {
        trajet(1, lignes);
        if (*voulu != '\0')
            attendre(voulu);
        else
            EXPECT_TRUE(QTest::qWaitFor([this] {
                return ligne().starts_with("Match arrêté par une erreur à");
            })) << ligne();
        EXPECT_TRUE(messages.empty());
    }
}

TEST_F(LeVerdict, suit_chaque_action_enregistree_et_se_tait_pendant_elle) {
    trajet(1, "Init,100,30,0\r\nAvance,150\r\nFIN\r\n");
    ouvrir();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !ligne().empty(); }));
    commencer();
    auto& verdict = trouver("verdict");
    bouton("Avance").click(); // 10 cm
    EXPECT_FALSE(verdict.isVisible());
    finir_l_action();
    EXPECT_TRUE(verdict.isVisible());
    attendre("Fin à 0,11 s · marge 89,89 s (+1,40 s) · arrivée x = 110 cm, y = 30 cm, cap = 0° · "
             "aucun constat");
    saisir("Text1", "100");
    jouer("Avance");
    attendre("Fin à 1,12 s · marge 88,88 s (-1,01 s) · arrivée x = 210 cm, y = 30 cm, cap = 0° · "
             "1 constat");
    ouvrir_liste();
    const auto* rangee = trouver<QTreeWidget>("constats").topLevelItem(0)->child(0);
    EXPECT_EQ(rangee->text(2) + rangee->text(3), "") << "the path is in no file yet";
    e().TrajetModifie(1) = false;
}

TEST_F(LeVerdict, f7_ouvre_l_analyse_sa_liste_par_robot_et_echap_la_ferme) {
    dossier.ecrire("Configuration/Tavolmex.ini", "NbRobot, 2\r\n");
    trajet(1, "Init,50,30,0\r\nAvance,160\r\nFIN\r\n");
    trajet(2, "Init,50,200,0\r\nPause,300\r\nFIN\r\n");
    demarrer();
    attendre("Fin à 3,02 s · marge 86,98 s · robot 1 en x = 210 cm, y = 30 cm, cap = 0° · "
             "2 constats");
    QWidget& liste = ouvrir_liste();
    EXPECT_TRUE(liste.isVisible());
    EXPECT_TRUE(signale("Robot 1/Le contour sort de la table pendant l'action 1"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return signale("Robot 1/Au plus près du robot 2 : "); }));
    EXPECT_TRUE(signale("Robot 2/Au plus près du robot 1 : "));
    QTest::keyClick(&liste, Qt::Key_Escape);
    EXPECT_FALSE(liste.isVisible());
    QTest::keyClick(&trouver("verdict"), Qt::Key_Return);
    EXPECT_TRUE(liste.isVisible());
    cocher("utiliDamier", true); // the list in sight follows
    cocher("Check3", true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return signale("Tout le projet/Le damier est compté"); }));
}

TEST_F(LeVerdict, un_genre_masque_l_est_pour_ce_projet_seul_d_une_fois_a_l_autre) {
    trajet(1, "Init,100,30,0\r\nAvance,150\r\nFIN\r\n");
    const std::string debut = "Fin à 1,51 s · marge 88,49 s · arrivée x = 250 cm, y = 30 cm, "
                              "cap = 0° · ";
    demarrer();
    attendre(debut + "1 constat");
    ouvrir_liste();
    for (QAction* genre : trouver<QMenu>("menu_genres").actions())
        if (genre->objectName() == "sortie")
            genre->trigger();
    EXPECT_EQ(ligne(), debut + "aucun constat, 1 genre masqué");
    EXPECT_TRUE(constats().empty());
    demarrer();
    attendre(debut + "aucun constat, 1 genre masqué");
    dossier.ecrire("Configuration/Autre Trajet1.ini", "Init,100,30,0\r\nAvance,150\r\nFIN\r\n");
    e().NomProjet = "Autre";
    seance().recharger();
    attendre(debut + "1 constat");
}

} // namespace
