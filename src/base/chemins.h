#pragma once

#include <filesystem>

/// True when both paths mean one file, however they are written; a file that is not there yet has
/// the place that its name gives it.
bool meme_fichier(const std::filesystem::path& a, const std::filesystem::path& b);
