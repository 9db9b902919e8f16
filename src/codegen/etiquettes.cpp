#include "codegen/etiquettes.h"

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
