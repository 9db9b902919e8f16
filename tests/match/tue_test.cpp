// The program killed in the middle of what it writes.
#include "outils/commande.h"
#include "outils/coupure.h"
#include "outils/pannes.h"

namespace {

namespace fs = std::filesystem;

struct CasTue {
    std::vector<std::string> commande;
    const char* entree = "";
};

void preparer_le_cas(const DossierTemporaire& d, const CasTue& cas) {
    fs::copy(DONNEES "/codegen/menu_complet", d.chemin());
    d.ecrire("entree.txt", cas.entree);
    lancer({"installer", "--dossier", d.chemin()});
    d.ecrire("Configuration/Defaut Trajet1.ini",
             "Init,60,40,90\r\nAVANCE    ,20\r\nDROITE    ,45\r\nFIN\r\n");
}

// In a child: what it says is nobody's.
void jouer_le_cas(const DossierTemporaire& d, const CasTue& cas) {
    fs::current_path(d.chemin());
    if (!std::freopen("entree.txt", "r", stdin) || !std::freopen("/dev/null", "w", stdout) ||
        !std::freopen("/dev/null", "w", stderr))
        return;
    std::vector<std::string> mots{"tavolmex-cli"};
    mots.insert(mots.end(), cas.commande.begin(), cas.commande.end());
    mots.insert(mots.end(), {"--dossier", "."});
    std::vector<char*> argv;
    argv.reserve(mots.size());
    for (std::string& mot : mots)
        argv.push_back(mot.data());
    executer_ligne_de_commande(static_cast<int>(argv.size()), argv.data());
}

// Each file is the one before or the one after; the project can be read; what is done again ends
// as if nothing had happened.
void verifier_apres(const DossierTemporaire& d, const CasTue& cas, const Fichiers& avant,
                    const Fichiers& apres) {
    attendre_entiers(d, avant, apres);
    EXPECT_EQ(lancer({"verifier", "--dossier", d.chemin()}).code, 0);
    tuer_au_pas(1000000, [&] { jouer_le_cas(d, cas); });
    EXPECT_EQ(fichiers_de(d), apres);
    for (const auto& entree : fs::recursive_directory_iterator(d.chemin()))
        EXPECT_FALSE(entree.path().filename().string().starts_with('.')) << entree.path();
}

TEST(Tue, a_cinquante_instants_rien_n_est_perdu_ni_ecrit_a_moitie) {
    constexpr int instants = 13;
    const CasTue tous[] = {
        {{"piloter", "--position", "60,40,90", "--sauver", "oui"}, "Avance 20\nDroite 45\n"},
        {{"miroir", "--robot", "1", "--axe", "vertical", "--vers", "2"}},
        {{"preparer", "--robot", "1"}},
        {{"generer", "--depart", "depart.bas", "--entree", "entree.ini", "--cible", "depart.bas",
          "--ecraser", "oui", "--menu"}},
    };
    for (const CasTue& cas : tous) {
        SCOPED_TRACE(cas.commande.front());
        const DossierTemporaire modele;
        const DossierTemporaire fini;
        preparer_le_cas(modele, cas);
        fs::copy(modele.chemin(), fini.chemin(), fs::copy_options::recursive);
        const Fichiers avant = fichiers_de(modele);
        const int pas = pas_avant_la_mort(1000000, [&] { jouer_le_cas(fini, cas); });
        const Fichiers apres = fichiers_de(fini);
        EXPECT_NE(avant, apres);
        for (int instant = 1; instant <= instants; ++instant) {
            SCOPED_TRACE(instant);
            const DossierTemporaire d;
            fs::copy(modele.chemin(), d.chemin(), fs::copy_options::recursive);
            pas_avant_la_mort(pas * instant / (instants + 1), [&] { jouer_le_cas(d, cas); });
            verifier_apres(d, cas, avant, apres);
        }
    }
}

} // namespace
