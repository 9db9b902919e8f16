#include "edition/difference.h"

#include <algorithm>
#include <limits>

namespace {

using Sorte = ActionComparee::Sorte;

// What a row costs: a change is less than taking one out and putting one in.
constexpr int cout_seul = 2;
constexpr int cout_change = 3;

/// Least cost of aligning what follows record i of one trajectory and record j of the other.
class Alignement {
public:
    Alignement(const DocumentTrajet& avant, const DocumentTrajet& apres)
        : avant_(avant),
          apres_(apres),
          largeur_(apres.nombre() + 1),
          couts_((avant.nombre() + 1) * largeur_, 0) {
        for (std::size_t i = avant.nombre() + 1; i-- > 0;)
            for (std::size_t j = largeur_; j-- > 0;)
                calculer(i, j);
    }

    std::vector<ActionComparee> lignes() const {
        std::vector<ActionComparee> lignes;
        std::size_t i = 0;
        std::size_t j = 0;
        while (i < avant_.nombre() || j < apres_.nombre()) {
            const Sorte sorte = meilleure(i, j);
            ActionComparee& ligne = lignes.emplace_back();
            ligne.sorte = sorte;
            if (sorte != Sorte::ajoutee)
                ligne.avant = i++;
            if (sorte != Sorte::retiree)
                ligne.apres = j++;
        }
        return lignes;
    }

private:
    static constexpr int impossible = std::numeric_limits<int>::max();

    int cout(std::size_t i, std::size_t j) const { return couts_[i * largeur_ + j]; }

    int cout_ensemble(std::size_t i, std::size_t j) const {
        if (i == avant_.nombre() || j == apres_.nombre() || avant_[i].cle != apres_[j].cle)
            return impossible;
        return cout(i + 1, j + 1) + (avant_[i] == apres_[j] ? 0 : cout_change);
    }
    int cout_retire(std::size_t i, std::size_t j) const {
        return i == avant_.nombre() ? impossible : cout(i + 1, j) + cout_seul;
    }
    int cout_ajoute(std::size_t i, std::size_t j) const {
        return j == apres_.nombre() ? impossible : cout(i, j + 1) + cout_seul;
    }

    void calculer(std::size_t i, std::size_t j) {
        const int moindre = std::min({cout_ensemble(i, j), cout_retire(i, j), cout_ajoute(i, j)});
        couts_[i * largeur_ + j] = moindre == impossible ? 0 : moindre; // both are at their end
    }

    Sorte meilleure(std::size_t i, std::size_t j) const {
        const int moindre = cout(i, j);
        if (cout_ensemble(i, j) == moindre)
            return avant_[i] == apres_[j] ? Sorte::egale : Sorte::changee;
        return cout_retire(i, j) == moindre ? Sorte::retiree : Sorte::ajoutee;
    }

    const DocumentTrajet& avant_;
    const DocumentTrajet& apres_;
    std::size_t largeur_;
    std::vector<int> couts_;
};

} // namespace

std::vector<ActionComparee> comparer_trajets(const DocumentTrajet& avant,
                                             const DocumentTrajet& apres) {
    return Alignement(avant, apres).lignes();
}
