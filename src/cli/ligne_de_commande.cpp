#include "cli/ligne_de_commande.h"

#include "base/version.h"
#include "cli/flux.h"
#include "cli/francais.h"
#include "cli/sortie.h"
#include "cli/verbes.h"

#include <filesystem>
#include <iostream>
#include <new>

namespace {

constexpr int code_message = 1;
constexpr int code_usage = 2;

int executer(int argc, char** argv, const ProgrammeDeLigne& programme) {
    CLI::App app("Tavolmex : simulateur de robot de concours, en ligne de commande", programme.nom);
    app.set_version_flag("--version", programme.nom + " " + version_du_programme(),
                         "Affiche la version");
    app.require_subcommand(1);
    int code = 0;
    for (const auto declarer :
         {declarer_installer, declarer_verifier, declarer_simuler, declarer_dessiner,
          declarer_piloter, declarer_preparer, declarer_miroir, declarer_generer, declarer_rejouer,
          declarer_etiquettes})
        declarer(app, code);
    declarer_exporter(app, code, programme.formats);
    parler_francais(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& demande) {
        return app.exit(demande, std::cout, std::cerr);
    } catch (const CLI::ParseError& erreur) {
        const bool verbe_inconnu = app.get_subcommands().empty() && argc > 1 && argv[1][0] != '-';
        ecrire_ligne(std::cerr, programme.nom + " : " +
                                    (verbe_inconnu ? std::string("commande inconnue : ") + argv[1]
                                                   : en_francais(erreur, app)));
        ecrire_ligne(std::cerr, "Essayez « " + programme.nom + " --help ».");
        return code_usage;
    }
    return code;
}

int echouer(const std::string& raison) {
    ecrire_ligne(std::cerr, texte_erreur_execution(raison));
    return code_message;
}

int executer_ou_dire_pourquoi(int argc, char** argv, const ProgrammeDeLigne& programme) {
    try {
        return executer(argc, argv, programme);
    } catch (const std::filesystem::filesystem_error& erreur) {
        return echouer(ErreurFichier(erreur.path1(), erreur.code().value()).what());
    } catch (const std::bad_alloc&) {
        return echouer("la mémoire manque");
    } catch (const std::exception& erreur) {
        return echouer(erreur.what());
    }
}

} // namespace

int executer_ligne_de_commande(int argc, char** argv, const ProgrammeDeLigne& programme) {
    const int code = executer_ou_dire_pourquoi(argc, argv, programme);
    const auto perdue = terminer_la_sortie();
    if (!perdue)
        return code;
    echouer(perdue->what());
    return code == 0 ? code_message : code;
}
