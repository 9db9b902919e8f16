#include "cli/verbes.h"

#include "base/systeme.h"
#include "cli/choix.h"
#include "cli/commande.h"
#include "cli/fenetres_pilotees.h"
#include "cli/flux.h"
#include "cli/sortie.h"
#include "record/console.h"
#include "sim/textes_actions.h"

#include <cstdio>
#include <iostream>

namespace {

constexpr int code_commande = 2;

struct OptionsPiloter {
    ChoixDeLigne choix;
    int robot = 1;
    std::string position, sauver;
    bool damier = false;
};

// Whoever was asked is gone: that is no answer, and no answer loses nothing.
class SansReponse : public ErreurExecution {
public:
    SansReponse() : ErreurExecution("pas de réponse") {}
};

// The outlet of the console: its questions go to whoever sits at the terminal, or have one answer.
class FenetresPiloter final : public FenetresPilotees {
public:
    FenetresPiloter(Etat& etat, std::string reponse)
        : FenetresPilotees(etat, std::cerr), reponse_(std::move(reponse)) {}

    bool interactif() const { return systeme::est_un_terminal(systeme::Flux::entree); }

    bool question(std::string_view texte, std::string_view explication = {}) override {
        FenetresTerminal::message(texte);
        if (!reponse_.empty() || !interactif())
            return reponse_ == "oui";
        if (!explication.empty())
            ecrire_lignes(std::cerr, explication);
        std::cerr << "(oui/non) ? " << std::flush;
        std::clearerr(stdin); // after the commands' end-of-file key, a terminal still answers
        const auto reponse = lire_ligne();
        if (!reponse)
            throw SansReponse();
        return minuscules(rogner(*reponse)).starts_with('o');
    }

private:
    std::string reponse_;
};

// "X,Y,CAP" as the three fields.
ChampsPose lire_position(const std::string& texte) {
    const std::size_t premiere = texte.find(',');
    const std::size_t seconde =
        premiere == std::string::npos ? premiere : texte.find(',', premiere + 1);
    if (seconde == std::string::npos)
        throw ErreurConversion(texte, "une position X,Y,CAP");
    return {texte.substr(0, premiere), texte.substr(premiere + 1, seconde - premiere - 1),
            texte.substr(seconde + 1)};
}

// One recording: start, commands, end, saving.
class Pilotage {
public:
    explicit Pilotage(const OptionsPiloter& options)
        : options_(options),
          fenetres_(*etat_, options.sauver),
          simulation_(*etat_, fenetres_, options.choix),
          console_(*etat_, fenetres_, simulation_.moteur(), &reprise_) {
        fenetres_.suivre(console_);
        prendre_le_projet();
    }

    int jouer() {
        if (!simulation_.demarree())
            return fenetres_.code_de_sortie();
        try {
            return jouer_jusqu_au_bout();
        } catch (const SansReponse&) {
            fenetres_.message("Pas de réponse : " + ou_est_l_enregistrement());
        } catch (const ErreurFichier& erreur) { // standard input
            fenetres_.message(texte_erreur_execution(erreur.what()) + " ; " +
                              ou_est_l_enregistrement());
        }
        return fenetres_.code_de_sortie();
    }

private:
    int jouer_jusqu_au_bout() {
        const int code = commencer();
        if (code == code_commande)
            return code;
        const int commandes = fenetres_.terminee() ? 0 : lire_commandes();
        // The saving shows a path, which is no error.
        const int deroulement = commandes != 0 ? commandes : fenetres_.code_de_sortie();
        return finir() || deroulement != 0 ? deroulement : 1;
    }

    std::string ou_est_l_enregistrement() const {
        std::error_code erreur;
        if (!std::filesystem::exists(reprise_.chemin(), erreur))
            return "rien n'a été enregistré";
        return "l'enregistrement est gardé dans " + reprise_.chemin().string() +
               ", il sera proposé au prochain démarrage de la fenêtre";
    }

    // A recording left by the window is its business: neither taken up nor replaced here.
    void prendre_le_projet() {
        const std::filesystem::path de_la_fenetre = reprise_.chemin();
        const AvisPartage avis = reprise_.prendre_projet(true);
        if (!avis.texte.empty())
            for (const std::string& ligne : {avis.texte, avis.explication})
                ecrire_ligne(std::cerr, ligne);
        else if (reprise_.chemin() != de_la_fenetre)
            ecrire_ligne(std::cerr, "Un trajet enregistré attend dans " + de_la_fenetre.string() +
                                        " : la fenêtre le proposera.");
    }

    int commencer() {
        Etat& e = *etat_;
        e.utiliDamier = options_.damier;
        if (e.NbRobot < options_.robot)
            e.NbRobot = options_.robot;
        try {
            const ChampsPose actuelle = console_.VScroll1_Change(options_.robot);
            console_.Command9_Click(options_.position.empty() ? actuelle
                                                              : lire_position(options_.position));
        } catch (const ErreurExecution& erreur) {
            fenetres_.message(std::string("--position : ") + erreur.what());
            return code_commande;
        }
        laisser_tourner();
        return 0;
    }

    void laisser_tourner() {
        while (fenetres_.en_marche() && simulation_.moteur().Timer_Timer()) {
        }
    }

    int lire_commandes() {
        for (int numero = 1; !fenetres_.terminee(); ++numero) {
            try {
                const auto ligne = demander();
                if (!ligne)
                    break;
                executer(*ligne, numero);
            } catch (const ErreurFichier&) {
                throw; // standard input itself
            } catch (const ErreurExecution& erreur) {
                ecrire_ligne(std::cerr, "Ligne " + std::to_string(numero) + " : " + erreur.what());
                if (!fenetres_.interactif())
                    return code_commande;
            }
        }
        return 0;
    }

    std::optional<std::string> demander() {
        if (fenetres_.interactif())
            std::cerr << pose() << " > " << std::flush;
        return lire_ligne();
    }

    void executer(const std::string& ligne, int numero) {
        const auto commande = lire_commande(ligne);
        if (!commande)
            return;
        if (fini_)
            throw ErreurExecution("rien ne peut suivre « FIN »");
        fini_ = commande->fin;
        if (commande->depart)
            return repartir(*commande->depart, numero);
        if (commande->fin)
            return;
        try {
            console_.Command4_Click(commande->legende, commande->Text1, commande->Text4);
        } catch (const ErreurExecution& erreur) {
            fenetres_.message(
                texte_erreur_execution("ligne " + std::to_string(numero) + ", " + erreur.what()));
        }
        laisser_tourner();
        if (!fenetres_.terminee())
            dire_le_temps("Ligne " + std::to_string(numero) + " : ");
    }

    // The end counts as a message, its approach does not.
    void dire_le_temps(const std::string& ligne) {
        constexpr std::int32_t alerte = 8000;
        if (!etat_->en_course)
            fenetres_.message(ligne +
                              "le match de 90 s est fini, la prochaine action repart de la "
                              "position initiale et recommence le trajet, le présent va dans "
                              "Sauvegardes");
        else if (etat_->TempsEcoule >= alerte)
            ecrire_ligne(std::cerr, ligne + "temps du match " + texte_duree(etat_->TempsEcoule) +
                                        " sur 90 s : après, le trajet recommence à l'action 1");
    }

    // A trajectory file begins with its start pose; --position comes before it.
    void repartir(const ChampsPose& depart, int numero) {
        if (!console_.etapes().empty())
            throw ErreurExecution("la position initiale se donne avant la première action");
        if (!options_.position.empty()) {
            ecrire_ligne(std::cerr, "Ligne " + std::to_string(numero) +
                                        " : --position remplace cette position");
            return;
        }
        console_.Command9_Click({});
        console_.Command9_Click(depart);
        laisser_tourner();
    }

    std::string pose() const {
        const int i = options_.robot;
        return "x " + std::string(format_0(etat_->XRobot(i))) + " y " +
               std::string(format_0(etat_->YRobot(i))) + " cap " +
               std::string(format_0(etat_->CapRobot(i))) + "°  " + texte_duree(etat_->TempsEcoule);
    }

    // @returns false when something could not be saved
    bool finir() {
        if (console_.phase() != Console::Phase::arret)
            console_.Command9_Click({});
        const BilanSauvegarde bilan = simulation_.seance().sauver();
        if (!bilan.complete())
            fenetres_.message(bilan.message());
        return bilan.complete();
    }

    OptionsPiloter options_;
    std::unique_ptr<Etat> etat_ = std::make_unique<Etat>();
    FenetresPiloter fenetres_;
    Simulation simulation_;
    Reprise& reprise_ = simulation_.seance().reprise();
    Console console_;
    bool fini_ = false; ///< "FIN" was read
};

} // namespace

void declarer_piloter(CLI::App& app, int& code_de_sortie) {
    const auto options = std::make_shared<OptionsPiloter>();
    CLI::App* verbe =
        app.add_subcommand("piloter", "Pilote un robot action par action et enregistre son trajet");
    verbe->footer("Commandes, une par ligne sur l'entrée standard :\n" + aide_des_commandes() +
                  "ou les lignes d'un fichier Trajet : « Avance,50 », « Init,100,30,0 », « FIN ».\n"
                  "« # » commence un commentaire.");
    ajouter_dossier(*verbe, options->choix);
    verbe->add_option("--robot", options->robot, "Numéro du robot")
        ->check(entier_entre(1, robots_des_fichiers))
        ->type_name("N");
    verbe
        ->add_option("--position", options->position,
                     "Position initiale, telle que la télécommande la montre")
        ->type_name("X,Y,CAP");
    verbe->add_flag("--damier", options->damier, "Compte les carreaux du damier");
    verbe
        ->add_option("--sauver", options->sauver,
                     "Réponse à la question de sauvegarde (sinon : posée sur un terminal, non "
                     "ailleurs)")
        ->check(oui_ou_non())
        ->type_name("oui|non");
    verbe->callback([options, &code_de_sortie] { code_de_sortie = Pilotage(*options).jouer(); });
}
