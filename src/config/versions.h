#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A dated copy of a file, as sauvegarder_version() keeps it.
struct Version {
    std::filesystem::path copie;
    std::string fichier;            ///< name of the file that was copied
    std::string sorte;              ///< in French: "Trajet du robot 1"
    std::string date;               ///< "2026-03-01 14:05:09"
    std::uintmax_t taille = 0;      ///< bytes
    std::filesystem::path original; ///< the file it would replace; empty: its folder is unknown
};

/// What a file that has copies is for a project, in French; empty when it is another project's.
/// PICBASIC programs, whatever they are called, belong to every project.
std::string sorte_de_fichier(std::string_view nom, std::string_view NomProjet);

/// The copies of a project's files and of PICBASIC programs in `dossier_configuration`/Sauvegardes,
/// the newest first. A copy does not say its file's folder: those of Configuration and of
/// `dossiers` are recognised.
std::vector<Version> lister_versions(const std::filesystem::path& dossier_configuration,
                                     std::string_view NomProjet,
                                     std::vector<std::filesystem::path> dossiers);
