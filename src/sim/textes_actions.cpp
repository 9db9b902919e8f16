#include "sim/textes_actions.h"

namespace {

std::string valeur(Entier16 n, actions::Unite unite) {
    switch (unite) {
    case actions::Unite::aucune:
        break;
    case actions::Unite::cm:
        return " " + std::to_string(n) + " cm";
    case actions::Unite::degres:
        return " " + std::to_string(n) + "°";
    case actions::Unite::centiemes:
        return " " + texte_duree(n);
    }
    return "";
}

} // namespace

std::string texte_duree(std::int32_t centiemes) {
    const std::int32_t absolu = centiemes < 0 ? -centiemes : centiemes;
    const std::string fraction = std::to_string(100 + absolu % 100).substr(1);
    return (centiemes < 0 ? "-" : "") + std::to_string(absolu / 100) + "," + fraction + " s";
}

std::string texte_action(const actions::Action& action, Entier16 p1, Entier16 p2) {
    const std::string_view nom = action.legende.empty() ? action.mot : action.legende;
    return std::string(nom) + valeur(p1, action.parametres[0]) +
           (action.genre == actions::Genre::arc ? " rayon" : "") + valeur(p2, action.parametres[1]);
}
