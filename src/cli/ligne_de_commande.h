#pragma once

/// Runs one command of tavolmex-cli. @returns the exit code: the verb's own, 2 for a command line
/// that is not understood
int executer_ligne_de_commande(int argc, char** argv);
