#pragma once

#include <CLI/CLI.hpp>

/// The verb "piloter": the remote-control console without a window. Commands come from standard
/// input, one a line; each is played to its end and recorded. The exit code is 2 after a command
/// that is not understood, else as for the other verbs.
void declarer_piloter(CLI::App& app, int& code_de_sortie);
