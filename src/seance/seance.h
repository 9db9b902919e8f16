#pragma once

#include "config/projet.h"
#include "record/reprise.h"
#include "seance/annonces.h"
#include "seance/hote.h"
#include "sim/fenetres.h"
#include "sim/moteur.h"

#include <filesystem>
#include <functional>

/// One simulator at work: state, engine, project and recovery, and the procedures that start, load,
/// reload and save. What the outside has to know is announced.
class Seance {
public:
    /// @param dossier_application  holds (or will hold) the directory Configuration
    Seance(Etat& etat, Fenetres& fenetres, Hote& hote, std::filesystem::path dossier_application);

    Etat& etat() { return etat_; }
    const Etat& etat() const { return etat_; }
    Fenetres& fenetres() { return fenetres_; }
    Moteur& moteur() { return moteur_; }
    Projet& projet() { return projet_; }
    const Projet& projet() const { return projet_; }
    Reprise& reprise() { return reprise_; }
    Annonces& annonces() { return annonces_; }
    bool en_marche() const { return hote_.en_marche(); }
    /// A recorded path would be lost if the trajectories were read again.
    bool trajet_non_sauve() const;
    bool terminee() const { return hote_.terminee(); }

    /// The start-up up to the first drawing: reads the project, applies its settings, draws. A step
    /// that fails is told, and the host decides. @returns false when the start-up stopped there
    bool demarrer();
    /// After the start-up: says so when another program has the project open, then offers what an
    /// earlier program did not save, of any project. @returns true when a recording came back
    bool proposer_reprise();
    /// After loading a project: offers its own recording. @returns as above
    bool proposer_reprise_du_projet();
    /// Takes up a recording that was kept, in place of what is recorded. @returns false when that
    /// would be lost: nothing changes
    bool reprendre(const Enregistrement& enregistrement);

    /// Loads the present project's files in place of what is there.
    void recharger();
    /// Turns the table a quarter, clockwise or back, and draws everything anew.
    /// @throws Debordement  when a coordinate leaves 16 bits; nothing is turned then
    void tourner_la_table(bool horizontalement);
    /// How many robots there are, 1..9; draws them.
    void changer_NbRobot(Entier16 nombre);
    /// The table's file was changed from outside: reads it alone. The robots stay where they stand.
    void relire_table();
    /// Other files too were changed from outside: reads them all. What is recorded and not saved is
    /// kept, and no longer offered.
    void relire_tout();

    /// SauvRobot, and the recovery file with it. Show the result's message.
    BilanSauvegarde sauver();
    /// The same, its message shown; where nothing could be written, the user is asked where to
    /// write instead. @returns false when a path would be lost now: stay
    bool SauvRobot();

private:
    bool etape(const std::function<void()>& procedure);
    void lire_projet();
    void dessiner();
    void prendre_projet();
    bool annoncer_reprise(bool reprise);
    bool sauver_ailleurs(BilanSauvegarde bilan);

    Etat& etat_;
    Fenetres& fenetres_;
    Hote& hote_;
    Annonces annonces_;
    Projet projet_;
    Moteur moteur_;
    Reprise reprise_;
};
