#pragma once

#include "base/erreurs.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Largest configuration or program file that is read whole; a larger one is refused at once.
inline constexpr std::size_t taille_maximale = std::size_t{32} << 20;

/// The whole content of a regular file, as bytes. @throws ErreurFichier when it cannot be opened
/// or read, is no regular file (directory, FIFO, device) or is larger than `maximum`
std::string lire_octets(const std::filesystem::path& chemin, std::size_t maximum = taille_maximale);
/// The same for a path as the system writes it: taking it apart costs a third of the reading.
std::string lire_octets_natif(const char* chemin, std::size_t maximum = taille_maximale);
/// The first `maximum` bytes, or all that there are. @throws ErreurFichier likewise
std::string lire_debut(const std::filesystem::path& chemin, std::size_t maximum);

/// Replaces (or creates) a file as a whole: written beside, flushed to the disk, renamed. Whatever
/// happens, the file is either the old or the new one, and nothing is left beside it (what a killed
/// program left there is removed at the next replacement); a symbolic link stays one; an existing
/// file keeps its permissions. A write-protected file, a directory or a
/// device is refused.
/// @throws ErreurFichier
void remplacer_fichier(const std::filesystem::path& chemin, std::string_view octets);

/// `dossier`/`nom` if it exists; else the entry of `dossier` whose name differs from it in upper
/// and lower case only, the first in alphabetical order; else `dossier`/`nom` all the same.
std::filesystem::path trouver_fichier(const std::filesystem::path& dossier, std::string_view nom);

/// What the name of a version kept is longer than the file's, at most.
inline constexpr std::size_t octets_de_version = 40;

/// Keeps the present version of a file before it is replaced: copies it to
/// `dossier`/<name>.<date>_<time>.<folder>.<n>, where <folder> tells files of the same name in
/// different folders apart and n is one above the highest there; deletes all but the ten newest of
/// that file. Does nothing when the file does not exist. @returns the copy's path (empty if none)
/// @throws ErreurFichier
std::filesystem::path sauvegarder_version(const std::filesystem::path& chemin,
                                          const std::filesystem::path& dossier);
/// The same for content that is in no file (yet): `octets` becomes the newest version of `chemin`.
std::filesystem::path garder_version(const std::filesystem::path& chemin, std::string_view octets,
                                     const std::filesystem::path& dossier);
/// The versions of `chemin` that `dossier` keeps, newest first.
std::vector<std::filesystem::path> versions_gardees(const std::filesystem::path& chemin,
                                                    const std::filesystem::path& dossier);

/// What the name of such a copy says: "<name>.<date>_<time>.<folder>.<n>".
struct NomDeVersion {
    std::string fichier; ///< name of the file that was copied
    std::string date;    ///< "2026-03-01_14h05m09"
    std::string dossier; ///< stands for the file's folder
    long numero = 0;
};

/// Nothing for a name of another form.
std::optional<NomDeVersion> lire_nom_de_version(std::string_view nom);

/// What stands for the folder of a file in the names of its copies.
std::string cle_du_dossier(const std::filesystem::path& chemin);

/// Puts an older version of a file back: the present one is kept first, as sauvegarder_version()
/// does, then replaced as a whole. @returns the copy's path (empty if there was no file)
/// @throws ErreurFichier, the file as it was
std::filesystem::path restaurer_version(const std::filesystem::path& version,
                                        const std::filesystem::path& chemin,
                                        const std::filesystem::path& dossier);
