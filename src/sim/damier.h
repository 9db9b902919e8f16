#pragma once

#include "sim/etat.h"

/// Fills the chequerboard model: 7 x 10 squares of 30 cm whose two colours alternate. It is fixed:
/// neither the table file nor a turn of the table changes it.
void initDamier(Etat& e);

/// Compares the colour of square (I, j) with the colour last seen, which follows it.
/// @throws HorsTable when I > 7 or j > 10
void detecterCouleur(const Etat& e, std::uint8_t I, std::uint8_t j,
                     Entier16& nouvelleCouleurDetectee, Entier16& Couleur);

/// Walks from (xDebut, yDebut) along Incidence in steps of 1 cm until x >= xFin and y >= yFin, and
/// adds the colour changes met to NbreCarreaux.
/// @throws Debordement after 32767 steps: the end lies where the walk never gets
void calculer_nbre_carreaux(Etat& e, float xDebut, float yDebut, float xFin, float yFin);

/// The same walk along the heading whose cosine and sine are given; one that would overflow its
/// step counter is recognised without walking it and counts nothing.
/// @returns false for such a walk
bool predire_marche(Etat& e, float xDebut, float yDebut, float xFin, float yFin, double cosinus,
                    double sinus);
