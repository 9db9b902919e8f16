#pragma once

#include "base/erreurs.h"
#include "base/nombres.h"

#include <optional>
#include <string_view>

/// What lire_entier16 and lire_simple give, without exceptions: nothing for what they refuse, and
/// what they then say.
std::optional<Entier16> entier16_ou_rien(std::string_view texte);
std::optional<float> simple_ou_rien(std::string_view texte);

/// What nearly every field is, for lire_entier16 and whoever walks over a line: blanks, "-"
/// perhaps, one to four digits, blanks.
/// @returns where they end; null when the text does not begin so
inline const char* petit_entier(const char* c, const char* fin, int& valeur) {
    const auto passer_les_blancs = [&] {
        while (c != fin && (*c == ' ' || *c == '\t'))
            ++c;
    };
    passer_les_blancs();
    const bool negatif = c != fin && *c == '-';
    if (negatif)
        ++c;
    const char* const chiffres = c;
    valeur = 0;
    for (; c != fin && *c >= '0' && *c <= '9' && c - chiffres < 5; ++c)
        valeur = 10 * valeur + (*c - '0');
    if (c == chiffres || c - chiffres > 4)
        return nullptr;
    if (negatif)
        valeur = -valeur;
    passer_les_blancs();
    return c;
}

ErreurConversion pas_un_entier16(std::string_view texte);
ErreurConversion pas_un_simple(std::string_view texte);
