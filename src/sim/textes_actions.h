#pragma once

#include "base/nombres.h"
#include "sim/actions.h"

#include <cstdint>
#include <string>

/// Hundredths of a second as the user reads them: "12,50 s".
std::string texte_duree(std::int32_t centiemes);

/// An action with its values in its units: "VirAvDr 90° rayon 30 cm", "Pause 3,00 s".
std::string texte_action(const actions::Action& action, Entier16 p1, Entier16 p2);
