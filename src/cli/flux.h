#pragma once

#include "base/erreurs.h"

#include <cstddef>
#include <optional>
#include <string>

// The three standard streams, as the shell hands them over: open, closed, full or unreadable.

/// Writes out what standard output still holds. @returns why the user did not get all of it;
/// nothing when he did
std::optional<ErreurFichier> terminer_la_sortie();

/// The next line of standard input without its end; nothing at its end.
/// @throws ErreurFichier when it cannot be read, ErreurExecution for a line of more than `maximum`
/// bytes, whose rest stays unread
std::optional<std::string> lire_ligne(std::size_t maximum = 4096);
