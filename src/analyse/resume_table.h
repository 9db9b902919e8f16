#pragma once

#include "sim/etat.h"

#include <string>

/// The table at this moment for somebody who cannot see it: project, time, and of every robot
/// where it is and what it does.
std::string resume_de_la_table(const Etat& e);
