#pragma once

#include <filesystem>
#include <optional>

/// The application directory, absolute: `demande` if given, else the environment variable
/// TAVOLMEX_DOSSIER, else the executable's directory if it can be written, else ~/Tavolmex. It need
/// not exist.
std::filesystem::path dossier_application(const std::optional<std::filesystem::path>& demande);

/// Makes the application directory the process's current directory; creates it if it is missing.
/// @throws ErreurFichier
void entrer_dans_dossier(const std::filesystem::path& dossier);
