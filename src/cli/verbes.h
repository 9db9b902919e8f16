#pragma once

#include <CLI/CLI.hpp>

// Each verb of the command line: declares its options; when it is chosen, runs and sets the exit
// code.
void declarer_installer(CLI::App& app, int& code_de_sortie);
void declarer_verifier(CLI::App& app, int& code_de_sortie);
void declarer_simuler(CLI::App& app, int& code_de_sortie);
void declarer_dessiner(CLI::App& app, int& code_de_sortie);
/// The remote-control console without a window. Commands come from standard input, one a line; each
/// is played to its end and recorded. The exit code is 2 after a command that is not understood,
/// else as for the other verbs.
void declarer_piloter(CLI::App& app, int& code_de_sortie);

/// Writes the generation input that driving a robot's trajectory on the console would have
/// recorded; exit code 0 when it was written.
void declarer_preparer(CLI::App& app, int& code_de_sortie);

/// Mirrors a robot's trajectory or turns it by half a turn, in its own file or another robot's;
/// exit code 0 when it was written.
void declarer_miroir(CLI::App& app, int& code_de_sortie);

/// Generates a subroutine into a target as the generation window does; exit code 0 when the target
/// was written, 1 when a check refuses it.
void declarer_generer(CLI::App& app, int& code_de_sortie);
/// Plays the generated code of a robot and compares it with its trajectory; exit code 1 when it
/// ends more than 1 cm or 1 degree away or has lines that were not understood.
void declarer_rejouer(CLI::App& app, int& code_de_sortie);
/// Lists the labels of a PICBASIC file, or prints the body of one; exit code 1 when the file cannot
/// be read or holds no such label.
void declarer_etiquettes(CLI::App& app, int& code_de_sortie);
