#pragma once

#include "config/fiche.h"

#include <string_view>

/// Numbers that a robot record holds: "R" 4, "V" 2, "A", "E", "I" 3; 0 for an unknown key.
std::size_t champs_robot(std::string_view cle);

/// The record of a robot file's line.
/// @param ligne  a line that counts, without its comment
FicheLue fiche_robot(std::string_view ligne);
