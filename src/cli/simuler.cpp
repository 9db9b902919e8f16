#include "base/chemins.h"
#include "cli/choix.h"
#include "cli/francais.h"
#include "cli/sortie.h"
#include "cli/verbes.h"
#include "feuille/trace_csv.h"

#include <iostream>
#include <limits>

namespace {

struct OptionsSimuler {
    ChoixDeLigne choix;
    std::int32_t duree = std::numeric_limits<std::int32_t>::max();
    std::string trace, etat;
};

// Keeps what the user asked for of every tick.
class FenetresSimuler final : public FenetresTerminal {
public:
    FenetresSimuler(Etat& etat, std::ostream& erreurs, const OptionsSimuler& options)
        : FenetresTerminal(etat, erreurs),
          garder_trace_(!options.trace.empty()),
          garder_etat_(!options.etat.empty()) {}

    void apres_actions() override {
        if (garder_trace_)
            trace_.ajouter(etat_);
    }
    void ecrire_Mess(const LigneMess& mess) override {
        if (garder_etat_ && !terminee())
            etats_.append(mess.texte().vue()) += '\n';
    }

    const std::string& trace() const { return trace_.texte(); }
    const std::string& etats() const { return etats_; }

private:
    bool garder_trace_, garder_etat_;
    TraceCsv trace_;
    std::string etats_;
};

// The second result would replace the first one.
void refuser_le_meme_fichier(const std::filesystem::path& trace,
                             const std::filesystem::path& etat) {
    if (trace.empty() || etat.empty() || std::filesystem::is_character_file(trace))
        return;
    if (trace == etat || (trace != "-" && etat != "-" && meme_fichier(trace, etat)))
        throw ErreurUsage("--trace et --etat désignent le même fichier : " + trace.string());
}

int simuler(const OptionsSimuler& options) {
    const auto fichier_trace = place_demandee(options.trace);
    const auto fichier_etat = place_demandee(options.etat);
    refuser_le_meme_fichier(fichier_trace, fichier_etat);
    const auto etat = std::make_unique<Etat>();
    FenetresSimuler fenetres(*etat, std::cerr, options);
    Simulation simulation(*etat, fenetres, options.choix);
    if (!simulation.demarree())
        return fenetres.code_de_sortie();
    simulation.jouer(options.duree);
    if (!fichier_trace.empty())
        ecrire_resultat(fichier_trace, fenetres.trace());
    if (!fichier_etat.empty())
        ecrire_resultat(fichier_etat, fenetres.etats());
    return fenetres.code_de_sortie();
}

} // namespace

void declarer_simuler(CLI::App& app, int& code_de_sortie) {
    const auto options = std::make_shared<OptionsSimuler>();
    CLI::App* verbe = app.add_subcommand("simuler", "Joue le match sans fenêtre");
    ajouter_dossier(*verbe, options->choix);
    ajouter_projet(*verbe, options->choix);
    verbe->add_option("--robots", options->choix.robots, "Nombre de robots")
        ->check(entier_entre(1, robots_des_fichiers))
        ->type_name("N");
    verbe->add_flag("--allege", options->choix.allege, "Traitement allégé : pas de 5 centièmes");
    ajouter_horizontale(*verbe, options->choix);
    verbe->add_option("--duree", options->duree, "Durée simulée, en centièmes de seconde")
        ->check(entier_entre(0, std::numeric_limits<std::int32_t>::max()))
        ->type_name("CENTIEMES");
    verbe->add_option("--trace", options->trace, "Écrit les positions à chaque pas")
        ->type_name("F.csv");
    verbe->add_option("--etat", options->etat, "Écrit la ligne d'état à chaque pas")
        ->type_name("F.txt");
    verbe->callback([options, &code_de_sortie] { code_de_sortie = simuler(*options); });
}
