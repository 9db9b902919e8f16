#pragma once

#include "config/document_trajet.h"

#include <string>
#include <string_view>
#include <vector>

/// How a trajectory goes to the other side of the table. Each done twice gives the same again.
enum class Retournement {
    vertical,   ///< mirror: x becomes XMax - x, heading h 180 - h
    horizontal, ///< mirror: y becomes YMax - y, heading h -h
    demi_tour   ///< half turn about the table's middle
};

/// The table's extent in the frame of the files (cm).
struct Etendue {
    int XMax = 0;
    int YMax = 0;
};

/// A heading (degrees) after the half turn: 0 to 179 and 180 to 359 change places, and so do every
/// two halves of a full turn below and above.
int cap_oppose(int cap);

/// A start pose or an action on the other side: a mirror swaps the sides of turns, arcs and beacon
/// searches, a half turn does not. @throws Debordement when a number leaves 16 bits
Fiche retournee(const Fiche& fiche, Retournement axe, const Etendue& table);

/// Takes records to the other side, their lines otherwise untouched. @param choisies  their indices
/// @throws LigneRefusee when a number leaves 16 bits; nothing is changed then
void retourner(DocumentTrajet& trajet, const std::vector<std::size_t>& choisies, Retournement axe,
               const Etendue& table);

/// The whole file on the other side. Without a start pose of its own it has none to turn, and is
/// refused.
/// @throws ErreurExecution (LigneRefusee for a line) when the simulator's reader refuses it, when a
///         number leaves 16 bits, and when a second time would not give these very bytes again
std::string fichier_retourne(std::string_view octets, Retournement axe, const Etendue& table);

/// Moves the start pose that counts (cm, degrees). @throws LigneRefusee beyond 16 bits;
/// ErreurExecution without a start pose
void decaler_depart(DocumentTrajet& trajet, int dx, int dy, int dcap = 0);
