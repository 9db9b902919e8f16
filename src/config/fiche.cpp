#include "config/fiche.h"

#include "base/erreurs.h"
#include "base/texte.h"

#include <algorithm>
#include <utility>

Fiche exiger(FicheLue lue) {
    if (!lue.refus.empty())
        throw ErreurLecture(lue.refus);
    return std::move(lue.fiche);
}

std::optional<Fiche> eventuelle(FicheLue lue) {
    if (!lue.refus.empty())
        return std::nullopt;
    return std::move(lue.fiche);
}

bool en_16_bits(const Fiche& f) {
    return std::all_of(f.v.begin(), f.v.end(), [](float x) { return x >= -32768 && x <= 32767; });
}

std::string ligne_de(const Fiche& f, std::size_t champs) {
    std::string ligne = f.cle;
    if (f.cle == "M") {
        ligne.append(",").append(f.texte);
        std::replace(ligne.begin(), ligne.end(), '\n', ',');
    }
    for (std::size_t i = 0; i < champs; ++i)
        ligne.append(i == 0 ? " , " : ", ").append(texte_simple(f.v[i]).vue());
    return ligne;
}
