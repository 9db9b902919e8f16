#include "cli/verbes.h"

#include "base/fichiers.h"
#include "cli/choix.h"
#include "cli/simulation.h"
#include "cli/sortie.h"
#include "record/preparation.h"

#include <iostream>
#include <memory>

namespace fs = std::filesystem;

namespace {

struct OptionsPreparer {
    ChoixDeLigne choix;
    int robot = 0;
    bool damier = false;
};

// One robot's trajectory, driven again on a console that nobody sees.
class Preparation {
public:
    explicit Preparation(const OptionsPreparer& options)
        : robot_(options.robot),
          fenetres_(*etat_, std::cerr),
          simulation_(*etat_, fenetres_, avec_lecture(options.choix)) {
        etat_->utiliDamier = options.damier;
    }

    int executer() {
        if (!simulation_.demarree() || !trajet_)
            return fenetres_.code_de_sortie();
        avertir_des_balises();
        try {
            preparer();
        } catch (const LigneRefusee& refus) {
            refuser(fichier().string() + " " + refus.what());
        } catch (const ErreurExecution& erreur) {
            refuser(erreur.what());
        }
        return fenetres_.code_de_sortie();
    }

private:
    // The start-up reads what this trajectory plays, its short beacons spelled out: the lines that
    // the recorder writes and the simulator's reader refuses do not stop it.
    ChoixDeLigne avec_lecture(ChoixDeLigne choix) {
        choix.avant_lecture = [this](Projet& projet) {
            projet.lire_trajet_autrement(robot_, [this](std::string_view texte) {
                trajet_ = DocumentTrajet::depuis(texte);
                return trajet_->texte_jouable();
            });
        };
        return choix;
    }

    const Projet& projet() { return simulation_.seance().projet(); }
    fs::path fichier() { return projet().chemin_trajet(robot_); }

    void refuser(const std::string& raison) { fenetres_.message("Rien n'a été écrit : " + raison); }

    void avertir_des_balises() {
        for (std::size_t i = 0; i < trajet_->nombre(); ++i) {
            const std::string& cle = (*trajet_)[i].cle;
            if (cle != cle_jouee(cle))
                avertir(fichier().string() + " Ligne " + std::to_string(trajet_->ligne(i)) +
                        " : « " + cle + " » n'est pas lu par le simulateur");
        }
    }

    static void avertir(const std::string& texte) {
        ecrire_ligne(std::cerr, "Avertissement : " + texte);
    }

    void preparer() {
        if (const auto refus = trajet_->refus(false); !refus.empty())
            throw LigneRefusee(refus.front().ligne, refus.front().raison);
        const GenerationPreparee generation = preparer_generation(
            *etat_, robot_, *trajet_, etat_->NomProjet + std::string(suite_de_l_entree));
        if (generation.hors_du_match)
            avertir("le match de 90 s finit avant ou avec une action de ce trajet");
        ecrire(projet().chemin(suite_de_l_entree), generation.texte);
    }

    void ecrire(const fs::path& sortie, const std::string& contenu) {
        sauvegarder_version(sortie, projet().dossier_configuration() / "Sauvegardes");
        remplacer_fichier(sortie, contenu);
        ecrire_ligne(std::cout, "Fichier écrit : " + sortie.string());
    }

    int robot_;
    std::unique_ptr<Etat> etat_ = std::make_unique<Etat>();
    std::optional<DocumentTrajet> trajet_;
    FenetresTerminal fenetres_;
    Simulation simulation_;
};

} // namespace

void declarer_preparer(CLI::App& app, int& code_de_sortie) {
    const auto options = std::make_shared<OptionsPreparer>();
    CLI::App* verbe = app.add_subcommand(
        "preparer", "Prépare l'entrée du générateur d'après le trajet d'un robot");
    ajouter_dossier(*verbe, options->choix);
    ajouter_projet(*verbe, options->choix);
    verbe->add_option("--robot", options->robot, "Numéro du robot")
        ->required()
        ->check(entier_entre(1, robots_des_fichiers))
        ->type_name("N");
    verbe->add_flag("--damier", options->damier, "Compte les carreaux du damier");
    verbe->callback(
        [options, &code_de_sortie] { code_de_sortie = Preparation(*options).executer(); });
}
