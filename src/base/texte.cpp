#include "base/texte.h"

#include "base/marque.h"
#include "base/visible.h"

#include <algorithm>
#include <bit>
#include <cstring>

// Bytes are read as machine words, the first byte the lowest.
static_assert(std::endian::native == std::endian::little);

namespace {

// Letters whose case differs beyond ASCII: U+00C0..U+00DE and U+00E0..U+00FE lie in the second
// byte after C3, less the signs × and ÷; Œ œ are C5 92, C5 93; Ÿ is C5 B8 and ÿ C3 BF.
void changer_casse(std::span<char> resultat, bool vers_majuscules) {
    for (std::size_t i = 0; i < resultat.size(); ++i) {
        const auto c = static_cast<unsigned char>(resultat[i]);
        if (vers_majuscules ? (c >= 'a' && c <= 'z') : (c >= 'A' && c <= 'Z')) {
            resultat[i] = static_cast<char>(c ^ 0x20U);
            continue;
        }
        if ((c != 0xC3 && c != 0xC5) || i + 1 >= resultat.size())
            continue;
        const auto d = static_cast<unsigned char>(resultat[i + 1]);
        unsigned char premier = c;
        unsigned char second = d;
        if (c == 0xC3 && vers_majuscules && d == 0xBF) {
            premier = 0xC5;
            second = 0xB8;
        } else if (c == 0xC3 && vers_majuscules && d >= 0xA0 && d != 0xB7) {
            second = static_cast<unsigned char>(d - 0x20);
        } else if (c == 0xC3 && !vers_majuscules && d >= 0x80 && d <= 0x9E && d != 0x97) {
            second = static_cast<unsigned char>(d + 0x20);
        } else if (c == 0xC5 && (d == 0x92 || d == 0x93)) {
            second = vers_majuscules ? 0x92 : 0x93;
        } else if (c == 0xC5 && d == 0xB8 && !vers_majuscules) {
            premier = 0xC3;
            second = 0xBF;
        }
        resultat[i] = static_cast<char>(premier);
        resultat[++i] = static_cast<char>(second);
    }
}

// Of nearly every text: eight or thirty-two bytes at its start that are ASCII, or 0.
std::size_t debut_ascii(std::string_view s) {
    std::array<std::uint64_t, 4> mots{};
    constexpr std::uint64_t hauts = 0x8080808080808080U;
    if (s.size() >= sizeof mots) {
        std::memcpy(mots.data(), s.data(), sizeof mots);
        if (((mots[0] | mots[1] | mots[2] | mots[3]) & hauts) == 0)
            return sizeof mots;
    }
    if (s.size() < sizeof mots[0])
        return 0;
    std::memcpy(mots.data(), s.data(), sizeof mots[0]);
    return (mots[0] & hauts) == 0 ? sizeof mots[0] : 0;
}

// Eight characters of a name as one machine word, blanks behind them: what is stored byte by byte
// cannot be read back as a word at once.
std::uint64_t mot(std::string_view s) {
    std::uint64_t resultat = 0x2020202020202020U;
    if (s.size() >= 4) { // the halves overlap
        std::uint32_t debut = 0;
        std::uint32_t fin = 0;
        std::memcpy(&debut, s.data(), sizeof debut);
        std::memcpy(&fin, s.data() + s.size() - sizeof fin, sizeof fin);
        const std::uint64_t suite = 8 * (s.size() - sizeof fin);
        if (s.size() == 8)
            resultat = 0;
        else
            resultat <<= 8 * s.size();
        return resultat | debut | std::uint64_t{fin} << suite;
    }
    for (std::size_t i = s.size(); i-- > 0;)
        resultat = resultat << 8U | static_cast<unsigned char>(s[i]);
    return resultat;
}

// Takes 0x20 off every byte from 'a' to 'z'.
std::uint64_t capitales(std::uint64_t m) {
    const std::uint64_t bas = m & 0x7F7F7F7F7F7F7F7FU;
    const std::uint64_t des_a = bas + 0x1F1F1F1F1F1F1F1FU;
    const std::uint64_t apres_z = bas + 0x0505050505050505U;
    return m - ((des_a & ~apres_z & ~m & 0x8080808080808080U) >> 2U);
}

constexpr std::uint64_t fin_du_nom = 0xFFFF; ///< a name's ninth and tenth character

} // namespace

bool est_utf8(std::string_view octets) {
    std::size_t i = 0;
    while (i < octets.size()) {
        if (const std::size_t n = debut_ascii(octets.substr(i))) {
            i += n;
            continue;
        }
        const std::size_t n = longueur_sequence(octets.substr(i));
        if (n == 0)
            return false;
        i += n;
    }
    return true;
}

Encodage encodage_de(std::string_view octets) {
    return est_utf8(octets) ? Encodage::utf8 : Encodage::windows1252;
}

std::string en_utf8(std::string octets) {
    if (octets.starts_with(marque_utf8))
        octets.erase(0, marque_utf8.size());
    if (est_utf8(octets))
        return octets;
    return utf8_de_windows1252(octets);
}

std::string majuscules(std::string_view texte) {
    std::string resultat(texte);
    changer_casse(resultat, true);
    return resultat;
}
std::string minuscules(std::string_view texte) {
    std::string resultat(texte);
    changer_casse(resultat, false);
    return resultat;
}
void mettre_en_majuscules(std::span<char> texte) {
    changer_casse(texte, true);
}

bool contient_capitale_ou_chiffre(std::string_view texte) {
    return std::any_of(texte.begin(), texte.end(),
                       [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); });
}

std::string_view premiers_caracteres(std::string_view texte, std::size_t n) {
    std::size_t i = 0;
    for (; i < texte.size(); ++i) {
        const bool debut_de_caractere = (static_cast<unsigned char>(texte[i]) & 0xC0U) != 0x80U;
        if (debut_de_caractere && n-- == 0)
            break;
    }
    return texte.substr(0, i);
}

Nom10 Nom10::en_capitales(std::string_view nom) {
    const std::array<std::uint64_t, 2> mots{
        capitales(mot(nom.substr(0, 8))),
        capitales(mot(nom.substr(std::min<std::size_t>(nom.size(), 8), 2))) & fin_du_nom};
    Nom10 resultat;
    resultat.octets_ = std::bit_cast<std::array<char, 16>>(mots);
    return resultat;
}

Lignes::Lignes(std::string_view texte) : texte_(texte) {
    // Without a branch and in bytes, so that the compiler compares many characters at a time.
    unsigned char seuls = texte.ends_with('\r') ? 1 : 0;
    const char* const c = texte.data();
    for (std::size_t i = 1; i < texte.size(); ++i) {
        const unsigned char est_cr = c[i - 1] == '\r' ? 1 : 0;
        const unsigned char sans_lf = c[i] != '\n' ? 1 : 0;
        seuls = static_cast<unsigned char>(seuls | (est_cr & sans_lf));
    }
    cr_seul_ = seuls != 0;
}

std::string_view Lignes::suivante_avec_cr() {
    const std::size_t fin = std::min(texte_.find_first_of(RetourLigne, debut_), texte_.size());
    const std::string_view ligne = texte_.substr(debut_, fin - debut_);
    debut_ = fin + (texte_.substr(fin).starts_with(RetourLigne) ? 2 : 1);
    return ligne;
}
