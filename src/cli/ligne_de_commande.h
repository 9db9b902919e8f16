#pragma once

#include "cli/exporter.h"

/// The program that a command line belongs to.
struct ProgrammeDeLigne {
    std::string nom = "tavolmex-cli";
    std::vector<FormatImage> formats{}; ///< besides SVG
};

/// Runs one command of a program. @returns the exit code: the verb's own, 2 for a command line that
/// is not understood, never 0 when standard output did not take everything
int executer_ligne_de_commande(int argc, char** argv, const ProgrammeDeLigne& programme = {});
