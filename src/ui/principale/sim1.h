#pragma once

#include "config/projet.h"
#include "record/reprise.h"
#include "sim/fenetres.h"
#include "sim/moteur.h"
#include "ui/commun/boites.h"
#include "ui/commun/ligne_texte.h"
#include "ui/principale/cadence.h"
#include "ui/principale/foption.h"
#include "ui/principale/logo.h"
#include "ui/principale/table.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class Dialog;
class ServiceAide;
class Surveillance;
class Editeurs;

class Télécommande;

/// The main window: owns the simulation's state, the engine, the project's files, the clock and the
/// options window. The other windows reach the state through it.
class Sim1 final : public QWidget, public Fenetres {
public:
    /// @param dossier_application  holds the directory Configuration
    /// @param terminer             ends the program with an exit code; called once
    Sim1(const std::filesystem::path& dossier_application, std::function<void(int)> terminer);
    ~Sim1() override;

    /// The start-up. May ask for the end of the program: see terminee().
    void Form_Load();
    /// Sizes the window for the table's extent and puts the options window beside it.
    void Init_Table();
    void Table_Click();
    void logo_Click() { Table_Click(); }
    /// Offers to save the paths that were recorded since the last saving; tells what could not be
    /// written, and writes it elsewhere if the user wants. @returns false when a path would be lost
    /// now: stay
    bool SauvRobot();
    /// The unsaved paths give way to files read again: they are kept, and no longer offered.
    void abandonner_trajets() { reprise_.abandonner(*this); }
    /// A recording has come back: as many robots as it needs, and the console goes on with it.
    void continuer_enregistrement();
    /// Shows the options window.
    void montrer_options();
    /// Shows the console, made the first time.
    void montrer_console();
    /// Shows the generation window, made the first time.
    void montrer_generateur();
    /// Leaves the main window and the generation windows alone on the screen.
    void cacher_options_et_console();
    /// Loads the present project's files in place of what is there.
    void recharger_projet();
    /// Loads the project that the user has just chosen.
    void charger_projet_choisi();
    /// Draws everything anew after records were read; the window changes only with their extent.
    void redessiner();
    /// The console, if there is one, ends its recording and reads the robot's pose again.
    void recommencer_console();
    /// The table lies otherwise: the console says what that means for positions.
    void table_tournee();
    /// The number of robots has changed: the console offers as many.
    void robots_changes();
    /// The program itself has just written that file, of the project or not: it is no news.
    void fichier_ecrit(const std::filesystem::path& fichier);
    /// Opens the manual at the page of a window.
    void montrer_aide(const QWidget& depuis);
    /// Writes the general settings if they were modified.
    void SaveGeneral();
    /// The table and robot editors.
    Editeurs& editeurs();
    /// Asks about unsaved drawings. @returns false when the user does not want to leave
    bool peut_partir();
    /// The user leaves: the drawings that are not saved go.
    void partir();
    /// Writes what the next start would take up: the program may end at once.
    void ecrire_reprises();
    /// Ends the program; nothing of it runs any more afterwards.
    void terminer(int code_de_sortie);
    bool terminee() const { return terminee_; }
    /// Escape: ends the console's action, else the run. @returns false when nothing runs
    bool arreter_course();
    bool en_course() const { return Timer.isActive(); }

    Etat& etat() { return *e; }
    Moteur& moteur() { return moteur_; }
    Projet& projet() { return projet_; }
    FOption& options() { return options_; }

    void message(std::string_view texte, std::string_view explication = {}) override;
    void information(std::string_view texte) override;
    bool question(std::string_view texte, std::string_view explication = {}) override;
    void regler_Timer(Entier16 ms) override;
    void ecrire_Mess(const LigneMess& mess) override;
    void ecrire_texte_Mess(std::string_view texte) override;
    void ecrire_Info(const LigneInfo& info) override { Info.ecrire(info); }
    void ecrire_LNom(std::string_view texte) override;
    void ecrire_nbre_carreaux(std::string_view texte) override;
    void Active_Desactive(bool Status) override;
    void Dessine_Table() override;
    void Dessine_Robot() override;
    void apres_actions() override;
    void montrer_course(bool en_cours) override;
    void montrer_logo(bool visible) override;
    void fin_du_programme() override;

protected:
    void closeEvent(QCloseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent*) override { placer(); }

private:
    void nommer();
    void connecter();
    void placer();
    void placer_logo();
    void placer_options();
    struct MesuresEcran mesures(int largeur_lignes) const;
    void charger_projet();
    void prendre_projet();
    void proposer_reprise();
    void Timer_Timer();
    void montrer_titre();
    bool sauver_ailleurs(BilanSauvegarde bilan);
    void menu_robots(const QPoint& ou);
    void Form_Unload();

    std::unique_ptr<Etat> e;
    std::function<void(int)> terminer_;
    bool terminee_ = false;
    Boites boites_{*this};
    Projet projet_;
    Moteur moteur_;
    QTimer Timer{this};
    Cadence cadence_;
    LigneTexte Mess, Info;
    ::Table Table;
    Banniere LNom;
    Logo logo;
    QSize taille_dessinee_; ///< XMax, YMax that Init_Table laid the window out for
    QSize taille_Table_;    ///< logical pixels that Init_Table chose: only their ratio counts
    FOption options_;
    Reprise reprise_;
    std::unique_ptr<Télécommande> console_; ///< made when it is first shown
    std::unique_ptr<Dialog> generateur_;    ///< likewise
    std::unique_ptr<Surveillance> surveillance_;
    std::unique_ptr<ServiceAide> aide_;
    std::unique_ptr<Editeurs> editeurs_; ///< made when they are first asked for
};
