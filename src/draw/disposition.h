#pragma once

#include "sim/etat.h"

// Window layout in twips (1/1440 inch); one logical pixel is 15 twips.

inline constexpr int twips_par_pixel = 15;

/// What the layout needs to know of the screen and the windows, in twips (logo: table units).
struct MesuresEcran {
    double largeur_ecran = 0;
    double hauteur_ecran = 0;
    double cadre_horizontal = 0; ///< main window's width less its inner width
    double cadre_vertical = 0;   ///< likewise the height, title bar included
    double hauteur_Mess = 0;
    double hauteur_Info = 0;
    double largeur_logo = 0; ///< cm
    double hauteur_logo = 0; ///< cm
};

/// Sizes to give to the main window and its controls, in twips.
struct Disposition {
    Entier16 Echelle; ///< twips per table unit
    Entier16 largeur_Table, hauteur_Table;
    double largeur_fenetre = 0;
    double hauteur_fenetre = 0;
    double gauche_logo = 0; ///< cm; LNom has the same left and top
    double haut_logo = 0;   ///< cm
    Region ZoneLogo;        ///< rectangle of the logo, in cm
};

/// Chooses the scale so that the table fits on the screen, lays the main window out and resets
/// ZoneRedessin to the whole table. The table's surface shows 5 cm more than the table on each
/// side.
/// @throws Debordement when a size leaves 16 bits, DivisionParZero for an empty table
Disposition Init_Table(Etat& e, const MesuresEcran& m);
