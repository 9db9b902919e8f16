#pragma once

#include <string>

/// The program's version, "1.0.0": the one of the project() line of the topmost CMakeLists.txt.
std::string version_du_programme();
