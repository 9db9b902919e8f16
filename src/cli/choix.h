#pragma once

#include "cli/simulation.h"

#include <CLI/CLI.hpp>

/// Options that several verbs share.
void ajouter_dossier(CLI::App& verbe, ChoixDeLigne& choix);
void ajouter_projet(CLI::App& verbe, ChoixDeLigne& choix);
void ajouter_horizontale(CLI::App& verbe, ChoixDeLigne& choix);
