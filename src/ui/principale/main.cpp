#include "base/systeme.h"
#include "base/version.h"
#include "base/visible.h"
#include "config/nom_projet.h"
#include "ui/feuille/exporter_sans_affichage.h"
#include "ui/principale/application.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <iostream>

namespace {

constexpr int code_usage = 2;

bool sans_affichage() {
    const auto vide = [](const char* nom) {
        const char* valeur = std::getenv(nom);
        return valeur == nullptr || *valeur == '\0';
    };
    return vide("QT_QPA_PLATFORM") && vide("DISPLAY") && vide("WAYLAND_DISPLAY");
}

int dire(std::string_view texte, int code) {
    std::cerr << "tavolmex : " << visible(texte) << '\n';
    return code;
}

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

int executer(int argc, char** argv) {
    if (argc > 1 && std::string_view(argv[1]) == "exporter")
        return exporter_sans_affichage(argc, argv);
    CLI::App app("Tavolmex : simulateur de robot de concours", "tavolmex");
    app.footer("tavolmex exporter --help : l'image, la feuille et la trace du match, sans fenêtre");
    Demarrage demarrage;
    std::string projet;
    app.add_option("projet", projet, "Projet à ouvrir, ou un de ses fichiers")->type_name("PROJET");
    app.add_flag("--demarrer", demarrage.demarrer, "Démarre le match");
    app.add_option("--dossier", demarrage.dossier,
                   "Dossier de l'application (celui qui contient Configuration)")
        ->type_name("DOSSIER");
    app.set_version_flag("--version", "tavolmex " + version_du_programme(), "Affiche la version");
    app.set_help_flag("-h,--help", "Affiche cette aide");
    app.get_formatter()->label("Usage", "Utilisation ");
    app.get_formatter()->label("Positionals", "Argument ");
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& demande) {
        return app.exit(demande);
    } catch (const CLI::ExtrasError&) {
        return dire("argument inconnu : " + app.remaining().front(), code_usage);
    } catch (const CLI::ParseError&) {
        return dire("--dossier attend un dossier", code_usage);
    }
    if (sans_affichage())
        return dire("aucun affichage (ni DISPLAY ni WAYLAND_DISPLAY) ; tavolmex-cli s'en passe",
                    EXIT_FAILURE);
    preciser(demarrage, projet);
    return executer_application(argc, argv, demarrage);
}

} // namespace

int main(int argc, char** argv) {
    systeme::preparer_le_processus();
    try {
        return executer(argc, argv);
    } catch (const std::exception& erreur) {
        return dire(erreur.what(), EXIT_FAILURE);
    }
}
