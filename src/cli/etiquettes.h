#pragma once

#include <CLI/CLI.hpp>

/// The verb "etiquettes": lists the labels of a PICBASIC file, or prints the body of one. Exit code
/// 1 when the file cannot be read or holds no such label.
void declarer_etiquettes(CLI::App& app, int& code_de_sortie);
