#include "base/visible.h"

namespace {

// The number of a character of two or three bytes; longer ones hold nothing to hide.
unsigned point_de_code(std::string_view sequence) {
    const auto bits = [&](std::size_t i) {
        return static_cast<unsigned char>(sequence[i]) & 0x3FU;
    };
    if (sequence.size() == 2)
        return ((static_cast<unsigned char>(sequence[0]) & 0x1FU) << 6U) | bits(1);
    if (sequence.size() == 3)
        return ((static_cast<unsigned char>(sequence[0]) & 0x0FU) << 12U) | (bits(1) << 6U) |
               bits(2);
    return 0;
}

bool est_trompeur(unsigned c) {
    const bool commande = c >= 0x80 && c <= 0x9F;
    const bool separateur = c == 0x2028 || c == 0x2029;
    const bool sens = c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
                      (c >= 0x2066 && c <= 0x2069);
    return commande || separateur || sens;
}

std::string en_hexadecimal(unsigned c, int chiffres) {
    std::string texte;
    for (int i = chiffres - 1; i >= 0; --i)
        texte += "0123456789ABCDEF"[(c >> (4U * static_cast<unsigned>(i))) & 0xFU];
    return texte;
}

} // namespace

std::size_t longueur_sequence(std::string_view s) {
    const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
    const auto suite = [&](std::size_t i) { return i < s.size() && (octet(i) & 0xC0U) == 0x80U; };
    const unsigned c = octet(0);
    if (c < 0x80)
        return 1;
    if (c >= 0xC2 && c <= 0xDF)
        return suite(1) ? 2 : 0;
    if (c >= 0xE0 && c <= 0xEF) {
        if (!suite(1) || !suite(2))
            return 0;
        // No overlong form, no surrogate.
        const bool mauvais = (c == 0xE0 && octet(1) < 0xA0) || (c == 0xED && octet(1) > 0x9F);
        return mauvais ? 0 : 3;
    }
    if (c >= 0xF0 && c <= 0xF4) {
        if (!suite(1) || !suite(2) || !suite(3))
            return 0;
        const bool mauvais = (c == 0xF0 && octet(1) < 0x90) || (c == 0xF4 && octet(1) > 0x8F);
        return mauvais ? 0 : 4;
    }
    return 0;
}

std::string visible(std::string_view texte, std::string_view gardes) {
    std::string resultat;
    resultat.reserve(texte.size());
    while (!texte.empty()) {
        const auto c = static_cast<unsigned char>(texte.front());
        const std::size_t longueur = longueur_sequence(texte);
        const bool muet = longueur == 0 || ((c < 0x20 || c == 0x7F) &&
                                            gardes.find(texte.front()) == std::string_view::npos);
        const std::string_view sequence = texte.substr(0, longueur == 0 ? 1 : longueur);
        if (const unsigned point = point_de_code(sequence); est_trompeur(point))
            resultat += "\\u" + en_hexadecimal(point, 4);
        else if (muet)
            resultat += "\\x" + en_hexadecimal(c, 2);
        else
            resultat += sequence;
        texte.remove_prefix(sequence.size());
    }
    return resultat;
}

std::string abrege(std::string_view texte) {
    constexpr std::size_t maximum = 80;
    if (texte.size() <= maximum)
        return std::string(texte);
    std::size_t fin = maximum;
    while (fin > 0 && (static_cast<unsigned char>(texte[fin]) & 0xC0U) == 0x80U)
        --fin;
    return std::string(texte.substr(0, fin)) + "…";
}
