#include "seance/seance.h"

#include "outils/dossier_temporaire.h"
#include "outils/fausses_fenetres.h"
#include "outils/textes.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace {

namespace fs = std::filesystem;
using Appels = std::vector<std::string>;

/// Writes what it hears into the list of a session's calls, under its own name.
class Oreille final : public Ecouteur {
public:
    Oreille(Appels& appels, std::string nom) : appels_(appels), nom_(std::move(nom)) {}

    void projet_va_etre_lu() override { noter("va être lu"); }
    void projet_change(Lecture lecture) override {
        noter("projet " + std::to_string(static_cast<int>(lecture)));
    }
    void trajet_change() override { noter("trajet"); }
    void fichier_ecrit(const fs::path& fichier) override {
        noter("écrit " + fichier.filename().string());
    }

private:
    void noter(const std::string& quoi) { appels_.push_back(nom_ + " : " + quoi); }
    Appels& appels_;
    std::string nom_;
};

/// A session whose outlets note every call, and two listeners.
class SeanceTest : public testing::Test, protected Hote {
protected:
    SeanceTest() {
        fs::current_path(d.chemin()); // as the program does
        une->ecouter(seance.annonces());
        autre->ecouter(seance.annonces());
    }
    ~SeanceTest() override { fs::current_path(fs::temp_directory_path()); }

    void Init_Table() override {
        f.appels.emplace_back("Init_Table");
        if (e.XMax > 900)
            throw Debordement(e.XMax);
    }
    void redessiner() override { f.appels.emplace_back("redessiner"); }
    void appliquer_reglages() override { f.appels.emplace_back("réglages"); }
    bool apres_panne() override { return continue_apres_panne; }
    fs::path choisir_dossier(std::string_view) override { return ailleurs; }
    bool en_marche() const override { return f.intervalle > 0; }
    bool terminee() const override { return f.terminee; }

    void ecrire(const char* nom, std::string_view octets) {
        d.ecrire(std::string("Configuration/") + nom, octets);
    }
    /// Robot 1 has driven 50 cm straight on, and that is not saved.
    void enregistrer() {
        e.TrajNbActions(1) = 1;
        e.TrajAction(1, 1) = "AVANCE";
        e.TrajParam1(1, 1) = 50;
        e.TrajetModifie(1) = true;
        f.appels.clear();
    }

    DossierTemporaire d;
    std::unique_ptr<Etat> etat = std::make_unique<Etat>();
    Etat& e = *etat;
    FaussesFenetres f;
    bool continue_apres_panne = false;
    fs::path ailleurs;
    Seance seance{e, f, *this, d.chemin()};
    std::optional<Oreille> une{std::in_place, f.appels, "une"};
    std::optional<Oreille> autre{std::in_place, f.appels, "autre"};
};

TEST_F(SeanceTest, seul_le_premier_demarrage_depose_la_notice) {
    seance.projet().Installe();
    EXPECT_FALSE(fs::exists(d / "Readme.txt")) << "its files, nothing else";
    EXPECT_TRUE(seance.demarrer());
    EXPECT_FALSE(fs::exists(d / "Readme.txt")) << "settings were there";

    fs::remove(d / "Configuration/Tavolmex.ini");
    EXPECT_TRUE(seance.demarrer());
    EXPECT_TRUE(d.lire("Readme.txt").starts_with("TAVOLMEX"));

    fs::remove(d / "Configuration/Tavolmex.ini");
    d.ecrire("Readme.txt", "la mienne");
    EXPECT_TRUE(seance.demarrer());
    EXPECT_EQ(d.lire("Readme.txt"), "la mienne");
    EXPECT_TRUE(f.messages.empty());
}

TEST_F(SeanceTest, le_demarrage_installe_lit_regle_puis_dessine) {
    ecrire("Tavolmex.ini", "Défaut, Essai\r\n");
    ecrire("Essai Table.ini", "M,Finale\r\nL,0,0,90,50\r\n");
    ecrire("Essai Robot1.ini", "V,un,deux\r\n");
    EXPECT_TRUE(seance.demarrer());
    ASSERT_EQ(f.messages.size(), 1U);
    EXPECT_EQ(f.appels,
              (Appels{"une : va être lu", "autre : va être lu", "Init_Table",
                      "message " + f.messages[0], "réglages", "Dessine_Table", "Dessine_Robot"}));
    EXPECT_EQ(f.LNom, "\r\nFinale");
    EXPECT_EQ(e.XMax, 90);
    EXPECT_TRUE(fs::exists(d / "Configuration/Essai Trajet9.ini"));
    EXPECT_FALSE(seance.proposer_reprise());
}

TEST_F(SeanceTest, une_panne_au_demarrage_est_dite_et_l_hote_decide_de_la_suite) {
    for (const bool continuer : {false, true}) {
        f.appels.clear();
        continue_apres_panne = continuer;
        ecrire("Defaut Table.ini", "L,0,0,901,50\r\n");
        EXPECT_EQ(seance.demarrer(), continuer);
        EXPECT_TRUE(f.messages.back().starts_with("Erreur d'exécution : ")) << f.messages.back();
        EXPECT_EQ(f.appels.back(), continuer ? "Dessine_Robot" : "message " + f.messages.back());
    }
}

TEST_F(SeanceTest, recharger_annonce_avant_de_lire_et_apres_avoir_dessine) {
    seance.demarrer();
    e.NomProjet = "Essai";
    e.TableHorizontale = vrai16(true);
    ecrire("Essai Table.ini", "L,0,0,90,50\r\n");
    f.appels.clear();
    autre.reset(); // one that has gone hears nothing more
    seance.recharger();
    EXPECT_EQ(f.appels, (Appels{"une : va être lu", "Timer 0", "logo 1", "course 0", "Init_Table",
                                "Dessine_Table", "Dessine_Robot", "une : projet 0"}));
    EXPECT_EQ(e.XMax, 50); // turned, like the table before
    EXPECT_TRUE(fs::exists(d / "Configuration/Essai Trajet9.ini"));
}

TEST_F(SeanceTest, ce_qui_change_dehors_est_relu_seul_ou_avec_le_reste) {
    seance.demarrer();
    ecrire("Defaut Table.ini", "L,0,0,90,50\r\n");
    ecrire("Defaut Trajet1.ini", "Init,7,8,9\r\nFIN\r\n");
    enregistrer();
    seance.relire_table();
    EXPECT_EQ(f.appels, (Appels{"une : projet 2", "autre : projet 2", "redessiner"}));
    EXPECT_EQ(e.XMax, 90);
    EXPECT_TRUE(e.TrajetModifie(1));
    f.appels.clear();
    seance.relire_tout();
    EXPECT_EQ(f.appels, (Appels{"une : projet 1", "autre : projet 1", "redessiner"}));
    EXPECT_EQ(e.XRobot(1), 7);
    EXPECT_FALSE(e.TrajetModifie(1));
    ASSERT_EQ(seance.reprise().gardes().size(), 1U);

    f.appels.clear();
    seance.reprendre(seance.reprise().gardes()[0].contenu);
    EXPECT_EQ(f.appels, (Appels{"une : trajet", "autre : trajet"}));
    EXPECT_EQ(e.TrajParam1(1, 1), 50);
}

TEST_F(SeanceTest, chaque_fichier_ecrit_est_annonce_et_un_refus_n_ecrit_rien) {
    seance.demarrer();
    for (const bool oui : {true, false}) {
        enregistrer();
        f.reponses = {oui};
        EXPECT_TRUE(seance.SauvRobot());
        Appels annonces;
        for (const std::string& appel : f.appels)
            if (appel.starts_with("une :"))
                annonces.push_back(appel);
        EXPECT_EQ(annonces, oui ? (Appels{"une : écrit Defaut Trajet1.ini",
                                          "une : écrit Defaut PourGenerer10.ini"})
                                : Appels{});
    }
}

TEST_F(SeanceTest, ce_qui_ne_peut_pas_etre_ecrit_va_ailleurs_ou_retient) {
    seance.demarrer();
    fs::rename(d / "Configuration", d / "partie");
    d.ecrire("Configuration", "une clé débranchée");
    enregistrer();
    f.reponses = {true, true, false}; // save; elsewhere, but nothing chosen; not elsewhere
    EXPECT_FALSE(seance.SauvRobot());
    EXPECT_TRUE(e.TrajetModifie(1));
    ailleurs = d / "partie";
    f.reponses = {true, true};
    EXPECT_TRUE(seance.SauvRobot());
    EXPECT_EQ(f.appels.back(), "information Le trajet est écrit dans " + ailleurs.string());
    EXPECT_TRUE(contient(d.lire("partie/Defaut Trajet1.ini"), "AVANCE    ,50"));
    f.reponses = {false, true}; // refused, and given up
    enregistrer();
    EXPECT_TRUE(seance.SauvRobot());
}

// Killed while it had another project open: the next session goes on with that one.
TEST_F(SeanceTest, l_enregistrement_d_un_autre_projet_le_recharge) {
    {
        const auto autre_etat = std::make_unique<Etat>();
        Seance tuee(*autre_etat, f, *this, d.chemin());
        autre_etat->NomProjet = "Essai";
        tuee.recharger();
        autre_etat->TrajNbActions(1) = 1;
        autre_etat->TrajAction(1, 1) = "AVANCE";
        autre_etat->TrajetModifie(1) = true;
        tuee.reprise().ecrire();
    }
    seance.demarrer();
    f.appels.clear();
    f.reponses = {true};
    EXPECT_TRUE(seance.proposer_reprise());
    EXPECT_EQ(e.NomProjet, "Essai");
    EXPECT_EQ(e.TrajNbActions(1), 1);
    EXPECT_EQ(f.appels[1], "une : va être lu");
    EXPECT_EQ(f.appels.back(), "autre : trajet");
}

} // namespace
