#pragma once

#include "cli/simulation.h"

/// "verifier --match": reads the project without changing anything, plays its match at once and
/// says what the team should look at, as text or as one JSON object.
/// @returns 1 when there is a finding, else 0
int verifier_match(const ChoixDeLigne& choix, bool json);
