#include "base/texte.h"
#include "base/visible.h"

#include <algorithm>
#include <array>

namespace {

// What Windows-1252 has from 80 on where it differs from Unicode; 0: unassigned.
constexpr std::array<char16_t, 32> particuliers{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
constexpr char32_t premier_particulier = 0x80;
constexpr char32_t suivant_particulier = premier_particulier + particuliers.size();
constexpr char32_t inconnu = 0xFFFD;

char32_t caractere_de(char octet) {
    const auto c = static_cast<unsigned char>(octet);
    if (c < premier_particulier || c >= suivant_particulier)
        return c;
    const char16_t particulier = particuliers.at(c - premier_particulier);
    return particulier != 0 ? particulier : inconnu;
}

// Below U+10000, where all of them lie.
void ajouter_utf8(std::string& texte, char32_t c) {
    const auto suite = [](char32_t bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (c < 0x80) {
        texte += static_cast<char>(c);
    } else if (c < 0x800) {
        texte += static_cast<char>(0xC0U | (c >> 6U));
        texte += suite(c);
    } else {
        texte += static_cast<char>(0xE0U | (c >> 12U));
        texte += suite(c >> 6U);
        texte += suite(c);
    }
}

// The character of a valid sequence of one to three bytes.
char32_t lire_utf8(std::string_view sequence) {
    const std::array<unsigned, 4> masques{0, 0x7F, 0x1F, 0x0F};
    char32_t c = static_cast<unsigned char>(sequence[0]) & masques.at(sequence.size());
    for (const char suite : sequence.substr(1))
        c = c << 6U | (static_cast<unsigned char>(suite) & 0x3FU);
    return c;
}

char octet_de(std::string_view sequence) {
    constexpr char aucun = '?';
    if (sequence.size() > 3)
        return aucun;
    const char32_t c = lire_utf8(sequence);
    if (c < premier_particulier || (c >= suivant_particulier && c < 0x100))
        return static_cast<char>(c);
    const auto* const place = std::ranges::find(particuliers, c);
    return place != particuliers.end()
               ? static_cast<char>(premier_particulier +
                                   static_cast<char32_t>(place - particuliers.begin()))
               : aucun;
}

} // namespace

std::string utf8_de_windows1252(std::string_view octets) {
    std::string texte;
    texte.reserve(octets.size() * 2);
    for (const char octet : octets)
        ajouter_utf8(texte, caractere_de(octet));
    return texte;
}

std::string encoder(std::string_view texte, Encodage encodage) {
    if (encodage == Encodage::utf8)
        return std::string(texte);
    std::string octets;
    while (!texte.empty()) {
        const std::size_t longueur = longueur_sequence(texte);
        octets += longueur == 0 ? '?' : octet_de(texte.substr(0, longueur));
        texte.remove_prefix(std::max<std::size_t>(1, longueur));
    }
    return octets;
}
