#pragma once

#include "base/erreurs.h"

#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

/// The value of pi that every conversion between degrees and radians uses: multiplied first,
/// divided by 180 after.
inline constexpr double Pi = 3.14159;

/// h Pi / 180, in that order.
inline constexpr double radians(double degres) {
    return degres * Pi / 180;
}

// Out of line, so that a check costs its caller one branch.
[[noreturn]] void lever_Debordement(long long valeur);
[[noreturn]] void lever_DivisionParZero();

/// 16-bit signed integer: reads as an int, so arithmetic is exact, and checks its range when a
/// result is stored (Debordement). A floating value goes through arrondir16 first.
class Entier16 {
public:
    constexpr Entier16() = default;
    template <std::integral T>
    constexpr Entier16(T valeur) : valeur_(static_cast<std::int16_t>(valeur)) {
        if (!std::in_range<std::int16_t>(valeur))
            lever_Debordement(static_cast<long long>(valeur));
    }
    template <std::floating_point T>
    Entier16(T) = delete;

    constexpr operator int() const { return valeur_; }

private:
    std::int16_t valeur_ = 0;
};

/// 16-bit boolean: false is 0, true is -1.
inline constexpr Entier16 vrai16(bool b) {
    return b ? -1 : 0;
}

/// Rounds to the nearest whole number, halves to even (2.5 is 2). @throws Debordement outside
/// -32768..32767 after rounding, NaN included.
Entier16 arrondir16(double valeur);

/// Stores a double as a single; the place where precision is dropped stays visible.
inline constexpr float simple(double valeur) {
    return static_cast<float>(valeur);
}

/// a / b. @throws DivisionParZero when b is 0
inline double diviser(double a, double b) {
    if (b == 0)
        lever_DivisionParZero();
    return a / b;
}
