#pragma once

#include "record/annulation.h"

#include <string>

/// One action of the recording, and what taking it back needs.
struct Etape {
    Instantane avant;
    Entier16 numero; ///< its entry in the trajectory
    std::string nom; ///< in capitals, whole: "BALISE DROITE"
    Entier16 p1, p2;
    std::int32_t debut = 0; ///< TempsEcoule at its start and, so far, its end
    std::int32_t fin = 0;
    bool recommence = false; ///< it began a new run: the trajectory starts over with it
    bool sans_code = false;  ///< in the trajectory, but (in part) not in the generation table
    bool annulable = true;   ///< its rows of the generation table are known
};

/// An action as the console drives it: its name in capitals, whole, and what the trajectory keeps
/// of its fields (an arc's angle first).
struct ActionConduite {
    std::string nom;
    Entier16 p1, p2;
};

/// What the list of recorded actions shows of one of them.
struct LigneListe {
    std::string numero;   ///< "3"
    std::string action;   ///< "VirAvDr 90° rayon 30 cm"
    std::string duree;    ///< "1,25 s"
    std::string total;    ///< time of the match at its end, "12,50 s"
    bool marquee = false; ///< the generated code will lack it
};

/// Values in the action's units (cm, degrees), times in seconds.
LigneListe ligne_de_liste(const Etape& etape);
