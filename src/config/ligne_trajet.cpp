#include "config/ligne_trajet.h"

#include "config/ligne.h"
#include "sim/actions.h"

#include <algorithm>

// Unlike in the other files, the line is upper-cased as a whole first: any ASCII letter counts.
bool compte_dans_un_trajet(std::string_view ligne) {
    return std::any_of(ligne.begin(), ligne.end(), [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    });
}

// Not trimmed. All known codes are ASCII, so bytes will do.
Nom10 code_de_trajet(std::string_view ligne) {
    return Nom10::en_capitales(ligne.substr(0, ligne.find(',')));
}

std::optional<int> parametres_de_trajet(const Nom10& code) {
    const actions::Action* const action = actions::trouver(code);
    if (action == nullptr || action->mot.empty())
        return std::nullopt;
    return action->nb_parametres();
}

LigneTrajet lire_ligne_trajet(std::string_view ligne) {
    LigneTrajet lue;
    // A line without a comma is its own code and its own first field.
    const std::size_t virgule = ligne.find(',');
    lue.code = Nom10::en_capitales(ligne.substr(0, virgule));
    const auto parametres = parametres_de_trajet(lue.code);
    if (!parametres)
        refuser_cle(lue.code.vue());
    lue.parametres = *parametres;
    Champs champs(ligne.substr(virgule == std::string_view::npos ? 0 : virgule + 1));
    for (int i = 0; i < lue.parametres; ++i) {
        const bool dernier = i + 1 == lue.parametres;
        lue.v[static_cast<std::size_t>(i)] = dernier ? champs.dernier_entier() : champs.entier();
    }
    return lue;
}
