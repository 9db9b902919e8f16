#pragma once

#include "seance/seance.h"
#include "ui/commun/boites.h"
#include "ui/commun/bureau.h"
#include "ui/commun/ligne_texte.h"
#include "ui/principale/barre_match.h"
#include "ui/principale/cadence.h"
#include "ui/principale/calques.h"
#include "ui/principale/depot.h"
#include "ui/principale/foption.h"
#include "ui/principale/logo.h"
#include "ui/principale/pointeur.h"
#include "ui/principale/table.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class Dialog;
class Editeurs;
class ErreursLecture;
class Exports;
class QMenu;
class Restauration;
class ServiceAide;
class Surveillance;
class Télécommande;
class Verdict;

/// The main window: table, status lines and clock. It shows one session, and owns the other
/// windows.
class Sim1 final : public QWidget,
                   private Fenetres,
                   private Hote,
                   private Bureau,
                   private Ecouteur {
public:
    /// @param dossier_application  holds the directory Configuration
    /// @param terminer             ends the program with an exit code; called once
    Sim1(const std::filesystem::path& dossier_application, std::function<void(int)> terminer);
    ~Sim1() override;

    /// The start-up. May ask for the end of the program.
    void Form_Load();
    void Table_Click();
    void logo_Click() { Table_Click(); }
    /// Writes what the next start would take up: the program may end at once.
    void ecrire_reprises();

    /// A file given on the command line or dropped on a window: one of a project is loaded, a
    /// PICBASIC program goes to the generator.
    void ouvrir_fichier(const std::filesystem::path& fichier);
    /// As "Démarrer" does.
    void demarrer_match();

    Seance& seance() { return seance_; }

protected:
    void closeEvent(QCloseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent*) override { placer(); }

private:
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

    void Init_Table() override;
    void redessiner() override;
    void appliquer_reglages() override;
    bool apres_panne() override;
    std::filesystem::path choisir_dossier(std::string_view titre) override;
    bool en_marche() const override { return Timer.isActive() || suspendue_; }
    bool terminee() const override { return terminee_; }

    void montrer_options() override { options_.montrer(); }
    void cacher_options_et_console() override;
    void montrer_restauration() override;
    void modifier_le_trajet(int robot, int numero) override;
    bool charger_projet(const std::string& projet) override { return options_.charger(projet); }
    void charger_projet_choisi() override;
    void montrer_robots(int nombre) override;
    void continuer_enregistrement() override;
    bool arreter_course() override;
    bool peut_partir() override;
    void partir() override;

    void projet_va_etre_lu() override;
    void projet_change(Lecture lecture) override;

    Bureau& bureau() { return *this; }
    void nommer();
    void connecter();
    void placer();
    void placer_logo();
    void placer_verdict();
    void placer_options();
    struct MesuresEcran mesures(int largeur_lignes) const;
    void montrer_console();
    void montrer_generateur();
    Editeurs& editeurs();
    void proposer_reprise();
    void montrer_erreurs();
    void ouvrir_le_dossier();
    void enregistrer_image();
    void montrer_a_propos();
    void Timer_Timer();
    void suspendre(bool oui);
    void avancer_d_un_pas();
    void changer_vitesse(double vitesse);
    void montrer_rythme();
    void titrer();
    /// The table in words, for assistive tools: at rest and in a pause, not at every tick.
    void decrire_la_table();
    /// A command with its key, which the options window and the console answer too.
    QAction& commande(const char* nom, const QString& texte, const QKeySequence& touche,
                      std::function<void()> procedure);
    /// The same as a line of the table's context menu.
    QAction& entree(const char* nom, const QString& texte, const QKeySequence& touche,
                    std::function<void()> procedure);
    void composer_menu();
    void composer_menu_calques();
    void connecter_calques();
    Calque calque_trace() const;
    bool trace_visible() const;
    void basculer(Calque calque);
    /// What lies on the table depends on the choices, on the pointer and on whether a match runs.
    void suivre_calques();
    void copier_position();
    void proposer_depart(const Pose& pose);
    void montrer_menu(const QPoint& ou);
    void remplir_robots(QMenu& robots);
    void remplir_vitesses(QMenu& menu);
    void Form_Unload();
    void terminer(int code_de_sortie);

    std::unique_ptr<Etat> e;
    std::function<void(int)> terminer_;
    bool terminee_ = false;
    Boites boites_{*this};
    Seance seance_;
    Depot depot_{[this](const std::filesystem::path& fichier) { ouvrir_fichier(fichier); }};
    QTimer Timer{this};
    Cadence cadence_;
    bool suspendue_ = false; ///< the run is in pause: the timer is stopped, the run is not
    QAction* pause_ = nullptr;
    QAction* pas_ = nullptr;
    QList<QAction*> commandes_de_vitesse_;
    QList<QAction*> commandes_d_export_;
    QList<QAction*> commandes_du_projet_;
    LigneTexte Mess, Info;
    ::Table Table;
    Banniere LNom;
    Logo logo;
    BarreMatch barre_;
    QSize taille_dessinee_; ///< XMax, YMax that Init_Table laid the window out for
    QSize taille_Table_;    ///< logical pixels that Init_Table chose: only their ratio counts
    ChoixCalques choix_;
    CalqueTrace trace_;
    Pointeur pointeur_;
    std::array<QAction*, nombre_de_calques> actions_calques_{};
    FOption options_;
    // Made when they are first asked for.
    std::unique_ptr<Télécommande> console_;
    std::unique_ptr<Dialog> generateur_;
    std::unique_ptr<Restauration> restauration_;
    std::unique_ptr<Editeurs> editeurs_;
    std::unique_ptr<Surveillance> surveillance_;
    std::unique_ptr<Verdict> verdict_;
    std::unique_ptr<Exports> exports_;
    std::unique_ptr<ErreursLecture> erreurs_;
    std::unique_ptr<ServiceAide> aide_;
};
