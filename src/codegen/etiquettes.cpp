#include "codegen/etiquettes.h"

#include <algorithm>
#include <unordered_map>

namespace {

std::string_view nom_nu(std::string_view etiquette) {
    std::string_view nom = rogner(etiquette);
    if (nom.ends_with(':'))
        nom.remove_suffix(1);
    return rogner(nom);
}

// How well labels answer to a name: the first that is equal, else the first whose bare name is.
class Recherche {
public:
    explicit Recherche(std::string_view nom) : exact_(majuscules(nom)), nu_(nom_nu(exact_)) {}

    bool close() const { return exacte_; }
    /// @returns true when this label is the best so far
    bool retient(std::string_view etiquette) {
        if (exacte_ || (etiquette != exact_ && (trouvee_ || nom_nu(etiquette) != nu_)))
            return false;
        exacte_ = etiquette == exact_;
        trouvee_ = true;
        return true;
    }

private:
    std::string exact_;
    std::string_view nu_; // of exact_
    bool trouvee_ = false;
    bool exacte_ = false;
};

} // namespace

void pour_chaque_etiquette(const Programme& programme,
                           const std::function<void(const Etiquette&)>& action) {
    LignesProgramme lignes = programme.lignes();
    while (const auto ligne = lignes.suivante()) {
        if (ligne->texte.ends_with(':'))
            action({majuscules(ligne->texte), ligne->numero});
    }
}

std::vector<Etiquette> lister_etiquettes(const Programme& programme) {
    std::vector<Etiquette> etiquettes;
    pour_chaque_etiquette(programme, [&](const Etiquette& e) { etiquettes.push_back(e); });
    return etiquettes;
}

std::string corps_de(const Programme& programme, std::string_view etiquette) {
    std::string corps;
    LignesProgramme lignes = programme.lignes();
    while (auto ligne = lignes.suivante()) {
        if (ligne->texte.size() != etiquette.size() || majuscules(ligne->texte) != etiquette)
            continue;
        corps.clear();
        // A second such label inside the body is part of it.
        while (ligne) {
            corps.append(RetourLigne).append(ligne->texte);
            if (contient_sans_casse(ligne->texte, "return"))
                break;
            ligne = lignes.suivante();
        }
    }
    return corps;
}

std::vector<std::size_t> chercher_dans_les_corps(const Programme& programme,
                                                 const std::vector<Etiquette>& etiquettes,
                                                 std::string_view texte) {
    // Once over the program, however many labels it has: for each line the last line up to it that
    // holds the text, and where the bodies end.
    const std::string motif = majuscules(texte);
    std::vector<std::size_t> dernier_trouve{0};
    std::vector<std::size_t> fins;
    LignesProgramme lignes = programme.lignes();
    while (const auto ligne = lignes.suivante()) {
        const bool trouve = majuscules(ligne->texte).find(motif) != std::string::npos;
        dernier_trouve.push_back(trouve ? ligne->numero : dernier_trouve.back());
        if (contient_sans_casse(ligne->texte, "return"))
            fins.push_back(ligne->numero);
    }
    std::unordered_map<std::string_view, std::size_t> derniere; // of equal labels the last counts
    for (const Etiquette& e : etiquettes)
        derniere[e.texte] = e.ligne;
    std::vector<std::size_t> trouvees;
    for (std::size_t i = 0; i < etiquettes.size(); ++i) {
        const std::size_t debut = derniere[etiquettes[i].texte];
        const auto fin = std::lower_bound(fins.begin(), fins.end(), debut);
        if (dernier_trouve.at(fin != fins.end() ? *fin : dernier_trouve.size() - 1) >= debut)
            trouvees.push_back(i);
    }
    return trouvees;
}

std::optional<std::size_t> chercher_etiquette(const std::vector<Etiquette>& etiquettes,
                                              std::string_view nom) {
    Recherche recherche(nom);
    std::optional<std::size_t> trouvee;
    for (std::size_t i = 0; i < etiquettes.size() && !recherche.close(); ++i) {
        if (recherche.retient(etiquettes[i].texte))
            trouvee = i;
    }
    return trouvee;
}

std::optional<Etiquette> chercher_etiquette(const Programme& programme, std::string_view nom) {
    Recherche recherche(nom);
    std::optional<Etiquette> trouvee;
    pour_chaque_etiquette(programme, [&](const Etiquette& e) {
        if (recherche.retient(e.texte))
            trouvee = e;
    });
    return trouvee;
}
