#pragma once

#include "base/erreurs.h"
#include "base/nombre_lu.h"
#include "base/nombres.h"
#include "base/texte.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

// The line syntax that all configuration files share: "#" starts a comment, fields are separated by
// commas, the first one is the key. Nothing here copies a line or allocates.

/// The text before the first "#".
inline std::string_view sans_commentaire(std::string_view ligne) {
    return ligne.substr(0, ligne.find('#'));
}

/// Hands every line that counts, without its comment, to `lire`. Stops at the first exception.
/// @param NoLigne  grows by one for every line, counted or not, before the line is looked at: after
///                 an exception it is the number of the faulty line
/// @param compte   tells whether a line counts; the others are skipped
/// @throws Debordement beyond 32767 lines, and whatever `lire` throws
template <typename Lire>
void pour_chaque_ligne(std::string_view texte, Entier16& NoLigne, Lire lire,
                       bool (*compte)(std::string_view) = contient_capitale_ou_chiffre) {
    Lignes lignes(texte);
    while (const auto ligne = lignes.suivante()) {
        NoLigne = NoLigne + 1;
        const std::string_view utile = sans_commentaire(*ligne);
        if (compte(utile))
            lire(utile);
    }
}

/// A line's key, trimmed and upper-cased. A key longer than any known one reads as "".
class Cle {
public:
    explicit Cle(std::string_view texte);
    std::string_view vue() const { return {octets_.data(), longueur_}; }

private:
    std::array<char, 16> octets_; // only the first longueur_ bytes are written
    std::size_t longueur_ = 0;
};

/// Walks over the fields of one line, from the key on.
class Champs {
public:
    explicit Champs(std::string_view ligne) : ligne_(ligne) {}

    /// The text up to the next comma, nothing when there is none.
    std::optional<std::string_view> eventuel() {
        const std::size_t virgule = ligne_.find(',', debut_);
        if (virgule == std::string_view::npos)
            return std::nullopt;
        const std::string_view champ = ligne_.substr(debut_, virgule - debut_);
        debut_ = virgule + 1;
        return champ;
    }
    /// The text up to the next comma. @throws ErreurLecture when there is none
    std::string_view suivant() {
        const auto champ = eventuel();
        if (!champ)
            throw sans_virgule();
        return *champ;
    }
    ErreurLecture sans_virgule() const;
    /// Everything after the last comma passed.
    std::string_view reste() const { return ligne_.substr(debut_); }
    /// Position of the last comma passed, the line's first character being 0; -1 before the first.
    std::ptrdiff_t virgule() const { return static_cast<std::ptrdiff_t>(debut_) - 1; }

    Cle cle() { return Cle(suivant()); }
    Entier16 entier() {
        if (const auto petit = petit_entier())
            return *petit;
        return lire_entier16(suivant());
    }
    Entier16 dernier_entier() const { return lire_entier16(reste()); }
    /// The number up to the next comma, if it is what numbers nearly always are; else nothing, and
    /// the field is still to be read.
    std::optional<int> petit_entier() {
        int valeur = 0;
        const char* const fin = ligne_.data() + ligne_.size();
        const char* const c = ::petit_entier(ligne_.data() + debut_, fin, valeur);
        if (c == nullptr || c == fin || *c != ',')
            return std::nullopt;
        debut_ = static_cast<std::size_t>(c - ligne_.data()) + 1;
        return valeur;
    }

private:
    std::string_view ligne_;
    std::size_t debut_ = 0;
};

/// A reader met a key that it does not know.
ErreurLecture cle_inconnue(std::string_view cle);
/// @throws ErreurLecture likewise
[[noreturn]] void refuser_cle(std::string_view cle);
