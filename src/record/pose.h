#pragma once

#include "sim/moteur.h"

#include <string>

/// The console's three fields of the initial position.
struct ChampsPose {
    std::string TextX, TextY, TextA; ///< cm, cm, degrees
};

/// A pose in single precision (cm, cm, degrees).
struct Pose {
    float x = 0;
    float y = 0;
    float cap = 0;
};

/// Robot I's initial pose as the console shows it: in the frame of the unturned table, heading
/// rounded to a whole number.
/// @throws Debordement when the heading leaves 16 bits, HorsTable when I is outside 0..10
ChampsPose tele_get_xya(const Etat& e, Entier16 I);

/// Puts robot I at (X, Y) with heading A, typed in the console's frame, as its initial and current
/// pose, makes it the driven robot and starts a run. On a turned table the arguments come back
/// converted. Deliberate: this way uses YMax, the other way XMax, so that the two are inverses on a
/// square table only.
void tele_set_xya(Etat& e, Moteur& moteur, Fenetres& f, Entier16 I, Entier16& X, Entier16& Y,
                  Entier16& A);

/// What to type in the console so that it puts a robot at a pose of the displayed table.
ChampsPose champs_pour(const Etat& e, const Pose& affichee);

/// The largest X and Y (cm) that put a robot on the displayed table when they are typed.
struct LimitesPose {
    Entier16 X, Y;
};
LimitesPose limites_de_position(const Etat& e);

/// How much larger than what was typed the X is that tele_get_xya gives back, in cm: not 0 on a
/// turned table that is no square.
int ecart_de_relecture(const Etat& e);

/// Robot I's initial pose in the frame of the unturned table, whatever the display's orientation:
/// the frame of the files.
Pose pose_des_fichiers(const Etat& e, Entier16 I);
/// The reverse: sets robot I's initial and current pose.
void poser_depuis_fichier(Etat& e, Entier16 I, Pose pose);
