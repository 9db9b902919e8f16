#pragma once

#include "ui/dessin_robot.h"
#include "ui/dessin_table.h"
#include "ui/foutil.h"

class Sim1;

/// The palette and the drawing windows that it opens.
class Editeurs {
public:
    explicit Editeurs(Sim1& sim);

    /// "Créer un projet...": the palette and the editor of what it draws.
    void montrer();
    /// Asks about unsaved changes. @returns false when the user does not want to leave
    bool peut_partir();

private:
    void montrer_dessin();
    void placer();

    Sim1& sim_;
    // The windows belong to the main window, like all others.
    Foutil& outils_;
    dessinTable& table_;
    dessinRobot& robot_;
    bool places_ = false; ///< the windows have got their first place
};
