#pragma once

#include "base/texte_brut.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A hand-written program, byte for byte.
using Programme = TexteBrut;
using LigneProgramme = LigneBrute;
using LignesProgramme = LignesBrutes;

/// One change of a program: the bytes debut..fin give way to `texte` (UTF-8, line ends included).
struct Modification {
    std::size_t debut = 0;
    std::size_t fin = 0;
    std::string texte;
};

/// The program's bytes with the changes made (in ascending order); all others stay as they are.
std::string appliquer(const Programme& programme, const std::vector<Modification>& modifications);

/// True if the text holds `motif` (ASCII, lower case) in whatever case.
bool contient_sans_casse(std::string_view texte, std::string_view motif);

/// Stops at a line. @throws ErreurExecution naming the file, the line number, the text, the reason
[[noreturn]] void refuser_ligne(const std::filesystem::path& fichier, std::size_t numero,
                                std::string_view texte, std::string_view raison);
