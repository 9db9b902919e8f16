#include "edition/actions_trajet.h"

#include <algorithm>
#include <numeric>

namespace {

Choix a_partir_de(std::size_t premier, std::size_t nombre) {
    Choix choix(nombre);
    std::iota(choix.begin(), choix.end(), premier);
    return choix;
}

} // namespace

std::string copier(const DocumentTrajet& trajet, const Choix& choix) {
    std::string lignes;
    for (const std::size_t i : choix)
        lignes.append(en_utf8(trajet.texte_de(i))).append(RetourLigne);
    return lignes;
}

Choix coller(DocumentTrajet& trajet, std::size_t i, std::string_view lignes) {
    return a_partir_de(i, trajet.inserer_lignes(i, lignes));
}

Choix dupliquer(DocumentTrajet& trajet, const Choix& choix) {
    if (choix.empty())
        return {};
    return coller(trajet, choix.back() + 1, copier(trajet, choix));
}

Choix deplacer(DocumentTrajet& trajet, const Choix& choix, std::size_t devant) {
    // Each on its way passes none that is still to go.
    const auto milieu = std::lower_bound(choix.begin(), choix.end(), devant);
    std::size_t place = devant;
    for (auto i = milieu; i != choix.begin();)
        trajet.deplacer_vers(*--i, --place);
    const std::size_t premier = place;
    place = devant;
    for (auto i = milieu; i != choix.end(); ++i)
        trajet.deplacer_vers(*i, place++);
    return a_partir_de(premier, choix.size());
}
