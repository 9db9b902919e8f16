#include "cli/ligne_de_commande.h"

#include "base/erreurs.h"
#include "cli/francais.h"
#include "cli/verbes.h"

#include <iostream>

namespace {

constexpr int code_usage = 2;

int executer(int argc, char** argv) {
    CLI::App app("Tavolmex : simulateur de robot de concours, en ligne de commande",
                 "tavolmex-cli");
    app.set_version_flag("--version", "tavolmex-cli " TAVOLMEX_VERSION, "Affiche la version");
    app.require_subcommand(1);
    int code = 0;
    for (const auto declarer :
         {declarer_installer, declarer_verifier, declarer_simuler, declarer_dessiner,
          declarer_piloter, declarer_generer, declarer_etiquettes})
        declarer(app, code);
    parler_francais(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& demande) {
        return app.exit(demande, std::cout, std::cerr);
    } catch (const CLI::ParseError& erreur) {
        const bool verbe_inconnu = app.get_subcommands().empty() && argc > 1 && argv[1][0] != '-';
        std::cerr << "tavolmex-cli : "
                  << (verbe_inconnu ? std::string("commande inconnue : ") + argv[1]
                                    : en_francais(erreur))
                  << "\n"
                  << "Essayez « tavolmex-cli --help ».\n";
        return code_usage;
    }
    return code;
}

} // namespace

int executer_ligne_de_commande(int argc, char** argv) {
    try {
        return executer(argc, argv);
    } catch (const std::exception& erreur) {
        std::cerr << "Erreur d'exécution : " << erreur.what() << "\n";
        return 1;
    }
}
