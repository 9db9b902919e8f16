#pragma once

#include <filesystem>
#include <functional>
#include <optional>

class Sim1;

/// Opens the windows and runs the program until it ends.
/// @param dossier  application directory, if one is asked for
/// @param prete    called with the main window after the start-up, before the first event
/// @returns the exit code
int executer_application(int& argc, char** argv,
                         const std::optional<std::filesystem::path>& dossier,
                         const std::function<void(Sim1&)>& prete = {});
