#include "sim/direction.h"

#include "base/nombres.h"

#include <bit>
#include <cmath>
#include <cstdint>

void Direction::viser(float nouveau_cap) {
    if (std::bit_cast<std::uint32_t>(nouveau_cap) == std::bit_cast<std::uint32_t>(cap))
        return;
    cap = nouveau_cap;
    ::sincos(radians(cap), &s, &c);
}
