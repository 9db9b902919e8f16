#pragma once

#include "base/erreurs.h"
#include "base/texte.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// What the fuzz targets share.

/// Begins the function that tries a file's bytes: libFuzzer's entry point, or one of those that the
/// program that replays the seeds calls by their name.
#ifdef CIBLES
#define CIBLE(nom) int essai_##nom(const std::uint8_t* octets, std::size_t taille)
#else
#define CIBLE(nom)                                                                                 \
    extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille)
#endif

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
