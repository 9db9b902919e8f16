#pragma once

#include "sim/etat.h"

/// A table of 200 x 320 cm, and robots that move by 1 cm and 1 degree a tick.
inline void preparer_essai(Etat& e) {
    e.XMax = 200;
    e.YMax = 320;
    for (int i = 1; i <= 9; ++i) {
        e.VitesseLin(i) = 1;
        e.VitesseRot(i) = 1;
        e.Entraxe(i) = 10;
    }
}

/// One more action of robot i.
inline void ajouter_action(Etat& e, int i, Nom10 action, int p1 = 0, int p2 = 0) {
    const Entier16 n = e.TrajNbActions(i) + 1;
    e.TrajNbActions(i) = n;
    e.TrajAction(i, n) = action;
    e.TrajParam1(i, n) = p1;
    e.TrajParam2(i, n) = p2;
}
