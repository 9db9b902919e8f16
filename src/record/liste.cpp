#include "record/liste.h"

#include "sim/actions.h"

namespace {

std::string valeurs(const Etape& etape, const actions::Action& action) {
    const auto valeur = [](Entier16 n, actions::Unite unite) {
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
        return std::string();
    };
    const bool arc = action.genre == actions::Genre::arc;
    return valeur(etape.p1, action.parametres[0]) + (arc ? " rayon" : "") +
           valeur(etape.p2, action.parametres[1]);
}

} // namespace

std::string texte_duree(std::int32_t centiemes) {
    const std::int32_t absolu = centiemes < 0 ? -centiemes : centiemes;
    const std::string fraction = std::to_string(100 + absolu % 100).substr(1);
    return (centiemes < 0 ? "-" : "") + std::to_string(absolu / 100) + "," + fraction + " s";
}

LigneListe ligne_de_liste(const Etape& etape) {
    const actions::Action* const action = actions::trouver_legende(etape.nom);
    const std::string texte =
        action == nullptr ? etape.nom : std::string(action->legende) + valeurs(etape, *action);
    return {std::to_string(etape.numero),
            (etape.recommence ? "(le trajet recommence) " : "") + texte +
                (etape.sans_code ? " (absente du code généré)" : ""),
            texte_duree(etape.fin - etape.debut), texte_duree(etape.fin), etape.sans_code};
}
