#pragma once

#include <CLI/CLI.hpp>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

/// Gives the application directory for the value of --dossier (none: the usual choice).
using ChoisirDossier =
    std::function<std::filesystem::path(const std::optional<std::string>& dossier)>;

/// The verb "generer": generates a subroutine into a target as the generation window does. Sets the
/// exit code to 0 when the target was written, 1 when a check refuses; ErreurExecution comes out.
void declarer_generer(CLI::App& app, ChoisirDossier choisir_dossier, int& code_de_sortie);
