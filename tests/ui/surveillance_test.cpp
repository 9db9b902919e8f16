#include "ui/principale/surveillance.h"

#include "base/fichiers.h"
#include "ui/banc.h"

#include <fstream>

namespace {

class FichiersChanges : public Banc {
protected:
    std::filesystem::path chemin(const std::string& nom) const {
        return dossier / ("Configuration/Defaut " + nom);
    }
    void ecrire(const std::string& nom, std::string_view octets) const {
        std::ofstream(chemin(nom), std::ios::binary) << octets;
    }
    /// What must not come is given the time to come.
    static void laisser_passer() { QTest::qWait(2 * Veilleur::attente_ms); }
    template <typename Condition>
    void attendre(Condition condition) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return condition() && QApplication::activeModalWidget() == nullptr; }));
    }
    void attendre_relecture(const std::string& noms) {
        attendre([&] { return etat() == "Relu après un changement : " + noms; });
    }
    std::string etat() { return trouver<LigneTexte>("Mess").texte().toStdString(); }
};

TEST_F(FichiersChanges, ecrit_remplace_ou_recree_le_fichier_est_relu) {
    demarrer();
    const std::function<void()> manieres[] = {
        [this] { ecrire("Table.ini", "L,0,0,90,50\r\n"); },
        [this] { remplacer_fichier(chemin("Table.ini"), "L,0,0,91,50\r\n"); },
        [this] { ecrire("Table.ini", "L,0,0,92,50\r\n"); }, // the replaced file is still watched
        [this] {
            std::filesystem::remove(chemin("Table.ini"));
            laisser_passer();
            EXPECT_EQ(e().XMax, 92);
            ecrire("Table.ini", "L,0,0,93,50\r\n");
        }};
    int x = 90;
    for (const auto& maniere : manieres) {
        fenetres().ecrire_texte_Mess("");
        maniere();
        attendre_relecture("Defaut Table.ini");
        EXPECT_EQ(e().XMax, x++);
    }
    EXPECT_TRUE(messages.empty());
}

TEST_F(FichiersChanges, une_relecture_laisse_robots_logo_et_banniere_a_leur_place) {
    const std::string avec_nom = "L,0,0,200,320\r\nM,Finale de Troyes\r\n";
    dossier.ecrire("Configuration/Defaut Table.ini", avec_nom);
    demarrer();
    cocher("Check3", true);
    e().XRobot(1) = 40;
    e().YRobot(1) = 60;
    e().TrajetModifie(1) = true; // a table takes nothing away from a recording
    const auto places = [this] {
        for (const char* nom : {"logo", "LNom"})
            EXPECT_TRUE(trouver(nom).isVisible() && trouver(nom).width() > 50) << nom;
        return std::pair(trouver("logo").geometry(), trouver("LNom").geometry());
    };
    const auto avant = places();
    const QSize taille = sim->size();
    ecrire("Table.ini", avec_nom + "O,1,2,3,4\r\n");
    attendre_relecture("Defaut Table.ini");
    EXPECT_EQ(e().NbZones, 2);
    EXPECT_EQ(e().Zones(2).X1, 2); // turned
    EXPECT_EQ(e().XRobot(1), 40);
    EXPECT_EQ(e().YRobot(1), 60);
    EXPECT_EQ(sim->size(), taille);
    EXPECT_TRUE(e().TrajetModifie(1));
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(places(), avant);
    e().TrajetModifie(1) = false;
    ecrire("Trajet1.ini", "Init,7,8,9\r\nFIN\r\n");
    attendre_relecture("Defaut Trajet1.ini");
    EXPECT_EQ(places(), avant);
}

TEST_F(FichiersChanges, robots_et_trajets_sont_relus_ensemble) {
    demarrer();
    for (int n = 1; n <= 4; ++n)
        ecrire("Trajet" + std::to_string(n) + ".ini", "Init,7,8,9\r\nFIN\r\n");
    ecrire("Robot2.ini", "V,50,50\r\n");
    attendre_relecture("Defaut Robot2.ini, Defaut Trajet1.ini, Defaut Trajet2.ini et 2 de plus");
    EXPECT_EQ(e().XRobot(1), 7);
    EXPECT_EQ(e().VitesseLin(2), 0.5F);
}

TEST_F(FichiersChanges, une_course_ou_un_enregistrement_fait_demander) {
    int x = 0;
    for (const bool course : {true, false}) {
        for (const bool oui : {false, true}) {
            demarrer();
            messages.clear();
            e().TrajetModifie(1) = !course;
            if (course)
                cliquer("Command1");
            reponses = {oui};
            ecrire("Trajet1.ini", "Init," + std::to_string(++x) + ",8,9\r\nFIN\r\n");
            attendre([this] { return !messages.empty(); });
            QApplication::processEvents(); // what follows the answer
            EXPECT_TRUE(
                contient(messages[0], "Modifié par un autre programme : Defaut Trajet1.ini\n"));
            EXPECT_TRUE(contient(messages[0], course ? "arrêter la course" : "perdre"));
            EXPECT_EQ(e().XInit(1) == float(x), oui);
            EXPECT_EQ(seance().en_marche(), course && !oui);
            EXPECT_EQ(e().TrajetModifie(1), !course && !oui);
            laisser_passer();
            EXPECT_EQ(messages.size(), 1U) << "asked once " << course << oui;
            e().TrajetModifie(1) = false;
        }
    }
}

TEST_F(FichiersChanges, repare_sous_sa_propre_boite_d_erreur_il_est_relu) {
    bool repare = false;
    avant_de_repondre = [&](QDialog&) {
        if (!std::exchange(repare, true))
            ecrire("Table.ini", "L,0,0,95,50\r\n");
    };
    dossier.ecrire("Configuration/Defaut Table.ini", "n'importe quoi");
    demarrer();
    attendre([this] { return e().XMax == 95; });
    EXPECT_EQ(messages.size(), 1U);
    repare = false; // and under the one of a later reading
    ecrire("Table.ini", "encore");
    attendre([this] { return messages.size() == 2 && e().XMax == 95; });
    EXPECT_EQ(e().XMax, 95);
}

TEST_F(FichiersChanges, change_sous_une_question_de_sauvegarde_il_n_est_pas_pris_pour_le_notre) {
    demarrer();
    int questions = 0;
    avant_de_repondre = [&](QDialog& boite) {
        if (boite.objectName() == "question" && ++questions == 2) // ours is written by then
            ecrire("Trajet1.ini", "Init,71,8,9\r\nFIN\r\n");
    };
    e().TrajetModifie(1) = true;
    e().TrajetModifie(2) = true;
    reponses = {true, true};
    seance().SauvRobot();
    attendre([this] { return e().XInit(1) == 71; });
    EXPECT_EQ(questions, 2);
}

TEST_F(FichiersChanges, ce_que_le_programme_ecrit_ou_qui_ne_change_rien_ne_dit_rien) {
    demarrer();
    e().TrajetModifie(1) = true;
    reponses = {true};
    seance().SauvRobot();
    messages.clear();
    const std::string question = etat();
    const std::string avant = dossier.lire("Configuration/Defaut Table.ini");
    ecrire("Table.ini", avant);
    dossier.ecrire("Configuration/Autre Table.ini", "L,0,0,90,50\r\n");
    laisser_passer();
    EXPECT_EQ(etat(), question);
    EXPECT_EQ(e().XMax, 200);
    EXPECT_TRUE(messages.empty());
}

} // namespace
