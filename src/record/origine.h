#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The project named by the header of a generation input file
/// ("# Fichier <project> PourGenerer10.ini"); nothing for any other file.
std::optional<std::string> projet_de_l_entree(std::string_view octets);
/// The same for a file on the disk; nothing when it cannot be read.
std::optional<std::string> projet_du_fichier(const std::filesystem::path& fichier);

/// What is odd about where a generation input comes from, as French sentences: it is another kind
/// of file, its moves are no longer (or not only) those of a trajectory of its project. Advice
/// only.
/// @param fichier  its project's trajectories are looked for beside it
std::vector<std::string> avertissements_d_origine(const std::filesystem::path& fichier);
