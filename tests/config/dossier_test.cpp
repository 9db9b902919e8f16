#include "config/dossier.h"

#include "base/erreurs.h"

#include "outils/dossier_temporaire.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// The environment and the current directory are put back afterwards.
class DossierApplication : public testing::Test {
protected:
    DossierApplication() { ::unsetenv("TAVOLMEX_DOSSIER"); }
    ~DossierApplication() override {
        ::unsetenv("TAVOLMEX_DOSSIER");
        fs::current_path(depart_);
    }

    DossierTemporaire d;

private:
    fs::path depart_ = fs::current_path();
};

} // namespace

TEST_F(DossierApplication, la_demande_passe_avant_l_environnement_qui_passe_avant_l_executable) {
    ::setenv("TAVOLMEX_DOSSIER", "/ailleurs/", 1);
    EXPECT_EQ(dossier_application("/ici"), "/ici");
    EXPECT_EQ(dossier_application(std::nullopt), "/ailleurs");
    EXPECT_EQ(dossier_application(""), "/ailleurs");
    ::setenv("TAVOLMEX_DOSSIER", "", 1);
    const fs::path executable = fs::read_symlink("/proc/self/exe").parent_path();
    if (::access(executable.c_str(), W_OK) == 0)
        EXPECT_EQ(dossier_application(std::nullopt), executable);
    else
        EXPECT_EQ(dossier_application(std::nullopt).filename(), "Tavolmex");
}

TEST_F(DossierApplication, devient_absolu_sans_perdre_les_liens) {
    fs::current_path(d.chemin());
    const fs::path ici = fs::current_path();
    const std::pair<fs::path, fs::path> cas[] = {
        {".", ici}, {"./a//b/", ici / "a/b"}, {"lien/../b", ici / "lien/../b"}, {"/", "/"}};
    for (const auto& [demande, attendu] : cas)
        EXPECT_EQ(dossier_application(demande), attendu);
}

TEST_F(DossierApplication, est_cree_et_devient_le_dossier_courant) {
    entrer_dans_dossier(d / "a/b");
    EXPECT_TRUE(fs::equivalent(fs::current_path(), d / "a/b"));
    entrer_dans_dossier(d / "a");
    EXPECT_TRUE(fs::equivalent(fs::current_path(), d / "a"));
    d.ecrire("fichier", "");
    EXPECT_THROW(entrer_dans_dossier(d / "fichier"), ErreurFichier);
    EXPECT_THROW(entrer_dans_dossier(d / "fichier/x"), ErreurFichier);
}
