#pragma once

#include "sim/actions.h"
#include "sim/direction.h"
#include "sim/etat.h"
#include "sim/fenetres.h"

#include <cstdint>

/// The simulation engine: works on one Etat, asks everything else of Fenetres. A run is
/// Run_Jeu, then Timer_Timer once per tick, then Fin_Jeu. A tick allocates nothing.
class Moteur {
public:
    Moteur(Etat& etat, Fenetres& fenetres) : etat_(etat), fenetres_(fenetres) {}
    // Tied to its state: a copy would step the same one.
    Moteur(const Moteur&) = delete;
    Moteur& operator=(const Moteur&) = delete;
    ~Moteur() = default;

    /// Resets robots 1..NbRobot to their initial pose and arms the timer at PasTemps x 10 ms.
    void Run_Jeu();
    /// Stops the timer, puts robot 1 on "FIN" and gives the controls back.
    void Fin_Jeu();
    /// One tick: PasTemps hundredths of a second. A run-time error shows a message and asks for
    /// the end of the program. @returns false after such an error
    bool Timer_Timer();
    /// One step of every robot's action; its own errors end the program likewise.
    /// @returns false after such an error
    bool Executer_Actions();

    /// Waits; done on the tick whose accumulated time exceeds `duree` (hundredths of a second).
    void Action_Pause(Entier16 duree, Entier16 i);
    /// Moves robot i straight on by one step; done on the tick that reaches |distance|: that last
    /// step is trimmed so that the robot stops exactly there.
    /// @param distance  cm, signed; below 1 (0 included) the robot steps backwards
    void Action_Avance(Entier16 distance, Entier16 i);
    /// Turns robot i on the spot by one step. @param angle  degrees, right is negative (below 1)
    void Action_Tourne(Entier16 angle, Entier16 i);
    /// Moves robot i along a circle of radius `rayon` (cm) whose centre lies 90 degrees off its
    /// heading; the outer wheel keeps the linear speed: a step turns by v dt / (Entraxe(i) / 2 +
    /// rayon).
    /// @param angle  degrees, right is negative  @param cote  +90 or -90
    /// @throws DivisionParZero when Entraxe(i) / 2 + rayon is 0
    void Action_Virage(Entier16 angle, Entier16 rayon, Entier16 cote, Entier16 i);
    /// One tick of the search for the right (Sens = 1) or left beacon: turns robot i to that side.
    /// Done when the sensor line points at the beacon: dmin = d + DistExtr(i) to two decimals (dmin
    /// from its middle point, d from its extremity, cm).
    void Chercher_Balise(std::uint8_t Sens, Entier16 i);

    /// Predicts the tiles that the action just loaded crosses: adds them to NbreCarreaux and shows
    /// the count. A walk that would overflow its step counter is abandoned and counts nothing.
    /// @returns whether it was abandoned
    bool predire_carreaux(Entier16 i);
    /// Abandoned predictions of robot i's actions since Run_Jeu.
    int predictions_abandonnees(Entier16 i) const { return abandons_(i); }
    /// The robot whose action failed or was not known; 0 when none did since Run_Jeu.
    int robot_en_cause() const { return robot_en_cause_; }

private:
    /// An arc's angular step in degrees, reused as long as nothing that it depends on changes.
    struct Arc {
        float vitesse = 0;
        float entraxe = 0;
        Entier16 PasTemps = -1; ///< none yet
        Entier16 rayon;
        bool a_droite = false;
        float pas = 0;
        void calculer(float nouvelle_vitesse, float nouvel_entraxe, Entier16 pas_temps,
                      Entier16 nouveau_rayon, bool negatif);
    };
    /// The last name looked up and its action: a robot's action stays the same for many ticks.
    struct Decodee {
        Nom10 nom;
        const actions::Action* connue = nullptr; ///< null: none of that name
        const actions::Action* action_de(const Nom10& action);
    };

    void executer(Entier16 i);
    void charger_action_suivante(Entier16 i);
    [[gnu::noinline]] void signaler_action_inconnue(Entier16 i);
    void terminer(Entier16 i);
    void ecrire_Info();
    const Direction& direction_capteur();
    void placer_extremites(const Direction& d);
    bool erreur_majeure(const char* texte);

    Etat& etat_;
    Fenetres& fenetres_;
    Tableau<Decodee, robots_max> decodees_;
    Direction incidence_;
    Tableau<Direction, robots_max> caps_;
    Tableau<Arc, robots_max> arcs_;
    Tableau<int, robots_max> abandons_;
    int robot_en_cause_ = 0;
    LigneMess mess_;
    LigneInfo info_;
};
