#pragma once

/// Runs one command of tavolmex-cli. @returns the exit code: the verb's own, 2 for a command line
/// that is not understood, never 0 when standard output did not take everything
int executer_ligne_de_commande(int argc, char** argv);
