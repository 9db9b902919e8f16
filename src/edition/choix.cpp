#include "edition/choix.h"

#include "config/document.h"

#include <algorithm>
#include <iterator>

bool choisi(const Choix& choix, std::size_t i) {
    return std::binary_search(choix.begin(), choix.end(), i);
}

Choix apres_clic(const Choix& choix, std::optional<std::size_t> sous, bool en_plus) {
    if (!sous)
        return en_plus ? choix : Choix{};
    Choix apres = en_plus ? choix : Choix{};
    const auto place = std::lower_bound(apres.begin(), apres.end(), *sous);
    if (place != apres.end() && *place == *sous)
        apres.erase(place);
    else
        apres.insert(place, *sous);
    return apres;
}

Choix apres_cadre(const Choix& choix, const Choix& contenus, bool en_plus) {
    Choix apres;
    std::set_union(contenus.begin(), contenus.end(), choix.begin(),
                   en_plus ? choix.end() : choix.begin(), std::back_inserter(apres));
    return apres;
}

void joindre(Choix& choix, std::size_t nouveau) {
    const auto place = std::lower_bound(choix.begin(), choix.end(), nouveau);
    for (auto i = place; i != choix.end(); ++i)
        ++*i;
    choix.insert(place, nouveau);
}

void retirer(Document& document, const Choix& choix) {
    for (auto i = choix.rbegin(); i != choix.rend(); ++i)
        document.retirer(*i);
}
