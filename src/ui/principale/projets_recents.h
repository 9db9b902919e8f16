#pragma once

#include <filesystem>
#include <string>
#include <vector>

// The projects that were loaded last are kept in the user's own settings, for each directory of
// projects by itself.

/// The newest first, without those whose table is gone.
std::vector<std::string> projets_recents(const std::filesystem::path& configuration);
void retenir_projet(const std::filesystem::path& configuration, const std::string& projet);
