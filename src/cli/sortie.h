#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// The place that a path on the command line means: relative to where the user stands, which must
/// be asked before the application directory becomes the current one. "-" and "" stay as they are.
std::filesystem::path place_demandee(const std::string& chemin);

/// Writes a result that the user asked for: "-" is standard output, a device or a pipe is written
/// to as it is, anything else is replaced as a whole. @throws ErreurFichier
void ecrire_resultat(const std::filesystem::path& chemin, std::string_view octets);
