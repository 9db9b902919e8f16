#pragma once

#include "cli/simulation.h"

#include <CLI/CLI.hpp>

/// Options that several verbs share.
void ajouter_dossier(CLI::App& verbe, ChoixDeLigne& choix);
void ajouter_projet(CLI::App& verbe, ChoixDeLigne& choix);
void ajouter_horizontale(CLI::App& verbe, ChoixDeLigne& choix);

/// A whole number in a range; the help shows the option's own name for it.
CLI::Validator entier_entre(int minimum, int maximum);
/// One of these two words.
CLI::Validator oui_ou_non();
