#include "analyse/phrases.h"
#include "analyse/releve.h"
#include "sim/actions.h"

#include <algorithm>
#include <cmath>

namespace {

/// Whether the robot's program, which keeps a value in one byte, cannot hold the action's.
bool hors_d_un_octet(const Trajectoires& t, int i, int k) {
    const actions::Action* const action = actions::trouver(t.TrajAction(i, k));
    const int nombre = action == nullptr ? 0 : action->nb_parametres();
    return (nombre > 0 && !actions::tient_dans_un_octet(t.TrajParam1(i, k))) ||
           (nombre > 1 && !actions::tient_dans_un_octet(t.TrajParam2(i, k)));
}

void constater_duree(const Enquete& q, const Bilan& b) {
    if (b.actions_du_plan == 0 || (b.fin && *b.fin <= duree_du_match))
        return;
    Constat& c = q.au_moment(Genre::duree, b.robot, std::min(duree_du_match, q.m.duree));
    if (q.m.arret)
        c.texte = "le trajet n'est pas joué jusqu'au bout : une erreur arrête le match avant. "
                  "Corrigez-la d'abord.";
    else if (b.fin)
        c.texte = "le trajet finit à " + secondes(*b.fin) + ", " +
                  secondes(*b.fin - duree_du_match) +
                  " après la fin du match. Gagnez ce temps sur une pause ou un détour.";
    else
        c.texte = "le trajet n'est pas fini à 90 s, pendant " +
                  q.l_action(b.robot, static_cast<int>(q.m.actions(b.robot).size())) +
                  " : le vrai robot serait arrêté là, le reste serait perdu. Raccourcissez les "
                  "pauses ou retirez des actions.";
}

void constater_inatteintes(const Enquete& q, const Bilan& b) {
    const int commencees = static_cast<int>(q.m.actions(b.robot).size());
    if (commencees >= b.actions_du_plan)
        return;
    Constat& c = q.a_l_action(Genre::inatteinte, b.robot, commencees + 1);
    c.texte = compte(b.actions_du_plan - commencees, "action") + " du trajet jamais " +
              (b.actions_du_plan - commencees > 1 ? "commencées" : "commencée") + ", à partir de " +
              q.l_action(b.robot, commencees + 1) +
              (q.m.arret ? " : le match s'arrête avant, sur une erreur. Corrigez-la d'abord."
                         : " : le vrai robot n'y arriverait pas non plus en 90 s. Retirez des "
                           "actions ou gagnez du temps avant elles.");
}

void constater_apres_fin(const Enquete& q, const Bilan& b) {
    int nombre = 0;
    int premiere = 0;
    for (int k = b.actions_du_plan + 1; k <= q.e.TrajNbActions(b.robot); ++k) {
        if (q.e.TrajAction(b.robot, k) == actions::FIN)
            continue;
        premiere = nombre == 0 ? k : premiere;
        ++nombre;
    }
    if (nombre == 0)
        return;
    Constat& c = q.a_l_action(Genre::apres_fin, b.robot, premiere);
    c.texte = compte(nombre, "action") + " après FIN, à partir de " +
              q.l_action(b.robot, premiere) +
              " : le robot s'arrête à FIN, la suite n'est jamais jouée. Déplacez FIN au bout du "
              "trajet ou supprimez ce qui le suit.";
}

void constater_valeurs(const Enquete& q, const Bilan& b) {
    int nombre = 0;
    int premiere = 0;
    for (int k = 1; k <= b.actions_du_plan; ++k) {
        if (!hors_d_un_octet(q.e, b.robot, k))
            continue;
        premiere = nombre == 0 ? k : premiere;
        ++nombre;
    }
    if (nombre == 0)
        return;
    Constat& c = q.a_l_action(Genre::valeur, b.robot, premiere);
    c.texte = compte(nombre, "action") + " avec une valeur hors de 0 à 255, à partir de " +
              q.l_action(b.robot, premiere) +
              " : le programme du robot garde chaque valeur dans un octet et ne peut pas la "
              "recevoir. Coupez chacune en plusieurs actions plus petites.";
}

void constater_balises(const Enquete& q, const Bilan& b) {
    constexpr double tour = 360;
    for (const ActionJouee& action : q.m.actions(b.robot)) {
        if (!actions::est(action.action, actions::Genre::balise))
            continue;
        const auto& poses = q.m.poses(b.robot);
        const std::size_t fin = action.finie() ? q.m.tick(action.fin) : q.m.nb_ticks() + 1;
        std::size_t tick = q.m.tick(action.debut);
        while (tick < fin && std::fabs(double{poses[tick].cap} - action.avant.cap) < tour)
            ++tick;
        if (tick >= fin)
            continue;
        Constat& c = q.au_moment(Genre::balise, b.robot, q.m.temps(tick));
        c.texte = "la recherche de balise de " + q.l_action(b.robot, action.numero) +
                  " tourne encore après un tour complet : le capteur ne s'aligne jamais sur la "
                  "balise (trop proche, par exemple) et le vrai robot tournerait sans fin. "
                  "Rapprochez le départ de la recherche du bon cap ou changez de place.";
    }
}

void constater_predictions(const Enquete& q, const Bilan& b) {
    if (!q.e.utiliDamier)
        return;
    const auto& jouees = q.m.actions(b.robot);
    const auto premiere = std::ranges::find(jouees, true, &ActionJouee::prediction_abandonnee);
    if (premiere == jouees.end())
        return;
    const auto nombre = std::ranges::count(jouees, true, &ActionJouee::prediction_abandonnee);
    Constat& c = q.au_moment(Genre::prediction, b.robot, premiere->debut);
    c.texte = compte(static_cast<int>(nombre), "prédiction") +
              " de carreaux sans résultat, à partir de " + q.l_action(b.robot, premiere->numero) +
              " : le compte affiché ne dit rien de ces mouvements. Ne réglez pas dessus le compte "
              "que le vrai robot doit lire.";
}

} // namespace

void constater_plan(const Enquete& q, const Bilan& bilan) {
    constater_duree(q, bilan);
    constater_inatteintes(q, bilan);
    constater_apres_fin(q, bilan);
    constater_valeurs(q, bilan);
    constater_balises(q, bilan);
    constater_predictions(q, bilan);
}

void constater_arret(const Enquete& q) {
    if (!q.m.arret)
        return;
    Constat& c = q.au_moment(Genre::arret, q.m.arret->robot, q.m.duree);
    if (q.m.arret->robot > 0)
        c.ligne = q.ligne(q.m.arret->robot, q.m.arret->numero);
    c.texte = "une erreur arrête le match, et le programme avec lui : " + q.m.arret->raison +
              ". Corrigez ce fichier avant tout.";
}

void constater_damier(const Enquete& q) {
    if (!q.e.utiliDamier || !q.e.TableHorizontale)
        return;
    q.constats.push_back({.genre = Genre::damier,
                          .texte = "le damier est compté sur une table tournée : il ne tourne pas "
                                   "avec elle et le compte n'est pas celui de la vraie table. "
                                   "Décochez « Table horizontale » pour compter."});
}
