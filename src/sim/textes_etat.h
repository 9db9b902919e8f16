#pragma once

#include "base/texte.h"

#include <cstdint>

/// What the status line shows, taken at the end of a tick; the text is made on demand.
struct LigneMess {
    std::int32_t TempsEcoule = 0; ///< hundredths of a second
    Entier16 NumAction;           ///< robot 1's, like everything below
    Entier16 TrajNbActions;
    Nom10 ActionEnCours;       ///< as it stands after the tick
    Nom10 action_pour_l_unite; ///< as it stood before the end of the match
    float Progression = 0;
    Entier16 ParamEnCours;
    float Incidence = 0; ///< degrees
    Entier16 NbreCarreaux;

    /// "     Durée : 1 mn 15 s     Action 3/8 en cours : AVANCE      13/50 cm Incidence:90 ..."
    TexteCourt texte() const;
};

/// What the sensor read-out shows: robot 1's middle and extremity points (cm) and, during a beacon
/// search, three distances (cm) of the searching robot.
struct LigneInfo {
    float Xm = 0;
    float Ym = 0;
    float Xextr = 0;
    float Yextr = 0;
    bool avec_balise = false;
    double d = 0;    ///< sensor extremity to beacon
    double dmin = 0; ///< sensor origin to beacon
    double d2 = 0;   ///< d + length of the sensor line

    /// Whole cm: "Xm=12 Ym=40 Xextr=12 Yextr=60", behind it in a search "d=88 dmin=90 d2=108".
    TexteCourt texte() const;
};
