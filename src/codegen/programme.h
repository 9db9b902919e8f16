#pragma once

#include "base/texte.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One line of a program: where its bytes lie and what they say.
struct LigneProgramme {
    std::size_t debut = 0;  ///< first byte
    std::size_t fin = 0;    ///< one past the last byte, line end excluded
    std::size_t suite = 0;  ///< first byte of the next line
    std::size_t numero = 0; ///< 1 for the first line
    std::string_view texte; ///< UTF-8, line end excluded
};

/// Walks over a program line by line without copying; CR LF, LF and CR each end a line.
class LignesProgramme {
public:
    /// @param texte  the same lines in UTF-8, the byte-order mark left out of both
    LignesProgramme(std::string_view octets, std::size_t position, std::string_view texte)
        : octets_(octets), texte_(texte), position_(position) {}

    /// The next line, or nothing after the last one.
    std::optional<LigneProgramme> suivante();

private:
    std::string_view octets_;
    std::string_view texte_;
    std::size_t position_;
    std::size_t position_texte_ = 0;
    std::size_t numero_ = 0;
};

/// A hand-written program, kept as the bytes that were read; its text is UTF-8 when the bytes are
/// valid UTF-8, else Windows-1252. Lines refer to it: it neither moves nor changes.
class Programme {
public:
    explicit Programme(std::string octets);
    Programme(const Programme&) = delete;
    Programme& operator=(const Programme&) = delete;

    std::string_view octets() const { return octets_; }
    Encodage encodage() const { return encodage_; }
    LignesProgramme lignes() const;

private:
    std::string octets_;
    Encodage encodage_;
    std::size_t marque_; ///< length of the byte-order mark
    std::string texte_;  ///< only when it differs from the bytes
};

/// The line end that most lines have, CR LF before LF before CR when equal; nothing when no line
/// has any.
std::optional<std::string_view> fin_majoritaire(std::string_view octets);

/// A line end that the bytes' last line lacks: empty when they are empty or end with one.
std::string_view fin_manquante(std::string_view octets, std::string_view fin);

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
