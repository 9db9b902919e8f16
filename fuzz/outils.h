#pragma once

#include "base/erreurs.h"
#include "base/texte.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// What the fuzz targets share.

inline void exiger(bool condition) {
    if (!condition)
        std::abort();
}

inline std::string texte_lu(const std::uint8_t* octets, std::size_t taille) {
    return en_utf8(std::string(octets, octets + taille));
}

/// A refusal is the only way out that a reader may take besides its end. @returns false after one
template <typename Action>
bool tenter(Action action) {
    try {
        action();
        return true;
    } catch (const ErreurExecution&) {
        return false;
    }
}
