#include "codegen/generateur.h"

#include "base/fichiers.h"
#include "codegen/outils_generation.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const std::string fonction = "TRAJECTOIRE:\n\told\n\tReturn\n";

// Runs `action` in a process of its own. @returns its exit code, or minus the signal that ended it
template <typename Action, typename Surveiller>
int dans_un_processus(Action action, Surveiller surveiller) {
    const pid_t enfant = ::fork();
    if (enfant == 0)
        ::_exit(action());
    surveiller(enfant);
    int etat = 0;
    ::waitpid(enfant, &etat, 0);
    return WIFEXITED(etat) ? WEXITSTATUS(etat) : -WTERMSIG(etat);
}

int generer_sur_disque_limite(const Atelier& atelier, rlim_t maximum) {
    const rlimit limite{maximum, maximum};
    std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &limite);
    try {
        atelier.generer(toujours(true));
    } catch (const ErreurFichier&) {
        return 1;
    }
    return 0;
}

} // namespace

TEST(Generateur, depart_et_cible_peuvent_etre_le_meme_fichier) {
    const std::string programme = "a\n" + fonction + "b";
    Atelier separes(programme, "#\nAVANCE:5\n");
    separes.generer(toujours(true));

    Atelier meme(programme, "#\nAVANCE:5\n");
    fs::create_symlink("depart.bas", meme.dossier / "lien.bas");
    for (const char* nom : {"depart.bas", "lien.bas"}) {
        meme.dossier.ecrire("depart.bas", programme);
        meme.demande.cible = (meme.dossier / nom).string();
        const Generation generation = meme.generer(toujours(true));
        EXPECT_EQ(meme.dossier.lire("depart.bas"), separes.dossier.lire("cible.bas"));
        ASSERT_EQ(generation.sauvegardes.size(), 1U);
        EXPECT_EQ(lire_octets(generation.sauvegardes.front()), programme);
    }
    EXPECT_TRUE(fs::is_symlink(meme.dossier / "lien.bas"));
}

TEST(Generateur, un_fichier_illisible_ou_un_dossier_absent_ne_change_rien) {
    const auto refusee = [](const std::function<void(Atelier&)>& abimer) {
        Atelier atelier(fonction, "#\n");
        abimer(atelier);
        EXPECT_THROW(atelier.generer(toujours(true)), ErreurExecution);
        EXPECT_EQ(atelier.dossier.lire("depart.bas"), fonction);
        EXPECT_FALSE(fs::is_regular_file(atelier.demande.cible));
    };
    refusee([](Atelier& a) { a.demande.entree = a.dossier / "absent.ini"; });
    refusee([](Atelier& a) { a.demande.depart = a.dossier.chemin(); });
    refusee([](Atelier& a) { a.demande.cible = (a.dossier / "absent/cible.bas").string(); });
    refusee([](Atelier& a) { fs::create_directory(a.demande.cible); });
    refusee([](Atelier& a) { a.dossier.ecrire("Configuration/Sauvegardes", "un fichier"); });
    refusee([](Atelier& a) { a.demande.fonction = "A\nB"; });
}

TEST(Generateur, un_disque_plein_laisse_chaque_fichier_entier) {
    const std::string programme = std::string(10'000, '\n') + fonction;
    // Room for nothing; for the copies and the shorter starting file, but not for the target.
    for (const rlim_t place : {rlim_t{100}, rlim_t{programme.size()}}) {
        Atelier atelier(programme, "#\n");
        atelier.dossier.ecrire("cible.bas", "ancienne");
        EXPECT_EQ(dans_un_processus([&] { return generer_sur_disque_limite(atelier, place); },
                                    [](pid_t) {}),
                  1);
        EXPECT_EQ(atelier.dossier.lire("cible.bas"), "ancienne");
        EXPECT_TRUE(atelier.dossier.lire("depart.bas") == programme) << place;
        for (const auto& reste : fs::directory_iterator(atelier.dossier.chemin()))
            EXPECT_NE(reste.path().filename().string().front(), '.') << reste.path();
    }
}

TEST(Generateur, tue_a_tout_moment_chaque_fichier_est_l_ancien_ou_le_nouveau) {
    const std::string programme = std::string(400'000, '\n') + fonction;
    Atelier atelier(programme, "#\n");
    atelier.generer(toujours(true));
    const std::string depart_apres = atelier.dossier.lire("depart.bas");
    const std::string cible_apres = atelier.dossier.lire("cible.bas");
    int tues = 0;
    for (useconds_t delai = 0; delai < 30'000; delai += 1'000) {
        atelier.dossier.ecrire("depart.bas", programme);
        atelier.dossier.ecrire("cible.bas", "ancienne");
        const int fin = dans_un_processus(
            [&] {
                atelier.generer(toujours(true));
                return 0;
            },
            [&](pid_t enfant) {
                ::usleep(delai);
                ::kill(enfant, SIGKILL);
            });
        tues += fin == -SIGKILL ? 1 : 0;
        const std::string depart = atelier.dossier.lire("depart.bas");
        const std::string cible = atelier.dossier.lire("cible.bas");
        EXPECT_TRUE(depart == programme || depart == depart_apres) << delai;
        EXPECT_TRUE(cible == "ancienne" || cible == cible_apres) << delai;
        EXPECT_TRUE(depart == programme || cible == cible_apres) << delai;
    }
    EXPECT_GT(tues, 0);
}
