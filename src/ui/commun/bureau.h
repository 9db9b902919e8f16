#pragma once

#include <string>

/// What one window of the program may ask of the others, and of the program's end. The main window
/// answers.
class Bureau {
public:
    virtual void montrer_options() = 0;
    /// Leaves the main window and the generation windows alone on the screen.
    virtual void cacher_options_et_console() = 0;
    /// Shows the window of former versions.
    virtual void montrer_restauration() = 0;

    /// Opens the editor on a robot's trajectory, at its action `numero` (0: none in particular).
    virtual void modifier_le_trajet(int robot, int numero) = 0;

    /// Loads that project, whatever would be lost offered for saving before. @returns false when
    /// the user stays with the present one
    virtual bool charger_projet(const std::string& projet) = 0;
    /// Loads the project that the user has just chosen, and offers its unsaved recording.
    virtual void charger_projet_choisi() = 0;
    /// At least so many robots, 1..9.
    virtual void montrer_robots(int nombre) = 0;
    /// A recording has come back: as many robots as it needs, and the console goes on with it.
    virtual void continuer_enregistrement() = 0;
    /// Escape: ends the console's action, else the run. @returns false when nothing runs
    virtual bool arreter_course() = 0;

    /// Asks about unsaved drawings. @returns false when the user does not want to leave
    virtual bool peut_partir() = 0;
    /// The user leaves: the drawings that are not saved go, and the program ends.
    virtual void partir() = 0;

protected:
    ~Bureau() = default;
};
