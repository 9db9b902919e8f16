#include "record/liste.h"

#include "record/actions_console.h"

namespace {

std::string valeurs(const Etape& etape, const ActionConsole& action) {
    const auto nombre = [](Entier16 n) { return " " + std::to_string(n); };
    switch (action.parametres) {
    case Parametres::aucun:
        return {};
    case Parametres::longueur:
        if (action.code == Code::pause)
            return " " + texte_duree(etape.p1);
        return nombre(etape.p1) + " cm";
    case Parametres::angle:
        return nombre(etape.p1) + "°";
    case Parametres::rayon_et_angle:
        return nombre(etape.p1) + "° rayon" + nombre(etape.p2) + " cm";
    }
    return {};
}

} // namespace

std::string texte_duree(std::int32_t centiemes) {
    const std::int32_t absolu = centiemes < 0 ? -centiemes : centiemes;
    const std::string fraction = std::to_string(100 + absolu % 100).substr(1);
    return (centiemes < 0 ? "-" : "") + std::to_string(absolu / 100) + "," + fraction + " s";
}

LigneListe ligne_de_liste(const Etape& etape) {
    const ActionConsole* const action = action_de_nom(etape.nom);
    const std::string texte =
        action == nullptr ? etape.nom : std::string(action->legende) + valeurs(etape, *action);
    return {std::to_string(etape.numero),
            (etape.recommence ? "(le trajet recommence) " : "") + texte +
                (etape.sans_code ? " (absente du code généré)" : ""),
            texte_duree(etape.fin - etape.debut), texte_duree(etape.fin), etape.sans_code};
}
