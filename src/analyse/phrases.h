#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// "45,60 s"
std::string secondes(std::int32_t centiemes);
/// A length or an angle with one decimal: "12,3".
std::string dixiemes(double valeur);
/// A heading brought back to a turn as it is shown: from 0 up to 359,9 degrees.
double cap_ramene(double cap);
/// "1 action", "3 actions"
std::string compte(int n, std::string_view nom);
