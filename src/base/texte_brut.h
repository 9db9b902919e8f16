#pragma once

#include "base/marque.h"
#include "base/texte.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// One line of a text file: where its bytes lie and what they say.
struct LigneBrute {
    std::size_t debut = 0;  ///< first byte
    std::size_t fin = 0;    ///< one past the last byte, line end excluded
    std::size_t suite = 0;  ///< first byte of the next line
    std::size_t numero = 0; ///< 1 for the first line
    std::string_view texte; ///< UTF-8, line end excluded
};

/// Walks over a text file line by line without copying; CR LF, LF and CR each end a line.
class LignesBrutes {
public:
    /// @param position  of the first line's first byte
    /// @param texte     the same lines in UTF-8, when that is not what the bytes are
    LignesBrutes(std::string_view octets, std::size_t position,
                 std::optional<std::string_view> texte);

    /// The next line, or nothing after the last one.
    std::optional<LigneBrute> suivante();

private:
    std::string_view octets_;
    Lignes lignes_;
    std::optional<Lignes> textes_;
    std::size_t numero_ = 0;
};

/// A text file, kept as the bytes that were read: a byte-order mark and lines, each with its own
/// end; its text is UTF-8 when the bytes are valid UTF-8, else Windows-1252. Lines refer to it: it
/// neither moves nor changes.
class TexteBrut {
public:
    explicit TexteBrut(std::string octets);
    TexteBrut(const TexteBrut&) = delete;
    TexteBrut& operator=(const TexteBrut&) = delete;

    std::string_view octets() const { return octets_; }
    /// The byte-order mark, or nothing.
    std::string_view marque() const { return octets().substr(0, marque_); }
    Encodage encodage() const { return encodage_; }
    LignesBrutes lignes() const;

    /// The bytes of a line, and those of its end.
    std::string_view octets(const LigneBrute& ligne) const {
        return octets().substr(ligne.debut, ligne.fin - ligne.debut);
    }
    std::string_view fin(const LigneBrute& ligne) const {
        return octets().substr(ligne.fin, ligne.suite - ligne.fin);
    }

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
