#include "codegen/apercu.h"

#include "base/fichiers.h"
#include "codegen/avertissements.h"
#include "codegen/composition.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace {

constexpr std::size_t lignes_de_contexte = 3;
constexpr std::size_t maximum_de_lignes = 20'000; // nobody reads more

// Builds the difference line by line; lines far from a change are left out.
class Difference {
public:
    void conserver(std::string_view texte) {
        LigneApercu ligne{SorteLigne::contexte, ++avant_, ++apres_, std::string(texte)};
        if (suite_ > 0) {
            --suite_;
            ajouter(std::move(ligne));
            return;
        }
        contexte_.push_back(std::move(ligne));
        if (contexte_.size() > lignes_de_contexte) {
            contexte_.pop_front();
            coupure_ = true;
        }
    }

    void changer(SorteLigne sorte, std::string_view texte) {
        montrer_contexte();
        const bool retiree = sorte == SorteLigne::retiree;
        ajouter({sorte, retiree ? ++avant_ : 0, retiree ? 0 : ++apres_, std::string(texte)});
        suite_ = lignes_de_contexte;
    }

    void changer_toutes(SorteLigne sorte, std::string_view texte) {
        Lignes lignes(texte);
        while (const auto ligne = lignes.suivante())
            changer(sorte, *ligne);
    }

    std::vector<LigneApercu> lignes() && {
        if (cachees_ > 0)
            lignes_.push_back(
                {SorteLigne::coupure, 0, 0, "… " + std::to_string(cachees_) + " autres lignes"});
        return std::move(lignes_);
    }

private:
    void montrer_contexte() {
        if (coupure_)
            ajouter({SorteLigne::coupure, 0, 0, "…"});
        coupure_ = false;
        for (LigneApercu& ligne : contexte_)
            ajouter(std::move(ligne));
        contexte_.clear();
    }

    void ajouter(LigneApercu ligne) {
        if (lignes_.size() < maximum_de_lignes)
            lignes_.push_back(std::move(ligne));
        else
            ++cachees_;
    }

    std::vector<LigneApercu> lignes_;
    std::deque<LigneApercu> contexte_; ///< unchanged lines that a change may still follow
    std::size_t suite_ = 0;            ///< unchanged lines to show after a change
    std::size_t avant_ = 0;
    std::size_t apres_ = 0;
    std::size_t cachees_ = 0;
    bool coupure_ = false;
};

void inserer(Difference& difference, const Modification& m) {
    // A line end in front only completes the program's last line.
    const std::size_t debut = m.texte.find_first_not_of("\r\n");
    if (debut != std::string::npos)
        difference.changer_toutes(SorteLigne::inseree, std::string_view(m.texte).substr(debut));
}

void comparer(Difference& difference, const Programme& depart,
              const std::vector<Modification>& modifications) {
    auto m = modifications.begin();
    LignesProgramme lignes = depart.lignes();
    while (const auto ligne = lignes.suivante()) {
        for (; m != modifications.end() && m->fin <= ligne->debut; ++m)
            inserer(difference, *m);
        if (m == modifications.end() || m->debut > ligne->debut) {
            difference.conserver(ligne->texte);
            continue;
        }
        difference.changer(SorteLigne::retiree, ligne->texte);
        if (ligne->suite >= m->fin)
            inserer(difference, *m++);
    }
    for (; m != modifications.end(); ++m)
        inserer(difference, *m);
}

char signe(SorteLigne sorte) {
    switch (sorte) {
    case SorteLigne::retiree:
        return '-';
    case SorteLigne::inseree:
    case SorteLigne::ajoutee:
        return '+';
    case SorteLigne::coupure:
        return '@';
    case SorteLigne::contexte:
        break;
    }
    return ' ';
}

} // namespace

std::string texte_apercu(const Apercu& apercu) {
    std::string texte;
    for (const LigneApercu& ligne : apercu.lignes)
        texte.append(1, signe(ligne.sorte)).append(" ").append(ligne.texte).append("\n");
    return texte;
}

Apercu preparer_apercu(const Demande& demande, const Programme& depart, std::string_view entree,
                       bool ecraser) {
    const Composition c =
        composer(demande, depart, entree, [ecraser](std::string_view) { return ecraser; });
    Difference difference;
    comparer(difference, depart, c.modifications());
    difference.changer_toutes(SorteLigne::ajoutee, c.ajout);
    return {std::move(difference).lignes(), avertissements(demande, depart, c, entree),
            !c.retrait.modifications.empty()};
}

Apercu preparer_apercu(const Demande& demande, bool ecraser) {
    const Programme depart(lire_octets(demande.depart));
    return preparer_apercu(demande, depart, lire_octets(demande.entree), ecraser);
}
