#pragma once

#include <CLI/CLI.hpp>

// Each verb of the command line: declares its options; when it is chosen, runs and sets the exit
// code.
void declarer_installer(CLI::App& app, int& code_de_sortie);
void declarer_verifier(CLI::App& app, int& code_de_sortie);
void declarer_simuler(CLI::App& app, int& code_de_sortie);
void declarer_dessiner(CLI::App& app, int& code_de_sortie);
