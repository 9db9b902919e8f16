#pragma once

#include <QString>

#include <filesystem>
#include <string>

/// Where the user's own settings keep something about a project, which is its folder and its name.
/// @param groupe   what it is: "constats_masques"
/// @param dossier  the project's Configuration
QString cle_de_projet(const QString& groupe, const std::filesystem::path& dossier,
                      const std::string& projet);
