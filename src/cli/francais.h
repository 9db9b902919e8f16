#pragma once

#include <CLI/CLI.hpp>

#include <string>

/// French headings in the help of a command and of its verbs, declared before.
void parler_francais(CLI::App& app);

/// What the argument parser complains of, in French.
std::string en_francais(const CLI::ParseError& erreur);
