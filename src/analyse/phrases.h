#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// "45,60 s"
std::string secondes(std::int32_t centiemes);
/// A length or an angle with one decimal: "12,3".
std::string dixiemes(double valeur);
/// A heading brought back to a turn: above -180, up to 180 degrees, as it is shown.
double cap_ramene(double cap);
/// "1 action", "3 actions"
std::string compte(int n, std::string_view nom);
