#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

class Sim1;

/// What the command line asks of the start.
struct Demarrage {
    std::optional<std::filesystem::path> dossier; ///< application directory
    std::string projet{};            ///< in place of the settings' own; empty: none is asked for
    std::filesystem::path fichier{}; ///< to be opened as if it were dropped
    bool demarrer = false;           ///< the match
};

/// The main window's start-up as the command line wants it.
/// @throws ErreurExecution when there is no such project
void demarrer(Sim1& sim, const Demarrage& demarrage);

/// Opens the windows and runs the program until it ends.
/// @param prete    called with the main window after the start-up, before the first event
/// @returns the exit code
/// @throws ErreurExecution when there is no such project
int executer_application(int& argc, char** argv, const Demarrage& demarrage,
                         const std::function<void(Sim1&)>& prete = {});
