#include "base/difference.h"

#include "base/texte.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

using Textes = std::vector<std::string_view>;

// Above so many pairs of lines the table of common lengths would cost too much.
constexpr std::size_t maximum_de_paires = 4'000'000;

Textes lignes_de(std::string_view texte) {
    Textes textes;
    Lignes lignes(texte);
    while (const auto ligne = lignes.suivante())
        textes.push_back(*ligne);
    return textes;
}

// The lines debut..fin_avant of one text and debut..fin_apres of the other: what their common start
// and end leave.
struct Milieu {
    std::size_t debut = 0, fin_avant = 0, fin_apres = 0;
};

Milieu milieu_de(const Textes& avant, const Textes& apres) {
    Milieu m{0, avant.size(), apres.size()};
    while (m.debut < std::min(avant.size(), apres.size()) && avant[m.debut] == apres[m.debut])
        ++m.debut;
    while (m.fin_avant > m.debut && m.fin_apres > m.debut &&
           avant[m.fin_avant - 1] == apres[m.fin_apres - 1]) {
        --m.fin_avant;
        --m.fin_apres;
    }
    return m;
}

// communes(i, j): length of the longest common subsequence of the lines from i and from j on.
class Communes {
public:
    Communes(const Textes& avant, const Textes& apres, const Milieu& m)
        : m_(m),
          largeur_(m.fin_apres - m.debut + 1),
          longueurs_((m.fin_avant - m.debut + 1) * largeur_) {
        for (std::size_t i = m.fin_avant; i-- > m.debut;) {
            for (std::size_t j = m.fin_apres; j-- > m.debut;)
                place(i, j) = avant[i] == apres[j] ? (*this)(i + 1, j + 1) + 1
                                                   : std::max((*this)(i + 1, j), (*this)(i, j + 1));
        }
    }
    std::uint32_t operator()(std::size_t i, std::size_t j) const {
        return longueurs_[(i - m_.debut) * largeur_ + (j - m_.debut)];
    }

private:
    std::uint32_t& place(std::size_t i, std::size_t j) {
        return longueurs_[(i - m_.debut) * largeur_ + (j - m_.debut)];
    }

    Milieu m_;
    std::size_t largeur_;
    std::vector<std::uint32_t> longueurs_;
};

void comparer_milieu(const Textes& avant, const Textes& apres, const Milieu& m,
                     std::vector<LigneComparee>& lignes) {
    std::size_t i = m.debut;
    std::size_t j = m.debut;
    if ((m.fin_avant - i + 1) * (m.fin_apres - j + 1) <= maximum_de_paires) {
        const Communes communes(avant, apres, m);
        while (i < m.fin_avant && j < m.fin_apres) {
            if (avant[i] == apres[j]) {
                lignes.push_back({' ', avant[i++]});
                ++j;
            } else if (communes(i + 1, j) >= communes(i, j + 1)) {
                lignes.push_back({'-', avant[i++]});
            } else {
                lignes.push_back({'+', apres[j++]});
            }
        }
    }
    while (i < m.fin_avant)
        lignes.push_back({'-', avant[i++]});
    while (j < m.fin_apres)
        lignes.push_back({'+', apres[j++]});
}

} // namespace

std::vector<LigneComparee> comparer_lignes(std::string_view avant, std::string_view apres) {
    const Textes a = lignes_de(avant);
    const Textes b = lignes_de(apres);
    const Milieu m = milieu_de(a, b);
    std::vector<LigneComparee> lignes;
    lignes.reserve(std::max(a.size(), b.size()));
    for (std::size_t i = 0; i < m.debut; ++i)
        lignes.push_back({' ', a[i]});
    comparer_milieu(a, b, m, lignes);
    for (std::size_t i = m.fin_avant; i < a.size(); ++i)
        lignes.push_back({' ', a[i]});
    return lignes;
}
