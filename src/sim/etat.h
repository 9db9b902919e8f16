#pragma once

#include "base/nombres.h"
#include "base/tableau.h"
#include "base/texte.h"

#include <cstdint>
#include <string>
#include <type_traits>

inline constexpr int robots_max = 10;         ///< slots per robot; files feed robots 1..9
inline constexpr int robots_des_fichiers = 9; ///< robots read from files
inline constexpr int actions_max = 1000;
inline constexpr int points_max = 100; ///< outline points per robot

/// A match's length, in hundredths of a second: the first tick beyond it ends the run.
inline constexpr int duree_du_match = 9000;
/// The time of that tick. @param PasTemps  1 or 5
inline constexpr int dernier_tick(int PasTemps) {
    return (duree_du_match / PasTemps + 1) * PasTemps;
}

/// A zone of the floor: a box, X1 <= X2 and Y1 <= Y2 (cm). `Type` is its key: L, O, V, T, U or W.
struct Zone {
    char Type = ' ';
    Entier16 X1, Y1, X2, Y2;
};

/// A piece: a disc of radius `Taille` about (X, Y) (cm); `Type` is PB, PN, BJ, BB, X or Y.
struct Pion {
    Entier16 X, Y, Taille;
    std::string Type;
};

/// Two corners or two ends (cm). As a block, Y2 = -1 marks a disc: centre (X1, Y1), radius X2.
struct Quatre {
    Entier16 X1, Y1, X2, Y2;
};
inline constexpr int marque_disque = -1;

/// A beacon: (X, Y) in cm, and the third field of its record, which the search does not use.
struct PointBalise {
    float X = 0;
    float Y = 0;
    double Val = 0;
};

/// A rectangle of the table in cm: left x, right x, bottom y, top y.
struct Region {
    Entier16 xmin, xmax, ymin, ymax;
};

// The state, split by how long its parts live. Coordinates are in cm, headings in degrees
// (anticlockwise), times in hundredths of a second. Tables are filled from slot 1.

/// Project and settings: they live as long as the program.
struct Reglages {
    std::string NomProjet = "Defaut"; ///< prefix of every table, robot and trajectory file
    Tableau<Entier16, 4> Options;     ///< 1 "Rapide", 2 "Allege", 3 "NbRobot", 4 "Horizontale"
    Entier16 NbRobot = 1;             ///< robots simulated, 1..9
    Entier16 PasTemps = 1;            ///< time step of a tick: 1, or 5 with "Traitement allégé"
    Entier16 AffichageLent;           ///< 16-bit boolean: persistent drawing during a run
    Entier16 TableHorizontale;        ///< 16-bit boolean: the table is shown turned
    bool utiliDamier = false;         ///< the options window's box "Util. du damier"
};

/// What the table file says, and the fixed chequerboard: until the next table is read.
struct AireDeJeu {
    Entier16 XMax, YMax; ///< extent
    Tableau<Zone, 100> Zones;
    Entier16 NbZones;
    Tableau<Pion, 100> Pions;
    Entier16 NbPions;
    Tableau<Quatre, 100> Lignes;
    Entier16 NbLignes;
    Tableau<Quatre, 10> Blocs;
    Entier16 NbBlocs;
    Tableau<Quatre, 10> Ellipses;
    Entier16 NbEllipses;
    PointBalise PointX;               ///< left beacon
    PointBalise PointY;               ///< right beacon
    std::uint32_t version_table = 0;  ///< grows with every change of the records or the extent
    Tableau<Entier16, 7> DamierX;     ///< left edges of the columns 0..6
    Tableau<Entier16, 10> DamierY;    ///< bottom edges of the rows 0..9
    Tableau2<Entier16, 7, 10> Damier; ///< 16-bit boolean: colour of a square
};

/// What the robot files say (and the trajectories' "Init"): until the next robots are read.
struct ModelesDeRobots {
    Tableau<float, robots_max> XInit, YInit, CapInit;
    Tableau<float, robots_max> XmInit, YmInit, XextrInit, YextrInit;
    Tableau<float, robots_max> DistExtr;   ///< length of the sensor line
    Tableau<float, robots_max> VitesseLin; ///< cm per hundredth of a second
    Tableau<float, robots_max> VitesseRot; ///< degrees per hundredth of a second
    Tableau<float, robots_max> Entraxe;    ///< wheel track
    Tableau<Entier16, robots_max> NbPoints;
    Tableau2<float, robots_max, points_max> RobotDist;  ///< from the reference point
    Tableau2<float, robots_max, points_max> RobotAngle; ///< radians, 0 = straight ahead
};

/// The trajectories: read from their files, then changed by the console.
struct Trajectoires {
    Tableau2<Nom10, robots_max, actions_max> TrajAction;
    Tableau2<Entier16, robots_max, actions_max> TrajParam1, TrajParam2;
    Tableau<Entier16, robots_max> TrajNbActions;
};

/// One run: all that a tick changes. A snapshot of a run is a copy of this and nothing else.
struct Course {
    Tableau<float, robots_max> XRobot, YRobot, CapRobot;
    Tableau<float, robots_max> Xm, Ym, Xextr, Yextr; ///< sensor line: middle, extremity
    Tableau<Nom10, robots_max> ActionEnCours; ///< ten blanks: the previous action is finished
    Tableau<Entier16, robots_max> NumAction, ParamEnCours, Param2EnCours;
    Tableau<float, robots_max> Progression;
    std::int32_t TempsEcoule = 0;
    float Incidence = 0;      ///< heading of the sensor lines
    Entier16 RobotTele;       ///< robot that the console drives, 0 = none
    Entier16 NbreCarreaux;    ///< colour changes counted
    Entier16 NouvelleCouleur; ///< 16-bit boolean
};
static_assert(sizeof(Course) < 1024 && std::is_trivially_copyable_v<Course>,
              "snapshots of a run must stay cheap: undo and moving about in a match take many");

/// What a run tells the drawing.
struct Affichage {
    Region ZoneRedessin;    ///< what the next Dessine_Table repaints
    bool persistant = true; ///< persistent drawing of the table, off during a fast run
    bool en_course = false; ///< from Run_Jeu to Fin_Jeu: no logo over the table
};

/// The path that the console records.
struct TrajetEnregistre {
    Tableau2<std::uint8_t, actions_max, 3> TableauAGenerer; ///< row: code, two parameters, unused
    Entier16 nb_a_generer;                                  ///< rows used; never reset
    Tableau<bool, robots_max> TrajetModifie;                ///< changed by the console, not saved
};

/// The whole state of a simulation, under the names the team speaks of. Owned by the main window
/// (or by whoever simulates); everybody else gets a reference.
struct Etat : Reglages,
              AireDeJeu,
              ModelesDeRobots,
              Trajectoires,
              Course,
              Affichage,
              TrajetEnregistre {};
