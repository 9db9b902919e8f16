#pragma once

#include "base/nombres.h"
#include "sim/textes_etat.h"

#include <string_view>

/// All that the engine asks of the outside. Every function is pure: a forgotten one does not
/// compile. The windows, the command line and the tests each implement it.
class Fenetres {
public:
    /// Message box with an OK button; returns once it is closed. `explication` says more where
    /// there is more to say; a window shows it beneath the text, the command line leaves it out.
    virtual void message(std::string_view texte, std::string_view explication = {}) = 0;
    /// The same for what is no fault: the name of the file about to be written.
    virtual void information(std::string_view texte) = 0;
    /// Message box with Yes and No buttons; true = Yes. `explication` says what the answers lead
    /// to; a window shows it beneath the question, the command line behind it.
    virtual bool question(std::string_view texte, std::string_view explication = {}) = 0;
    /// The simulation clock, in milliseconds; 0 = stopped.
    virtual void regler_Timer(Entier16 ms) = 0;
    /// The status line and the sensor read-out. The values come, not the text: it is made only when
    /// somebody looks at it. The reference stays valid as long as the engine and keeps its values
    /// until the next call: whoever shows them later may keep it.
    virtual void ecrire_Mess(const LigneMess& mess) = 0;
    virtual void ecrire_Info(const LigneInfo& info) = 0;
    /// The status label as plain text: the question of a path's saving.
    virtual void ecrire_texte_Mess(std::string_view texte) = 0;
    /// The project's banner, lines separated by CR LF.
    virtual void ecrire_LNom(std::string_view texte) = 0;
    /// The options window's tile count.
    virtual void ecrire_nbre_carreaux(std::string_view texte) = 0;
    /// Enables or disables the console's action controls.
    virtual void Active_Desactive(bool Status) = 0;
    /// Draws the table inside ZoneRedessin, then the robots (the pair of procedures in draw/).
    virtual void Dessine_Table() = 0;
    virtual void Dessine_Robot() = 0;
    /// The poses of this tick stand: whoever keeps a trace of them reads them now.
    virtual void apres_actions() = 0;
    /// True at a run's start: disables the option boxes and the robot count, captions the button
    /// "Arrêter". False at its end: the reverse.
    virtual void montrer_course(bool en_cours) = 0;
    /// The logo and the banner over the table.
    virtual void montrer_logo(bool visible) = 0;
    /// A request: the caller returns right after it.
    virtual void fin_du_programme() = 0;

protected:
    ~Fenetres() = default;
};
