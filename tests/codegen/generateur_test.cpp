#include "codegen/generateur.h"

#include "base/fichiers.h"
#include "codegen/outils_generation.h"
#include "outils/pannes.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const std::string fonction = "TRAJECTOIRE:\n\told\n\tReturn\n";

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
        {
            const DisquePlein plein(place);
            EXPECT_THROW(atelier.generer(toujours(true)), ErreurFichier);
        }
        EXPECT_EQ(atelier.dossier.lire("cible.bas"), "ancienne");
        EXPECT_TRUE(atelier.dossier.lire("depart.bas") == programme) << place;
        for (const auto& reste : fs::directory_iterator(atelier.dossier.chemin()))
            EXPECT_NE(reste.path().filename().string().front(), '.') << reste.path();
    }
}

TEST(Generateur, tue_a_tout_instant_chaque_fichier_est_l_ancien_ou_le_nouveau) {
    const std::string programme = std::string(10'000, '\n') + fonction;
    Atelier atelier(programme, "#\n");
    atelier.generer(toujours(true));
    const std::string depart_apres = atelier.dossier.lire("depart.bas");
    const std::string cible_apres = atelier.dossier.lire("cible.bas");
    int pas = 1;
    for (bool finie = false; !finie; ++pas) {
        atelier.dossier.ecrire("depart.bas", programme);
        atelier.dossier.ecrire("cible.bas", "ancienne");
        finie = tuer_au_pas(pas, [&] { atelier.generer(toujours(true)); });
        const std::string depart = atelier.dossier.lire("depart.bas");
        const std::string cible = atelier.dossier.lire("cible.bas");
        EXPECT_TRUE(depart == programme || depart == depart_apres) << pas;
        EXPECT_TRUE(cible == "ancienne" || cible == cible_apres) << pas;
        EXPECT_TRUE(depart == programme || cible == cible_apres) << pas;
    }
    EXPECT_GT(pas, 40);
}
