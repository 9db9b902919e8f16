#pragma once

#include "ui/principale/application.h"

#include <iosfwd>
#include <variant>

/// What the command line asks of the start, or the exit code of a program that has said all it was
/// asked for, or why it does not understand.
/// @param sortie   for --version and --help
/// @param erreurs  for what is not understood
std::variant<Demarrage, int> lire_arguments(int argc, const char* const* argv, std::ostream& sortie,
                                            std::ostream& erreurs);
