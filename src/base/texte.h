#pragma once

#include "base/nombres.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

// Text inside the program is UTF-8; bytes become UTF-8 once, when a file is read.

/// Carriage return and line feed: ends every line that the program writes.
inline constexpr std::string_view RetourLigne = "\r\n";

enum class Encodage { utf8, windows1252 };

/// True when every sequence of bytes is a character; the empty text is.
bool est_utf8(std::string_view octets);

/// UTF-8 when the bytes are valid UTF-8, else Windows-1252.
Encodage encodage_de(std::string_view octets);

/// The bytes of a text file as UTF-8: a UTF-8 byte-order mark is dropped, bytes that are not valid
/// UTF-8 are read as Windows-1252 (its five unassigned bytes become U+FFFD).
std::string en_utf8(std::string octets);
std::string utf8_de_windows1252(std::string_view octets);

/// UTF-8 to the bytes of `encodage`; a character that Windows-1252 lacks becomes "?".
std::string encoder(std::string_view texte, Encodage encodage);

/// Upper and lower case of ASCII and of the accented letters of French and its neighbours
/// (Latin-1, œ, ÿ): "Défaut" is "DÉFAUT".
std::string majuscules(std::string_view texte);
std::string minuscules(std::string_view texte);
/// majuscules in place: the length in bytes never changes.
void mettre_en_majuscules(std::span<char> texte);

/// Without leading and trailing blanks; a TAB counts as a blank.
inline std::string_view rogner(std::string_view texte) {
    const auto est_blanc = [](char c) { return c == ' ' || c == '\t'; };
    while (!texte.empty() && est_blanc(texte.front()))
        texte.remove_prefix(1);
    while (!texte.empty() && est_blanc(texte.back()))
        texte.remove_suffix(1);
    return texte;
}

/// True if the text holds an ASCII capital letter or a digit: the pattern "*[A-Z0-9]*".
bool contient_capitale_ou_chiffre(std::string_view texte);

/// Bytes of the first `n` characters of a UTF-8 text.
std::string_view premiers_caracteres(std::string_view texte, std::size_t n);

/// Walks over a text line by line without copying; CR LF, LF and CR each end a line. A text that
/// ends with a line end has no further empty line.
class Lignes {
public:
    explicit Lignes(std::string_view texte);

    /// The next line without its end, or nothing after the last one.
    std::optional<std::string_view> suivante() {
        if (debut_ >= texte_.size())
            return std::nullopt;
        if (cr_seul_)
            return suivante_avec_cr();
        const std::size_t fin = std::min(texte_.find('\n', debut_), texte_.size());
        std::string_view ligne = texte_.substr(debut_, fin - debut_);
        debut_ = fin + 1;
        if (ligne.ends_with('\r'))
            ligne.remove_suffix(1);
        return ligne;
    }

private:
    std::string_view suivante_avec_cr();

    std::string_view texte_;
    std::size_t debut_ = 0;
    bool cr_seul_ = false; ///< some CR is not followed by LF; else lines end at LF alone
};

/// Blanks, sign, digits, optional decimal part with ".", optional exponent, blanks; rounded to the
/// nearest 16-bit integer, halves to even.
/// @throws ErreurConversion for anything else, out of range included
Entier16 lire_entier16(std::string_view texte);

/// The same as a single. @throws ErreurConversion also when no single holds it
float lire_simple(std::string_view texte);

/// A short text in a fixed buffer: writing a number allocates nothing.
class TexteCourt {
public:
    operator std::string_view() const { return {octets_.data(), longueur_}; }
    std::string_view vue() const { return *this; }
    void ajouter(std::string_view texte);
    void ajouter(char c) { ajouter(std::string_view(&c, 1)); }
    void vider() { longueur_ = 0; }

private:
    std::array<char, 384> octets_{};
    std::size_t longueur_ = 0;
};

/// Plain decimal.
TexteCourt texte_entier(std::int64_t valeur);

/// The shortest decimal that reads back to the same single: "." as separator, never an exponent,
/// minus zero as "0".
TexteCourt texte_simple(float valeur);

/// The shortest-looking decimal of a double with up to 15 significant digits, no trailing zeros,
/// never an exponent, minus zero as "0": 44.6998331800279.
TexteCourt texte_double15(double valeur);

/// The patterns "0" and "00": a whole number of at least one or two digits, halves rounded away
/// from zero.
TexteCourt format_0(double valeur);
TexteCourt format_00(double valeur);

/// Ten characters, left-justified and padded with blanks: the name of an action.
class Nom10 {
public:
    constexpr Nom10() { std::fill_n(octets_.begin(), longueur, ' '); }
    /// Cut after the tenth character.
    constexpr Nom10(std::string_view nom) : Nom10() {
        std::copy_n(nom.begin(), std::min(nom.size(), longueur), octets_.begin());
    }
    constexpr Nom10(const char* nom) : Nom10(std::string_view(nom)) {}

    /// The same with the ASCII letters as capitals.
    static Nom10 en_capitales(std::string_view nom);

    std::string_view vue() const { return {octets_.data(), longueur}; }
    std::string_view sans_blancs() const { return rogner(vue()); }
    constexpr bool operator==(const Nom10& autre) const {
        if (std::is_constant_evaluated())
            return octets_ == autre.octets_;
        // Two machine words: the interpreter compares names at every step of every robot.
        return std::memcmp(octets_.data(), autre.octets_.data(), sizeof octets_) == 0;
    }

private:
    static constexpr std::size_t longueur = 10;
    alignas(8) std::array<char, 16> octets_{}; ///< zero beyond the tenth character
};
