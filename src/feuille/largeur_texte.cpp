#include "feuille/largeur_texte.h"

#include <algorithm>

namespace {

// Parts of the font's size, by what DejaVu Sans has.
double largeur_lettre(unsigned char c) {
    constexpr std::string_view etroites = "ijl.,:;'|! ()[]/-";
    constexpr std::string_view moyennes = "ftr";
    constexpr std::string_view larges = "mwMW%@";
    const auto dans = [c](std::string_view lettres) {
        return lettres.find(static_cast<char>(c)) != std::string_view::npos;
    };
    if (dans(etroites))
        return 0.37;
    if (dans(moyennes))
        return 0.41;
    if (dans(larges))
        return 0.98;
    if (c >= 'A' && c <= 'Z')
        return 0.7;
    return c >= 0xE0 ? 0.95 : 0.635; // arrows, dashes: three bytes
}

bool suite_de_lettre(unsigned char c) {
    return (c & 0xC0U) == 0x80U;
}

} // namespace

double largeur_texte(std::string_view texte, double corps, bool gras) {
    constexpr double supplement_du_gras = 1.1;
    double total = 0;
    for (const char c : texte) {
        const auto octet = static_cast<unsigned char>(c);
        if (!suite_de_lettre(octet))
            total += largeur_lettre(octet);
    }
    return total * corps * mm_par_point * (gras ? supplement_du_gras : 1);
}

std::vector<std::string> couper(std::string_view texte, double corps, double largeur) {
    std::vector<std::string> lignes;
    std::string ligne;
    while (!texte.empty()) {
        const std::size_t fin = std::min(texte.find(' '), texte.size());
        const std::string_view mot = texte.substr(0, fin);
        texte.remove_prefix(std::min(fin + 1, texte.size()));
        const std::string avec = ligne.empty() ? std::string(mot) : (ligne + ' ').append(mot);
        if (ligne.empty() || largeur_texte(avec, corps) <= largeur) {
            ligne = avec;
        } else {
            lignes.push_back(ligne);
            ligne = mot;
        }
    }
    if (!ligne.empty())
        lignes.push_back(ligne);
    return lignes;
}
