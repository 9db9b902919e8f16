#include "cli/choix.h"
#include "cli/sortie.h"
#include "cli/verbes.h"
#include "cli/verification.h"
#include "cli/verifier_match.h"
#include "config/dossier.h"

#include <iostream>
#include <utility>
#include <vector>

namespace {

// Says why as well.
class FenetresVerifier final : public FenetresTerminal {
public:
    FenetresVerifier(Etat& etat, std::ostream& erreurs)
        : FenetresTerminal(etat, erreurs), erreurs_(erreurs) {}

    void message(std::string_view texte, std::string_view explication) override {
        FenetresTerminal::message(texte);
        if (!explication.empty())
            ecrire_lignes(erreurs_, explication);
    }

private:
    std::ostream& erreurs_;
};

// Runs `action` on a project of its own, then gives the exit code.
template <typename Action>
int avec_projet(const ChoixDeLigne& choix, std::filesystem::path dossier, Action action) {
    const auto etat = std::make_unique<Etat>();
    FenetresVerifier fenetres(*etat, std::cerr);
    Projet projet(*etat, fenetres, std::move(dossier));
    if (choix.projet)
        projet.imposer_projet(*choix.projet);
    action(projet, *etat, fenetres);
    return fenetres.code_de_sortie();
}

// The files of the default project and, if another one is named, its own. The window leaves a file
// that cannot be written to its reader; here the user asked for it, and is told.
void installer(Projet& projet, Etat&, Fenetres& fenetres) {
    projet.Installe();
    projet.LoadGeneral();
    std::vector<std::filesystem::path> attendus{projet.chemin_table()};
    for (int n = 1; n <= robots_des_fichiers; ++n) {
        attendus.push_back(projet.chemin_robot(n));
        attendus.push_back(projet.chemin_trajet(n));
    }
    for (const auto& chemin : attendus) {
        std::error_code erreur;
        if (!std::filesystem::exists(chemin, erreur))
            fenetres.message("Le fichier " + chemin.string() + " n'a pas pu être écrit");
    }
}

CLI::App* verbe_de_projet(CLI::App& app, const char* nom, const char* description,
                          ChoixDeLigne& choix) {
    CLI::App* verbe = app.add_subcommand(nom, description);
    ajouter_dossier(*verbe, choix);
    ajouter_projet(*verbe, choix);
    return verbe;
}

struct OptionsMatch {
    bool match = false;
    bool json = false;
};

void ajouter_options_match(CLI::App& verbe, ChoixDeLigne& choix, OptionsMatch& options) {
    CLI::Option* const match = verbe.add_flag("--match", options.match,
                                              "Joue aussi le match et dit ce qui mérite attention");
    verbe.add_flag("--json", options.json, "Le résultat du match en JSON")->needs(match);
    verbe.add_option("--robots", choix.robots, "Nombre de robots")
        ->check(entier_entre(1, robots_des_fichiers))
        ->type_name("N")
        ->needs(match);
    verbe.add_flag("--allege", choix.allege, "Traitement allégé : pas de 5 centièmes")
        ->needs(match);
    verbe.add_flag("--horizontale", choix.horizontale, "Table tournée d'un quart de tour")
        ->needs(match);
}

} // namespace

void declarer_installer(CLI::App& app, int& code_de_sortie) {
    const auto choix = std::make_shared<ChoixDeLigne>();
    verbe_de_projet(app, "installer", "Écrit les fichiers par défaut qui manquent", *choix)
        ->callback([choix, &code_de_sortie] {
            code_de_sortie = avec_projet(*choix, ouvrir_dossier(choix->dossier), installer);
        });
}

void declarer_verifier(CLI::App& app, int& code_de_sortie) {
    const auto choix = std::make_shared<ChoixDeLigne>();
    const auto match = std::make_shared<OptionsMatch>();
    CLI::App* const verbe = verbe_de_projet(
        app, "verifier", "Lit et essaie tous les fichiers du projet sans rien changer", *choix);
    ajouter_options_match(*verbe, *choix, *match);
    verbe->callback([choix, match, &code_de_sortie] {
        if (match->match) {
            code_de_sortie = verifier_match(*choix, match->json);
            return;
        }
        // Changes nothing: the application directory is not even made.
        code_de_sortie = avec_projet(*choix, dossier_application(choix->dossier),
                                     [](Projet& projet, Etat& etat, Fenetres& fenetres) {
                                         projet.verifier();
                                         essayer_le_projet(etat, projet, fenetres);
                                     });
    });
}
