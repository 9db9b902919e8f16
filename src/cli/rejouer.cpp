#include "analyse/code.h"
#include "base/fichiers.h"
#include "base/texte.h"
#include "cli/choix.h"
#include "cli/sortie.h"
#include "cli/verbes.h"

#include <iostream>
#include <memory>

namespace {

struct OptionsRejouer {
    ChoixDeLigne choix;
    std::string code;
    std::optional<std::string> fonction;
    int robot = 0;
    bool non_croises = false;
};

// A program by its name or because one of its subroutines is asked for; else a generation input.
CodeRelu relire(const std::filesystem::path& fichier, const std::optional<std::string>& fonction) {
    if (!fonction && minuscules(fichier.extension().string()) != ".bas")
        return relire_entree(lire_octets(fichier), fichier);
    const Programme programme(lire_octets(fichier));
    return relire_fonction(programme, fonction.value_or("TRAJECTOIRE"));
}

int rejouer(const OptionsRejouer& options) {
    const CodeDuRobot code{relire(place_demandee(options.code), options.fonction), options.code,
                           !options.non_croises};
    const auto etat = std::make_unique<Etat>();
    FenetresTerminal fenetres(*etat, std::cerr);
    const Simulation simulation(*etat, fenetres, options.choix);
    if (!simulation.demarree())
        return fenetres.code_de_sortie();
    if (etat->NbRobot < options.robot)
        etat->NbRobot = options.robot;
    const auto copie = std::make_unique<Etat>(*etat);
    const EcartDeCode ecart = comparer_au_code(*etat, calculer_match(*copie), options.robot, code);
    const SortieDeLignes sortie;
    for (const std::string& phrase : phrases(ecart, code.relu))
        sortie.ligne(phrase);
    return ecart.notable() || !code.relu.incomprises.empty() ? 1 : fenetres.code_de_sortie();
}

} // namespace

void declarer_rejouer(CLI::App& app, int& code_de_sortie) {
    const auto options = std::make_shared<OptionsRejouer>();
    CLI::App* verbe =
        app.add_subcommand("rejouer", "Joue le code généré et le compare au trajet de l'écran");
    ajouter_dossier(*verbe, options->choix);
    ajouter_projet(*verbe, options->choix);
    ajouter_horizontale(*verbe, options->choix);
    verbe->add_option("--code", options->code, "Programme PICBASIC ou fichier de génération")
        ->required()
        ->type_name("FICHIER");
    verbe
        ->add_option("--fonction", options->fonction,
                     "Fonction à jouer d'un programme (TRAJECTOIRE sans cette option)")
        ->type_name("NOM");
    verbe->add_option("--robot", options->robot, "Numéro du robot")
        ->required()
        ->check(entier_entre(1, robots_des_fichiers))
        ->type_name("N");
    verbe->add_flag("--non-croises", options->non_croises,
                    "Action_Droite du robot tourne à droite (virages non croisés)");
    verbe->callback([options, &code_de_sortie] { code_de_sortie = rejouer(*options); });
}
