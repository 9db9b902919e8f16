#include "record/liste.h"

#include "sim/textes_actions.h"

LigneListe ligne_de_liste(const Etape& etape) {
    const actions::Action* const action = actions::trouver_legende(etape.nom);
    const std::string texte =
        action == nullptr ? etape.nom : texte_action(*action, etape.p1, etape.p2);
    return {std::to_string(etape.numero),
            (etape.recommence ? "(le trajet recommence) " : "") + texte +
                (etape.sans_code ? " (absente du code généré)" : ""),
            texte_duree(etape.fin - etape.debut), texte_duree(etape.fin), etape.sans_code};
}
