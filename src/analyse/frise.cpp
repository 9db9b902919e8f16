#include "analyse/frise.h"

#include "analyse/phrases.h"
#include "sim/textes_actions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <tuple>

namespace {

bool repond(const ActionJouee& action, const std::string& voulu) {
    int numero = 0;
    const char* const fin = voulu.data() + voulu.size();
    if (const auto lu = std::from_chars(voulu.data(), fin, numero); lu.ptr == fin)
        return action.numero == numero;
    const std::string noms = std::string(action.action.sans_blancs()) + "\n" + legende(action) +
                             "\n" + std::string(nom_du_genre(genre_de(action)));
    return majuscules(noms).find(voulu) != std::string::npos;
}

// The lines of a path that is in no file yet are not known.
std::optional<std::int32_t> debut_a_la_ligne(const Analyse& a, int robot, int ligne) {
    const auto& lignes = a.lignes(robot);
    const auto trouvee = std::ranges::find(lignes, ligne);
    const auto rang = static_cast<std::size_t>(trouvee - lignes.begin());
    if (trouvee == lignes.end() || rang >= a.match.actions(robot).size())
        return std::nullopt;
    return a.match.actions(robot)[rang].debut;
}

} // namespace

std::int32_t etendue(const MatchCalcule& m) {
    return std::max<std::int32_t>(m.duree, duree_du_match);
}

const ActionJouee* action_au(const MatchCalcule& m, int robot, std::int32_t temps) {
    const auto& jouees = m.actions(robot);
    const auto apres = std::ranges::upper_bound(jouees, temps, {}, &ActionJouee::debut);
    if (apres == jouees.begin())
        return nullptr;
    const ActionJouee& action = *std::prev(apres);
    return temps <= fin_montree(m, action) ? &action : nullptr;
}

std::int32_t limite_suivante(const MatchCalcule& m, int robot, std::int32_t temps) {
    const auto& jouees = m.actions(robot);
    const auto apres = std::ranges::upper_bound(jouees, temps, {}, &ActionJouee::debut);
    if (apres != jouees.end())
        return apres->debut;
    const std::int32_t fin = jouees.empty() ? 0 : fin_montree(m, jouees.back());
    return temps < fin ? fin : m.duree;
}

std::int32_t limite_precedente(const MatchCalcule& m, int robot, std::int32_t temps) {
    const auto& jouees = m.actions(robot);
    const auto ici = std::ranges::lower_bound(jouees, temps, {}, &ActionJouee::debut);
    return ici == jouees.begin() ? 0 : std::prev(ici)->debut;
}

std::string_view nom_du_genre(actions::Genre genre) {
    switch (genre) {
    case actions::Genre::pause:
        return "pause";
    case actions::Genre::droit:
        return "ligne droite";
    case actions::Genre::rotation:
        return "rotation sur place";
    case actions::Genre::arc:
        return "virage en arc";
    case actions::Genre::balise:
        return "recherche de balise";
    case actions::Genre::depart:
    case actions::Genre::fin:
        break;
    }
    return "";
}

actions::Genre genre_de(const ActionJouee& action) {
    const actions::Action* const connue = actions::trouver(action.action);
    return connue == nullptr ? actions::Genre::fin : connue->genre;
}

std::string legende(const ActionJouee& action) {
    const actions::Action* const connue = actions::trouver(action.action);
    return std::to_string(action.numero) + " " +
           std::string(connue == nullptr ? action.action.sans_blancs() : connue->legende);
}

std::string description(const Etat& e, int robot, const ActionJouee& action) {
    const actions::Action* const connue = actions::trouver(action.action);
    return "action " + std::to_string(action.numero) + " sur " +
           std::to_string(actions_du_plan(e, robot)) + " : " +
           (connue == nullptr ? std::string(action.action.sans_blancs())
                              : texte_action(*connue, e.TrajParam1(robot, action.numero),
                                             e.TrajParam2(robot, action.numero)));
}

std::string description(const Etat& e, const MatchCalcule& m, int robot, std::int32_t temps) {
    const ActionJouee* const action = action_au(m, robot, temps);
    return action == nullptr ? "à l'arrêt" : description(e, robot, *action);
}

std::string texte_pose(const PoseTick& pose) {
    return "x = " + dixiemes(pose.x) + " cm, y = " + dixiemes(pose.y) +
           " cm, cap = " + dixiemes(cap_ramene(pose.cap)) + "°";
}

std::optional<ActionTrouvee> chercher_action(const MatchCalcule& m, std::string_view texte,
                                             int robot, std::int32_t temps) {
    const std::string voulu = majuscules(rogner(texte));
    if (voulu.empty())
        return std::nullopt;
    const auto place = [](const ActionTrouvee& t) { return std::tuple(t.action->debut, t.robot); };
    std::optional<ActionTrouvee> premiere;
    std::optional<ActionTrouvee> suivante;
    for (int i = 1; i <= m.NbRobot; ++i) {
        for (const ActionJouee& action : m.actions(i)) {
            const ActionTrouvee ici{i, &action};
            const bool apres = place(ici) > std::tuple(temps, robot);
            auto& meilleure = apres ? suivante : premiere;
            if ((!meilleure || place(ici) < place(*meilleure)) && repond(action, voulu))
                meilleure = ici;
        }
    }
    return suivante ? suivante : premiere;
}

std::optional<std::int32_t> instant_de(const Analyse& a, const Constat& constat) {
    if (constat.temps || !constat.robot || !constat.ligne)
        return constat.temps;
    return debut_a_la_ligne(a, *constat.robot, *constat.ligne);
}
