#include "comparer.h"

#include "config/projet.h"
#include "outils/dossier_temporaire.h"
#include "outils/fausses_fenetres.h"

#include <charconv>
#include <fstream>
#include <memory>
#include <vector>

namespace {

// A plain parser over the same lines: getline, then from_chars for every field.
long lire_simplement(const std::filesystem::path& chemin) {
    std::ifstream flux(chemin);
    std::string ligne;
    long somme = 0;
    while (std::getline(flux, ligne)) {
        if (const auto diese = ligne.find('#'); diese != std::string::npos)
            ligne.resize(diese);
        std::size_t virgule = ligne.find(',');
        while (virgule != std::string::npos) {
            const std::size_t debut = ligne.find_first_not_of(' ', virgule + 1);
            int valeur = 0;
            if (debut != std::string::npos)
                std::from_chars(ligne.data() + debut, ligne.data() + ligne.size(), valeur);
            somme += valeur;
            virgule = ligne.find(',', virgule + 1);
        }
    }
    return somme;
}

// Reading the whole default project against the plain parser: at most 1.0.
void projet_par_defaut(benchmark::State& state) {
    const DossierTemporaire dossier;
    std::filesystem::current_path(dossier.chemin());
    const auto e = std::make_unique<Etat>();
    FaussesFenetres f;
    Projet projet(*e, f, dossier.chemin());
    projet.Installe();
    std::vector<std::filesystem::path> fichiers{projet.chemin_general(), projet.chemin_table()};
    for (int n = 1; n <= 9; ++n) {
        fichiers.push_back(projet.chemin_robot(n));
        fichiers.push_back(projet.chemin_trajet(n));
    }
    comparer(
        state,
        [&] {
            long somme = 0;
            for (const auto& chemin : fichiers)
                somme += lire_simplement(chemin);
            benchmark::DoNotOptimize(somme);
        },
        [&] {
            projet.LoadGeneral();
            projet.LoadTable();
            projet.Init_Robot();
            projet.Init_Jeu();
        });
    if (!f.messages.empty())
        state.SkipWithError(f.messages[0].c_str());
    std::filesystem::current_path("/");
}
BENCHMARK(projet_par_defaut)->Unit(benchmark::kMicrosecond);

} // namespace
