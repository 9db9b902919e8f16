#include "cli/verbes.h"

#include "base/fichiers.h"
#include "cli/choix.h"
#include "cli/fenetres_terminal.h"
#include "cli/sortie.h"
#include "edition/miroir.h"

#include <array>
#include <iostream>
#include <memory>

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::pair<std::string_view, Retournement>, 3> axes{
    {{"vertical", Retournement::vertical},
     {"horizontal", Retournement::horizontal},
     {"demi-tour", Retournement::demi_tour}}};

struct OptionsMiroir {
    ChoixDeLigne choix;
    int robot = 0;
    int vers = 0; ///< 0: the robot itself
    Retournement axe = Retournement::vertical;
};

/// The project that the settings or the command line name, its table read. Whatever is wrong with
/// them comes out as messages.
void ouvrir(Projet& projet, const ChoixDeLigne& choix) {
    if (choix.projet)
        projet.imposer_projet(*choix.projet);
    projet.Installe();
    projet.LoadGeneral();
    projet.LoadTable();
}

std::string fichier_de_l_autre_cote(const fs::path& chemin, Retournement axe,
                                    const Etendue& table) {
    const std::string octets = lire_octets(chemin);
    try {
        return fichier_retourne(octets, axe, table);
    } catch (const ErreurExecution& erreur) {
        throw ErreurExecution("Rien n'a été écrit : " + chemin.string() + " " + erreur.what());
    }
}

void executer(const OptionsMiroir& options, const Projet& projet, const Etendue& table) {
    const std::string texte =
        fichier_de_l_autre_cote(projet.chemin_trajet(options.robot), options.axe, table);
    const fs::path cible = projet.chemin_trajet(options.vers == 0 ? options.robot : options.vers);
    const fs::path copie =
        sauvegarder_version(cible, projet.dossier_configuration() / "Sauvegardes");
    remplacer_fichier(cible, texte);
    if (!copie.empty())
        ecrire_ligne(std::cout, "Copie de sauvegarde : " + copie.string());
    ecrire_ligne(std::cout, "Trajet écrit : " + cible.string());
}

int executer(const OptionsMiroir& options) {
    const auto etat = std::make_unique<Etat>();
    FenetresTerminal fenetres(*etat, std::cerr);
    Projet projet(*etat, fenetres, ouvrir_dossier(options.choix.dossier));
    ouvrir(projet, options.choix);
    if (fenetres.nb_messages() > 0) // the wrong table or project would turn it wrongly
        return fenetres.code_de_sortie();
    try {
        executer(options, projet, {etat->XMax, etat->YMax});
    } catch (const ErreurExecution& erreur) {
        fenetres.message(erreur.what());
    }
    return fenetres.code_de_sortie();
}

CLI::Option* ajouter_robot(CLI::App& verbe, const char* nom, int& numero, const char* aide) {
    return verbe.add_option(nom, numero, aide)
        ->check(entier_entre(1, robots_des_fichiers))
        ->type_name("N");
}

} // namespace

void declarer_miroir(CLI::App& app, int& code_de_sortie) {
    const auto options = std::make_shared<OptionsMiroir>();
    CLI::App* verbe =
        app.add_subcommand("miroir", "Retourne un trajet pour l'autre côté de la table");
    ajouter_dossier(*verbe, options->choix);
    ajouter_projet(*verbe, options->choix);
    ajouter_robot(*verbe, "--robot", options->robot, "Robot dont le trajet est retourné")
        ->required();
    const auto lire_axe = [options](const std::string& texte) {
        for (const auto& [nom, axe] : axes) {
            if (nom == texte)
                options->axe = axe;
        }
    };
    verbe
        ->add_option_function<std::string>("--axe", lire_axe,
                                           "Miroir d'axe vertical (gauche et "
                                           "droite) ou horizontal, ou "
                                           "demi-tour")
        ->required()
        ->check([](const std::string& texte) {
            for (const auto& [nom, axe] : axes) {
                if (nom == texte)
                    return std::string();
            }
            return std::string("répondre vertical, horizontal ou demi-tour");
        })
        ->type_name("vertical|horizontal|demi-tour");
    ajouter_robot(*verbe, "--vers", options->vers,
                  "Robot dont le trajet est remplacé (sinon : le même)");
    verbe->callback([options, &code_de_sortie] { code_de_sortie = executer(*options); });
}
