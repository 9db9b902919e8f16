#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// A subroutine to write: its name, and the generation input (bytes) that it is made of.
struct FonctionAEcrire {
    std::string nom;
    std::string entree;
};

/// A program with several subroutines written into it, worked out in memory.
struct Ensemble {
    std::string octets;                      ///< of the program afterwards
    std::string apercu;                      ///< what goes and comes, as texte_apercu() says it
    std::vector<std::string> remplacees;     ///< names of the subroutines that stood there before
    std::vector<std::string> avertissements; ///< French sentences, each once
};

/// Writes the subroutines one after the other as a generation into the program itself does; one of
/// the same name is replaced.
/// @param programme  the file's path, for messages  @param octets  what it holds
/// @throws ErreurExecution for a name that is none or stands twice, and for an input that cannot be
///         translated to its end: half a program is none
Ensemble ecrire_fonctions(const std::filesystem::path& programme, std::string_view octets,
                          std::span<const FonctionAEcrire> fonctions);
