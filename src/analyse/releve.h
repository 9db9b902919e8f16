#pragma once

#include "analyse/contacts.h"
#include "analyse/resultat.h"
#include "analyse/sortie.h"

#include <array>

/// What happened on the table during a match: exits and contacts.
struct Releve {
    struct Contact {
        int robot = 0;
        int autre = 0; ///< the other robot, larger; or the block
        std::size_t tick = 0;
    };
    Tableau<std::optional<SortieDeTable>, robots_max> sorties;
    std::vector<Contact> robots, blocs; ///< in the order of robot, then autre
};

/// The blocks of the table, filled, in the file's order.
std::vector<Obstacle> obstacles(const AireDeJeu& table);

Releve relever(const Etat& e, const MatchCalcule& m);
/// The smallest gap of every pair, in the order of robot, then autre.
std::vector<EcartDeRobots> ecarts_de(const Etat& e, const MatchCalcule& m);

/// All that finding something needs to see, and where it goes.
struct Enquete {
    const Etat& e; ///< as loaded
    const MatchCalcule& m;
    const Provenance& provenance;
    std::vector<Constat>& constats;

    /// A finding about `robot` at its action `numero`, at no instant.
    Constat& a_l_action(Genre genre, int robot, int numero) const;
    /// A finding about `robot` at an instant: with the place, file and line of that moment.
    Constat& au_moment(Genre genre, int robot, std::int32_t temps) const;
    /// The line of a robot's action in its file.
    std::optional<int> ligne(int robot, int numero) const;
    /// The action in force at an instant, 0 before the first one.
    int numero_au(int robot, std::int32_t temps) const;
    /// "l'action 3 (AVANCE)"
    std::string l_action(int robot, int numero) const;
};

void constater_plan(const Enquete& q, const Bilan& bilan);
void constater_arret(const Enquete& q);
void constater_terrain(const Enquete& q, const Releve& releve);
void constater_damier(const Enquete& q);
/// Compares with the code that was made from a trajectory, where there is one.
void constater_code(const Enquete& q);
/// Compares with the same match played at the other time step.
void constater_pas(const Enquete& q, const Releve& releve, const MatchCalcule& autre,
                   const Releve& autre_releve);
