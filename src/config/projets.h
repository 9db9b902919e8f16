#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The projects of a directory Configuration: what stands before " Table.ini" in the names of its
/// table files, whatever their case, without outer blanks; in alphabetical order. Names that are
/// not UTF-8 are left out. Empty when the directory is empty or cannot be read.
std::vector<std::string> lister_projets(const std::filesystem::path& dossier_configuration);
