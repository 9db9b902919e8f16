#include "base/fichiers.h"

#include "base/brouillon.h"

#include "outils/dossier_temporaire.h"
#include "outils/pannes.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <regex>
#include <vector>

namespace fs = std::filesystem;

namespace {

// The reason that `action` gives for failing, "" when it does not fail.
template <typename Action>
std::string raison(Action action) {
    try {
        action();
    } catch (const ErreurFichier& erreur) {
        return erreur.raison();
    }
    return "";
}

int entrees(const fs::path& dossier) {
    return static_cast<int>(std::distance(fs::directory_iterator(dossier), {}));
}

} // namespace

TEST(LireOctets, refuse_tout_de_suite_ce_qui_n_est_pas_un_fichier_lisible) {
    const DossierTemporaire d;
    EXPECT_EQ(lire_octets(d.ecrire("plein", std::string("a\0b\r\n", 5))),
              std::string("a\0b\r\n", 5));
    EXPECT_EQ(lire_octets(d.ecrire("vide", "")), "");
    fs::create_directory(d / "dossier");
    ASSERT_EQ(::mkfifo((d / "tube").c_str(), 0600), 0);
    fs::resize_file(d.ecrire("creux", ""), std::uintmax_t{1} << 30);
    fs::create_symlink("boucle", d / "boucle");
    const std::pair<fs::path, std::string_view> cas[] = {
        {d / "absent", "le fichier n'existe pas"},
        {d / "dossier", "c'est un dossier"},
        {d / "tube", "ce n'est pas un fichier ordinaire"},
        {"/dev/zero", "ce n'est pas un fichier ordinaire"},
        {d / "creux", "le fichier est trop grand"},
        {d / "boucle", "trop de liens symboliques"},
        {d / "plein/x", "une partie du chemin n'est pas un dossier"},
        {d / std::string(300, 'x'), "le nom est trop long"}};
    for (const auto& [chemin, attendue] : cas)
        EXPECT_EQ(raison([&c = chemin] { lire_octets(c); }), attendue) << chemin;
    if (::geteuid() != 0) {
        fs::permissions(d / "plein", fs::perms::none);
        EXPECT_EQ(raison([&] { lire_octets(d / "plein"); }), "accès refusé");
    }
}

TEST(RemplacerFichier, garde_les_droits_et_le_lien_et_ne_laisse_rien_a_cote) {
    const DossierTemporaire d;
    d.ecrire("vrai", "ancien");
    fs::permissions(d / "vrai", fs::perms{0640});
    fs::create_directory(d / "sous");
    fs::create_symlink("../vrai", d / "sous/lien");
    remplacer_fichier(d / "sous/lien", "nouveau\r\n");
    EXPECT_EQ(d.lire("vrai"), "nouveau\r\n");
    EXPECT_TRUE(fs::is_symlink(d / "sous/lien"));
    EXPECT_EQ(fs::status(d / "vrai").permissions(), fs::perms{0640});
    EXPECT_EQ(entrees(d.chemin()), 2);
    EXPECT_EQ(entrees(d / "sous"), 1);

    fs::create_symlink("futur", d / "pendant");
    remplacer_fichier(d / "pendant", "x");
    EXPECT_TRUE(fs::is_symlink(d / "pendant"));
    EXPECT_EQ(d.lire("futur"), "x");
}

TEST(RemplacerFichier, refuse_un_dossier_un_tube_une_boucle_et_un_dossier_absent) {
    const DossierTemporaire d;
    fs::create_directory(d / "dossier");
    ASSERT_EQ(::mkfifo((d / "tube").c_str(), 0600), 0);
    fs::create_symlink("boucle", d / "boucle");
    fs::create_symlink("/dev/full", d / "peripherique");
    EXPECT_EQ(raison([&] { remplacer_fichier(d / "dossier", ""); }), "c'est un dossier");
    for (const char* nom : {"tube", "peripherique"})
        EXPECT_EQ(raison([&] { remplacer_fichier(d / nom, "x"); }),
                  "ce n'est pas un fichier ordinaire");
    EXPECT_EQ(raison([&] { remplacer_fichier(d / "boucle", ""); }), "trop de liens symboliques");
    EXPECT_EQ(raison([&] { remplacer_fichier(d / "absent/f", ""); }), "le fichier n'existe pas");
    EXPECT_TRUE(fs::is_fifo(d / "tube"));
    EXPECT_EQ(entrees(d.chemin()), 4);
}

// A limit on the size of files fails in the middle of a write, as a full disk does.
TEST(RemplacerFichier, une_ecriture_interrompue_laisse_l_ancien_fichier_seul) {
    const DossierTemporaire d;
    d.ecrire("f", "ancien");
    std::string pourquoi;
    {
        const DisquePlein plein(4096);
        pourquoi = raison([&] { remplacer_fichier(d / "f", std::string(100000, 'x')); });
    }
    EXPECT_EQ(pourquoi, "le fichier est trop grand");
    EXPECT_EQ(d.lire("f"), "ancien");
    EXPECT_EQ(entrees(d.chemin()), 1);
}

// A program that dies in the middle of a write leaves its draft, the next write removes it; the
// draft of a program that lives stays, and so does a file that is none.
TEST(RemplacerFichier, retire_ce_qu_un_programme_tue_a_laisse_et_rien_d_autre) {
    const DossierTemporaire d;
    d.ecrire("f", "ancien");
    d.ecrire(".tavolmex-notes", "à l'équipe");
    d.ecrire(".tavolmex-abcdef", "de la version d'avant");
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        const rlimit petit{4096, RLIM_INFINITY};
        ::setrlimit(RLIMIT_FSIZE, &petit);
        std::signal(SIGXFSZ, SIG_DFL); // kills in the middle
        remplacer_fichier(d / "f", std::string(100000, 'x'));
        ::_exit(0);
    }
    int etat = 0;
    ASSERT_EQ(::waitpid(enfant, &etat, 0), enfant);
    ASSERT_TRUE(WIFSIGNALED(etat));
    ASSERT_EQ(entrees(d.chemin()), 3) << "f, the notes and the child's draft";
    std::string vivant;
    systeme::Descripteur ouvert = creer_brouillon(d.chemin(), vivant);
    EXPECT_EQ(d.lire("f"), "ancien");
    remplacer_fichier(d / "f", "nouveau");
    EXPECT_EQ(d.lire("f"), "nouveau");
    EXPECT_EQ(entrees(d.chemin()), 3);
    EXPECT_TRUE(fs::exists(vivant));
    ouvert.fermer();
    retirer_brouillons(d.chemin());
    EXPECT_FALSE(fs::exists(vivant));
    EXPECT_EQ(d.lire(".tavolmex-notes"), "à l'équipe");
}

TEST(RemplacerFichier, respecte_la_protection_en_ecriture) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere";
    const DossierTemporaire d;
    d.ecrire("f", "ancien");
    fs::permissions(d / "f", fs::perms{0444});
    EXPECT_EQ(raison([&] { remplacer_fichier(d / "f", "x"); }), "accès refusé");
    fs::permissions(d.chemin(), fs::perms{0555});
    EXPECT_EQ(raison([&] { remplacer_fichier(d / "g", "x"); }), "accès refusé");
    fs::permissions(d.chemin(), fs::perms{0755});
    EXPECT_EQ(d.lire("f"), "ancien");
    EXPECT_EQ(entrees(d.chemin()), 1);
}

TEST(TrouverFichier, exact_d_abord_puis_sans_egard_a_la_casse) {
    const DossierTemporaire d;
    d.ecrire("ÉTÉ table.ini", "");
    d.ecrire("ÉTÉ TABLE.INI", "");
    EXPECT_EQ(trouver_fichier(d.chemin(), "Été Table.ini"), d / "ÉTÉ TABLE.INI") << "first by name";
    EXPECT_EQ(trouver_fichier(d.chemin(), "ÉTÉ table.ini"), d / "ÉTÉ table.ini");
    EXPECT_EQ(trouver_fichier(d.chemin(), "Ete Table.ini"), d / "Ete Table.ini");
    EXPECT_EQ(trouver_fichier(d / "absent", "f"), d / "absent/f");
}

TEST(SauvegarderVersion, date_numerote_et_garde_les_dix_dernieres_de_chaque_fichier) {
    const DossierTemporaire d;
    const fs::path versions = d / "versions";
    EXPECT_EQ(sauvegarder_version(d / "absent", versions), fs::path());
    EXPECT_FALSE(fs::exists(versions));
    d.ecrire("versions/f.x", "not a version");
    const fs::path ailleurs = sauvegarder_version(d.ecrire("ailleurs/f", "0"), versions);
    std::vector<fs::path> copies;
    const std::regex nom(R"(f\.\d{4}-\d\d-\d\d_\d\dh\d\dm\d\d\.[0-9a-f]{8}\.(\d+))");
    for (int i = 1; i <= 12; ++i) {
        copies.push_back(sauvegarder_version(d.ecrire("f", std::to_string(i)), versions));
        const std::string copie = copies.back().filename().string();
        std::smatch numero;
        ASSERT_TRUE(std::regex_match(copie, numero, nom)) << copie;
        EXPECT_EQ(numero[1], std::to_string(i));
        EXPECT_EQ(lire_octets(copies.back()), std::to_string(i));
    }
    EXPECT_EQ(entrees(versions), 12);
    EXPECT_TRUE(fs::exists(ailleurs));
    EXPECT_FALSE(fs::exists(copies[1]));
    EXPECT_TRUE(fs::exists(copies[2]));
}

TEST(RestaurerVersion, remet_la_plus_ancienne_et_garde_d_abord_la_presente) {
    const DossierTemporaire d;
    const fs::path versions = d / "versions";
    fs::path premiere;
    for (int i = 1; i <= 10; ++i) {
        const fs::path copie = sauvegarder_version(d.ecrire("f", std::to_string(i)), versions);
        premiere = i == 1 ? copie : premiere;
    }
    d.ecrire("f", "present");
    const fs::path gardee = restaurer_version(premiere, d / "f", versions);
    EXPECT_EQ(d.lire("f"), "1");
    EXPECT_EQ(lire_octets(gardee), "present");
    EXPECT_FALSE(fs::exists(premiere)) << "ten are kept";

    EXPECT_THROW(restaurer_version(premiere, d / "f", versions), ErreurFichier);
    EXPECT_EQ(d.lire("f"), "1") << "a version that is gone costs nothing";
    EXPECT_EQ(entrees(versions), 10);
    fs::remove(d / "f");
    EXPECT_EQ(restaurer_version(gardee, d / "f", versions), fs::path());
    EXPECT_EQ(d.lire("f"), "present") << "a deleted file comes back";
}

TEST(NomDeVersion, seule_une_copie_du_programme_en_est_une) {
    const DossierTemporaire d;
    const fs::path copie = sauvegarder_version(d.ecrire("a.b c.ini", "x"), d / "v");
    const auto nom = lire_nom_de_version(copie.filename().string());
    ASSERT_TRUE(nom);
    EXPECT_EQ(nom->fichier, "a.b c.ini");
    EXPECT_EQ(nom->dossier, cle_du_dossier(d / "a.b c.ini"));
    EXPECT_NE(nom->dossier, cle_du_dossier(d / "v/a.b c.ini"));
    EXPECT_EQ(nom->numero, 1);
    for (const char* autre :
         {"f", "f.x", "", "...", ".2026-03-01_14h05m09.0123abcd.1",
          "f.2026-03-01_14h05m09.0123abcd.", "f.2026-03-01_14h05m09.0123abcd.x",
          "f.2026-03-01_14h05m09.0123abcg.1", "f.2026-03-01_14h05m09.0123abc.1",
          "f.2026-03-01.0123abcd.1", "f.2026-03-01_14h05m09.0123abcd.1234567890"})
        EXPECT_FALSE(lire_nom_de_version(autre)) << autre;
}
