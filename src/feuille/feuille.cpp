#include "feuille/feuille.h"

#include "analyse/phrases.h"
#include "analyse/verdict.h"
#include "draw/table.h"
#include "sim/actions.h"
#include "sim/textes_actions.h"

#include <algorithm>
#include <utility>

namespace {

/// "12,34", for a column that says seconds.
std::string temps_seul(std::int32_t centiemes) {
    const std::string texte = secondes(centiemes);
    return texte.substr(0, texte.size() - 2);
}

std::string pose(const PoseTick& p) {
    return dixiemes(p.x) + " ; " + dixiemes(p.y) + " ; " + dixiemes(cap_ramene(p.cap)) + "°";
}

std::string texte_de(const Etat& e, int robot, int numero) {
    const Nom10& nom = e.TrajAction(robot, numero);
    if (const actions::Action* action = actions::trouver(nom))
        return texte_action(*action, e.TrajParam1(robot, numero), e.TrajParam2(robot, numero));
    return std::string(nom.sans_blancs());
}

ActionDeFeuille jouee(const Etat& e, int robot, const ActionJouee& a) {
    return {std::to_string(a.numero), texte_de(e, robot, a.numero),
            temps_seul(a.debut) + " → " + (a.finie() ? temps_seul(a.fin) : "…"),
            a.finie() ? pose(a.apres) : ""};
}

PlanDeFeuille plan_de(const Etat& e, const Analyse& a, const Bilan& bilan) {
    PlanDeFeuille plan;
    plan.titre = "Robot " + std::to_string(bilan.robot) + " : ";
    plan.titre +=
        bilan.actions_du_plan == 0 ? "aucune action"
        : bilan.fin
            ? "fin à " + secondes(*bilan.fin) + ", marge " + secondes(duree_du_match - *bilan.fin)
            : "pas fini à " + secondes(std::min<std::int32_t>(a.match.duree, duree_du_match));
    int derniere = 0;
    for (const ActionJouee& action : a.match.actions(bilan.robot)) {
        derniere = action.numero;
        if (derniere <= bilan.actions_du_plan)
            plan.actions.push_back(jouee(e, bilan.robot, action));
    }
    for (int n = derniere + 1; n <= bilan.actions_du_plan; ++n)
        plan.actions.push_back(
            {std::to_string(n), texte_de(e, bilan.robot, n), "jamais atteinte", ""});
    return plan;
}

std::string verdict_de(const Analyse& a) {
    const auto constats = static_cast<int>(a.constats.size());
    return fin_des_trajets(a) + " ; " +
           (constats == 0 ? "aucun constat" : compte(constats, "constat"));
}

} // namespace

Feuille feuille_du_match(const Etat& e, const Analyse& a, std::vector<FichierDeFeuille> fichiers,
                         std::string date) {
    Feuille f{.projet = a.projet,
              .verdict = verdict_de(a),
              .date = std::move(date),
              .placements = {},
              .plans = {},
              .constats = {},
              .fichiers = std::move(fichiers),
              .largeur = e.XMax + 2.0 * marge_table,
              .hauteur = e.YMax + 2.0 * marge_table};
    for (const Bilan& bilan : a.robots) {
        f.placements.push_back(placement_de(e, bilan.robot));
        f.plans.push_back(plan_de(e, a, bilan));
    }
    for (const Constat& constat : a.constats)
        f.constats.push_back(en_ligne(constat));
    return f;
}
