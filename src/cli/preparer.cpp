#include "cli/verbes.h"

#include "base/fichiers.h"
#include "cli/choix.h"
#include "cli/fenetres_pilotees.h"
#include "cli/sortie.h"
#include "record/appuis.h"
#include "record/generation.h"
#include "record/pose.h"

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
          simulation_(*etat_, fenetres_, avec_lecture(options.choix)),
          console_(*etat_, fenetres_, simulation_.moteur()) {
        etat_->utiliDamier = options.damier;
        fenetres_.suivre(console_);
    }

    int executer() {
        if (!simulation_.demarree() || !trajet_)
            return fenetres_.code_de_sortie();
        avertir_des_balises();
        auto refus = refus_du_lecteur();
        if (!refus)
            refus = refus_de_generation(*trajet_);
        if (!refus)
            refus = conduire();
        if (refus)
            refuser(*refus);
        else
            ecrire();
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

    std::string ou(int ligne) const {
        return simulation_.seance().projet().chemin_trajet(robot_).string() + " Ligne " +
               std::to_string(ligne);
    }

    void refuser(const RefusLecture& refus) {
        fenetres_.message("Rien n'a été écrit : " + ou(refus.ligne) + " : " + refus.raison);
    }

    void avertir_des_balises() const {
        for (std::size_t i = 0; i < trajet_->nombre(); ++i) {
            const std::string& cle = (*trajet_)[i].cle;
            if (cle != cle_jouee(cle))
                avertir(ou(trajet_->ligne(i)) + " : « " + cle +
                        " » n'est pas lu par le simulateur");
        }
    }

    static void avertir(const std::string& texte) {
        ecrire_ligne(std::cerr, "Avertissement : " + texte);
    }

    std::optional<RefusLecture> refus_du_lecteur() const {
        const auto refus = trajet_->refus(false);
        return refus.empty() ? std::nullopt : std::optional(refus.front());
    }

    std::optional<RefusLecture> conduire() {
        Etat& e = *etat_;
        if (e.NbRobot < robot_)
            e.NbRobot = robot_;
        console_.VScroll1_Change(robot_);
        // The fields of the console and the file have the same frame.
        const Pose p = pose_des_fichiers(e, robot_);
        console_.Command9_Click({std::string(texte_simple(p.x)), std::string(texte_simple(p.y)),
                                 std::string(texte_simple(p.cap))});
        tourner();
        return rejouer(*trajet_, console_, [this] { return tourner(); });
    }

    bool tourner() {
        while (fenetres_.en_marche() && simulation_.moteur().Timer_Timer()) {
        }
        if (!etat_->en_course && !prevenu_)
            avertir("le match de 90 s finit avant ou avec une action de ce trajet");
        prevenu_ = prevenu_ || !etat_->en_course;
        return !fenetres_.terminee();
    }

    void ecrire() {
        const std::string suite = " PourGenerer10.ini";
        const fs::path fichier = simulation_.seance().projet().chemin(suite);
        const std::string contenu = texte_generation(*etat_, etat_->NomProjet + suite);
        sauvegarder_version(fichier,
                            simulation_.seance().projet().dossier_configuration() / "Sauvegardes");
        remplacer_fichier(fichier, contenu);
        ecrire_ligne(std::cout, "Fichier écrit : " + fichier.string());
    }

    int robot_;
    std::unique_ptr<Etat> etat_ = std::make_unique<Etat>();
    std::optional<DocumentTrajet> trajet_;
    FenetresPilotees fenetres_;
    Simulation simulation_;
    Console console_;
    bool prevenu_ = false;
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
