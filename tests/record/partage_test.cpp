#include "banc_console.h"

#include "outils/commande.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <set>

namespace {

namespace fs = std::filesystem;

// One of several programs on one folder: state, recording and recovery file of its own.
struct Programme {
    explicit Programme(const DossierTemporaire& d, const std::string& projet = "Defaut")
        : reprise(*etat, d.chemin()) {
        etat->NomProjet = projet;
        partage = !reprise.prendre_projet().texte.empty();
    }
    void enregistrer(int distance) {
        etat->TrajAction(1, 1) = "AVANCE    ";
        etat->TrajParam1(1, 1) = distance;
        etat->TrajNbActions(1) = 1;
        Set_Sauv_Robot(*etat, 1);
        reprise.ecrire();
    }
    bool changer(const std::string& projet) {
        etat->NomProjet = projet;
        return !reprise.prendre_projet().texte.empty();
    }
    /// The distance that the next recording offered would bring back; 0 when none is.
    int repris() {
        f.reponses = {true};
        return reprise.proposer(f) ? int(etat->TrajParam1(1, 1)) : 0;
    }

    std::unique_ptr<Etat> etat = std::make_unique<Etat>();
    FaussesFenetres f;
    Reprise reprise;
    bool partage = false;
};

std::set<std::string> fichiers_presents(const DossierTemporaire& d) {
    std::set<std::string> trouves;
    for (const auto& entree : fs::directory_iterator(d.chemin())) {
        if (entree.is_regular_file()) // what was refused is kept in a directory
            trouves.insert(entree.path().filename().string());
    }
    return trouves;
}

TEST(Partage, le_second_programme_le_sait_et_a_sa_propre_reprise) {
    const DossierTemporaire d;
    auto premier = std::make_unique<Programme>(d);
    EXPECT_FALSE(premier->partage);
    premier->enregistrer(10);
    auto second = std::make_unique<Programme>(d);
    EXPECT_TRUE(second->partage);
    EXPECT_EQ(second->repris(), 0) << "the first one's, who is alive";
    second->enregistrer(20);
    EXPECT_EQ(premier->reprise.chemin(), d / "Defaut Reprise.ini");
    EXPECT_EQ(second->reprise.chemin(), d / "Defaut Reprise2.ini");
    const std::string du_premier = d.lire("Defaut Reprise.ini");
    second->f.reponses = {false};
    second->reprise.sauver(second->f);
    EXPECT_EQ(d.lire("Defaut Reprise.ini"), du_premier);
    EXPECT_FALSE(fs::exists(d / "Defaut Reprise2.ini"));
    second->enregistrer(30);

    // Both gone: each one's is offered, one start after the other.
    second.reset();
    premier.reset();
    EXPECT_EQ(fichiers_presents(d),
              (std::set<std::string>{"Defaut Reprise.ini", "Defaut Reprise2.ini"}));
    Programme suivant(d);
    EXPECT_FALSE(suivant.partage);
    EXPECT_EQ(suivant.repris(), 10);
    Programme celui_d_apres(d);
    EXPECT_TRUE(celui_d_apres.partage);
    EXPECT_EQ(celui_d_apres.repris(), 30);
    EXPECT_EQ(celui_d_apres.reprise.chemin(), d / "Defaut Reprise2.ini");
    EXPECT_EQ(Programme(d).repris(), 0);
}

TEST(Partage, le_verrou_suit_le_projet_et_celui_d_un_tue_ne_tient_plus) {
    const DossierTemporaire d;
    Programme premier(d);
    EXPECT_TRUE(Programme(d).partage);
    EXPECT_FALSE(Programme(d, "Finale").partage);
    EXPECT_FALSE(premier.changer("Finale"));
    EXPECT_FALSE(Programme(d).partage);
    EXPECT_TRUE(Programme(d, "Finale").partage);
    d.ecrire("Plan Verrou", "notes of the team");

    int tube[2];
    ASSERT_EQ(::pipe(tube), 0);
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        Programme tue(d, "Essai");
        tue.enregistrer(40);
        [[maybe_unused]] const auto dit = ::write(tube[1], "x", 1);
        ::pause();
    }
    char pret = 0;
    ASSERT_EQ(::read(tube[0], &pret, 1), 1);
    EXPECT_EQ(Programme(d, "Essai").repris(), 0);
    EXPECT_TRUE(Programme(d, "Essai").partage);
    ::kill(enfant, SIGKILL);
    ::waitpid(enfant, nullptr, 0);
    EXPECT_TRUE(fs::exists(d / "Essai Verrou"));
    // Any start clears away what the killed one left.
    EXPECT_FALSE(premier.changer("Autre"));
    EXPECT_EQ(fichiers_presents(d),
              (std::set<std::string>{"Autre Verrou", "Essai Reprise.ini", "Plan Verrou"}));
    Programme suivant(d, "Essai");
    EXPECT_FALSE(suivant.partage);
    EXPECT_EQ(suivant.repris(), 40);
    ::close(tube[0]);
    ::close(tube[1]);
}

TEST(Partage, un_dossier_ou_rien_ne_s_ecrit_n_arrete_personne) {
    const DossierTemporaire d;
    const auto etat = std::make_unique<Etat>();
    Etat& e = *etat;
    Reprise reprise(e, d / "absent");
    EXPECT_EQ(reprise.prendre_projet().texte, "");
    EXPECT_EQ(reprise.chemin(), d / "absent/Defaut Reprise.ini");
    e.NomProjet = "../x";
    EXPECT_EQ(reprise.prendre_projet().texte, "");
    EXPECT_THROW(reprise.chemin(), ErreurExecution);
}

TEST(Partage, piloter_le_dit_et_garde_a_part_ce_qu_il_n_a_pas_pu_sauver) {
    const DossierTemporaire d;
    fs::create_directory(d / "Configuration");
    fs::create_directory(d / "Configuration/Defaut Trajet1.ini"); // cannot be written
    const fs::path commandes = d.ecrire("commandes.txt", "Avance 5\n");
    const auto piloter = [&] {
        return lancer_depuis(commandes, {"piloter", "--dossier", d.chemin(), "--sauver", "oui"});
    };
    auto etat = std::make_unique<Etat>();
    Reprise fenetre(*etat, d / "Configuration");
    fenetre.prendre_projet();
    const Resultat partage = piloter();
    EXPECT_TRUE(contient(partage.erreurs, "« Defaut » est déjà ouvert dans un autre programme"));
    EXPECT_FALSE(fs::exists(fenetre.chemin()));
    EXPECT_TRUE(fs::exists(d / "Configuration/Defaut Reprise2.ini"));
    piloter();
    EXPECT_TRUE(fs::exists(d / "Configuration/Defaut Reprise3.ini"));
}

} // namespace
