#include "ui/principale/arguments.h"

#include "base/version.h"
#include "base/visible.h"
#include "config/nom_projet.h"

#include <CLI/CLI.hpp>

namespace {

constexpr int code_usage = 2;

// A file of a project brings its folder along.
void preciser(Demarrage& demarrage, const std::string& argument) {
    namespace fs = std::filesystem;
    std::error_code absent;
    if (!fs::is_regular_file(argument, absent)) {
        demarrage.projet = argument;
        return;
    }
    const fs::path fichier = fs::absolute(argument);
    demarrage.fichier = fichier;
    const std::string projet = projet_nomme_par(fichier.filename().string());
    if (projet.empty() || demarrage.dossier || fichier.parent_path().filename() != "Configuration")
        return;
    demarrage = {fichier.parent_path().parent_path(), projet, {}, demarrage.demarrer};
}

void declarer(CLI::App& app, Demarrage& demarrage, std::string& projet) {
    app.footer("tavolmex exporter --help : l'image, la feuille et la trace du match, sans fenêtre");
    app.add_option("projet", projet, "Projet à ouvrir, ou un de ses fichiers")->type_name("PROJET");
    app.add_flag("--demarrer", demarrage.demarrer, "Démarre le match");
    app.add_option("--dossier", demarrage.dossier,
                   "Dossier de l'application (celui qui contient Configuration)")
        ->type_name("DOSSIER");
    app.set_version_flag("--version", "tavolmex " + version_du_programme(), "Affiche la version");
    app.set_help_flag("-h,--help", "Affiche cette aide");
    app.get_formatter()->label("Usage", "Utilisation ");
    app.get_formatter()->label("Positionals", "Argument ");
}

} // namespace

std::variant<Demarrage, int> lire_arguments(int argc, const char* const* argv, std::ostream& sortie,
                                            std::ostream& erreurs) {
    const auto refuser = [&erreurs](const std::string& texte) {
        erreurs << "tavolmex : " << visible(texte) << '\n';
        return code_usage;
    };
    CLI::App app("Tavolmex : simulateur de robot de concours", "tavolmex");
    Demarrage demarrage;
    std::string projet;
    declarer(app, demarrage, projet);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& demande) {
        return app.exit(demande, sortie, erreurs);
    } catch (const CLI::ExtrasError&) {
        return refuser("argument inconnu : " + app.remaining().front());
    } catch (const CLI::ParseError&) {
        return refuser("--dossier attend un dossier");
    }
    preciser(demarrage, projet);
    return demarrage;
}
