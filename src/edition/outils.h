#pragma once

#include "edition/formes.h"

#include <string>

/// What a tool of the palette draws.
enum class FormeOutil { selection, boite, cercle, horizontale, verticale, libre, brisee, legende };

/// The size of what a click places (cm, degrees).
struct Tailles {
    double largeur, hauteur, rayon, longueur, incidence;
};

/// What a click makes, in whole centimetres and of exactly that size.
/// @param sur_table  moved to where no coordinate is negative
Fiche posee(const std::string& cle, FormeOutil forme, Vecteur milieu, const Tailles& t,
            bool sur_table);
/// What a drag from `a` to `b` makes: opposite corners, ends, or centre and rim.
Fiche tracee(const std::string& cle, FormeOutil forme, Vecteur a, Vecteur b);
