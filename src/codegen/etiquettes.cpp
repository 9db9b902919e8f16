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

} // namespace

std::vector<Etiquette> lister_etiquettes(const Programme& programme) {
    std::vector<Etiquette> etiquettes;
    LignesProgramme lignes = programme.lignes();
    while (const auto ligne = lignes.suivante()) {
        if (ligne->texte.ends_with(':'))
            etiquettes.push_back({majuscules(ligne->texte), ligne->numero});
    }
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
    const std::string exact = majuscules(nom);
    const std::string_view nu = nom_nu(exact);
    std::optional<std::size_t> trouvee;
    for (std::size_t i = 0; i < etiquettes.size(); ++i) {
        if (etiquettes[i].texte == exact)
            return i;
        if (!trouvee && nom_nu(etiquettes[i].texte) == nu)
            trouvee = i;
    }
    return trouvee;
}
