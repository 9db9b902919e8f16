#include "edition/actions_trajet.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace {

float nombre_usuel(actions::Unite unite) {
    switch (unite) {
    case actions::Unite::cm:
        return 20;
    case actions::Unite::degres:
        return 90;
    case actions::Unite::centiemes:
        return 100;
    default:
        return 0;
    }
}

Choix a_partir_de(std::size_t premier, std::size_t nombre) {
    Choix choix(nombre);
    std::iota(choix.begin(), choix.end(), premier);
    return choix;
}

} // namespace

Fiche action_usuelle(const actions::Action& action) {
    constexpr std::array<float, 3> depart{100, 30, 0};
    Fiche f{std::string(action.nom.sans_blancs()), {}, ""};
    for (std::size_t i = 0; i < action.parametres.size(); ++i)
        f.v[i] = action.genre == actions::Genre::depart ? depart.at(i)
                                                        : nombre_usuel(action.parametres.at(i));
    return f;
}

Fiche action_changee(const Fiche& avant, const actions::Action& en) {
    const actions::Action* const de = actions::trouver(Nom10(avant.cle));
    Fiche f = action_usuelle(en);
    for (std::size_t i = 0; de != nullptr && i < en.parametres.size(); ++i)
        if (de->parametres.at(i) == en.parametres.at(i))
            f.v[i] = avant.v[i];
    return f;
}

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
