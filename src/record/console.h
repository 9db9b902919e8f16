#pragma once

#include "record/liste.h"
#include "record/pose.h"
#include "record/reprise.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// What the button of that caption drives. Both fields are read whatever the action.
/// @throws ErreurExecution when one is refused
ActionConduite action_des_champs(std::string_view legende, const std::string& Text1,
                                 const std::string& Text4);

/// The remote-control console without its window: drives one robot action by action and records
/// what it does. Whoever shows it reads phase() after each call to enable its controls, and passes
/// on what the engine asks of the console (Active_Desactive(True), montrer_course(false)) as
/// action_finie().
class Console {
public:
    enum class Phase {
        arret, ///< not recording: the robot and its position can be chosen
        repos, ///< recording: an action can be driven
        action ///< recording, an action runs
    };

    /// @param reprise  receives what was recorded after each action; may be null
    Console(Etat& etat, Fenetres& fenetres, Moteur& moteur, Reprise* reprise = nullptr)
        : etat_(etat), fenetres_(fenetres), moteur_(moteur), reprise_(reprise) {}

    /// The text of the tile count's box, which a code-12 row keeps; without it the count itself.
    std::function<std::string()> nbre_carreaux;
    /// Hears that what is recorded has changed.
    std::function<void()> au_changement;

    Phase phase() const { return phase_; }
    Entier16 robot() const { return robot_; }

    /// Chooses the robot, 1..9; does nothing while recording. @returns its pose for the fields
    ChampsPose VScroll1_Change(Entier16 numero);

    /// "Début Enr." or "Fin Enr.". The start puts the robot on the position of the fields and
    /// begins a run; the recorded actions then replace its trajectory from the first entry.
    /// @throws ErreurExecution when a field is refused or the robot is not on the table: nothing
    ///         has begun
    void Command9_Click(const ChampsPose& champs);

    /// A button: plays its action and records it. Both fields are read whatever the action.
    /// Nothing happens unless phase() is repos.
    /// @param legende  the button's caption
    /// @throws ErreurExecution when a field is refused (phase() is still repos: nothing has begun)
    ///         or when the recording cannot hold the action (phase() is action: it plays, and the
    ///         trajectory may hold it)
    void Command4_Click(std::string_view legende, const std::string& Text1,
                        const std::string& Text4);

    /// The engine's word that the action is over, or that the run has ended.
    void action_finie();
    /// Ends the running action. The recording keeps what was driven of it, in whole centimetres,
    /// degrees or hundredths of a second, and the robot stands where that ends; an action of which
    /// nothing is left, or a beacon search, goes out of the recording. @returns false when no
    /// action runs
    bool arreter_action();

    /// "Annuler la dernière action" is possible: recording, and no robot moves.
    bool annulation_possible() const;
    /// Takes the last action back out of trajectory and generation table, both its rows where it
    /// has a tile count, and puts the robots, the clock and the tile count back. Where there is no
    /// action left, takes back the start of the recording: the unsaved one that it replaced is
    /// there again, and not recording.
    void annuler();

    /// The actions from `rang` on (0: the first one) can be replaced: recording, no robot moves,
    /// the match goes on, and what they changed is known.
    bool modification_possible(std::size_t rang) const;
    /// Takes recorded action `rang` out; puts one in front of it; puts another one in its place.
    /// What follows is driven again at once, and the robot stands where the path ends now.
    /// @throws ErreurExecution when an action would not end within the match, or the trajectory or
    ///         the generation table is full; all is as before then
    void supprimer(std::size_t rang);
    void inserer(std::size_t rang, const ActionConduite& action);
    void changer(std::size_t rang, const ActionConduite& action);

    /// The path of robot `numero` can be continued: it was recorded last.
    bool continuation_possible(Entier16 numero) const;
    /// Records on at the end of the robot's path: plays it at once, lists its actions, and the next
    /// one follows them.
    /// @throws ErreurExecution when the path cannot be played to its end; nothing is recorded then
    void continuer(Entier16 numero);
    /// Another project or other files were loaded: no recording goes on, nothing can be undone.
    void oublier();

    /// The actions of this recording, oldest first.
    const std::vector<Etape>& etapes() const { return etapes_; }
    /// This recording took the place of an unsaved one of the same robot, which annuler() brings
    /// back: what the list says of it. Empty when there is none.
    std::string annonce_du_precedent() const;
    /// The next action starts the trajectory over: the match, or the run, has ended.
    bool recommencera() const;
    /// Time of the match at the end of the last action, or by now when one runs.
    std::int32_t temps_du_match() const;

    /// Plays and records one action. The engine's clock runs after it, whatever is thrown.
    void tele_action(Entier16 I, const std::string& action, Entier16 p1, Entier16 p2);

private:
    struct Saisie {
        std::string Text1, Text4;
    };

    /// What the start of a recording took the place of.
    struct Precedent {
        Instantane avant;
        std::vector<Etape> etapes;
        Entier16 RobotTele;
        bool garde; ///< a copy is among the kept recordings
    };

    void exiger_robot_sur_la_table() const;
    void debuter(Entier16 x, Entier16 y, Entier16 a);
    void ceder_la_place();
    void lancer(Entier16 I, const std::string& action, Entier16 p1, Entier16 p2);
    void inscrire(Entier16 I, const std::string& action, Entier16 p1, Entier16 p2);
    bool rejouer(Entier16 robot, const ActionConduite& action);
    void refaire(std::size_t rang, const std::vector<ActionConduite>& suite);
    std::vector<ActionConduite> suite_depuis(std::size_t rang) const;
    void conduire(const std::vector<ActionConduite>& suite);
    void rejouer_le_trajet(const struct LignesDuTrajet& lignes);
    void ecrire_reprise();
    void memoriser(Entier16 I, const std::string& action, Entier16 p1, Entier16 p2);
    void ajouter_au_trajet(Entier16 I, Entier16 p1, Entier16 p2);
    void remplir_TableauAGenerer(const std::string& action);
    void ajouter_ligne(std::uint8_t code, std::uint8_t p1, std::uint8_t p2);

    Etat& etat_;
    Fenetres& fenetres_;
    Moteur& moteur_;
    Reprise* reprise_;
    Phase phase_ = Phase::arret;
    Entier16 robot_ = 1;
    Saisie saisie_;
    std::vector<Etape> etapes_;
    std::vector<Precedent> precedents_;
    bool debut_sans_action_ = false; ///< since the last start nothing was recorded
    bool joue_ = false;              ///< an action runs, recording or not any more
};
