#include "analyse/analyse.h"

#include "analyse/releve.h"
#include "sim/actions.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

Bilan bilan_de(const Etat& e, const MatchCalcule& m, int i) {
    Bilan b{i, actions_du_plan(e, i), std::nullopt, m.poses(i).back()};
    const auto& jouees = m.actions(i);
    if (b.actions_du_plan > 0 && static_cast<int>(jouees.size()) >= b.actions_du_plan) {
        const ActionJouee& derniere = jouees[static_cast<std::size_t>(b.actions_du_plan - 1)];
        if (derniere.finie())
            b.fin = derniere.fin;
    }
    return b;
}

void ranger(std::vector<Constat>& constats) {
    const auto cle = [](const Constat& c) {
        constexpr int fin = std::numeric_limits<int>::max();
        return std::tuple(c.temps.value_or(fin), c.robot.value_or(fin), c.genre,
                          c.autre.value_or(fin), c.ligne.value_or(fin));
    };
    std::ranges::stable_sort(constats, {}, cle);
}

} // namespace

std::optional<int> Enquete::ligne(int robot, int numero) const {
    const auto& lignes = provenance.lignes(robot);
    if (numero < 1 || static_cast<std::size_t>(numero) > lignes.size())
        return std::nullopt;
    return lignes[static_cast<std::size_t>(numero - 1)];
}

int Enquete::numero_au(int robot, std::int32_t temps) const {
    const auto& jouees = m.actions(robot);
    const auto apres = std::ranges::upper_bound(jouees, temps, {}, &ActionJouee::debut);
    const int numero = apres == jouees.begin() ? 0 : int{std::prev(apres)->numero};
    const bool passee =
        numero == 0 ? temps > 0 : std::prev(apres)->finie() && temps > std::prev(apres)->fin;
    return passee && numero < e.TrajNbActions(robot) ? numero + 1 : numero;
}

std::string Enquete::l_action(int robot, int numero) const {
    const Nom10& action = e.TrajAction(robot, numero);
    return "l'action " + std::to_string(numero) + " (" + std::string(action.sans_blancs()) + ")";
}

Constat& Enquete::a_l_action(Genre genre, int robot, int numero) const {
    return constats.emplace_back(Constat{.genre = genre,
                                         .robot = robot,
                                         .fichier = provenance.fichier(robot),
                                         .ligne = ligne(robot, numero)});
}

Constat& Enquete::au_moment(Genre genre, int robot, std::int32_t temps) const {
    if (robot == 0)
        return constats.emplace_back(Constat{.genre = genre, .temps = temps});
    Constat& c = a_l_action(genre, robot, numero_au(robot, temps));
    c.temps = temps;
    if (temps <= m.duree) {
        const PoseTick& pose = m.pose(robot, temps);
        c.lieu = Point{pose.x, pose.y};
    }
    return c;
}

Analyse analyser(const Etat& etat, const Provenance& provenance, std::vector<Constat> connus) {
    const auto copie = std::make_unique<Etat>(etat);
    Analyse a{.projet = etat.NomProjet,
              .match = calculer_match(*copie),
              .lignes = provenance.lignes,
              .constats = std::move(connus)};
    copie->PasTemps = etat.PasTemps == 1 ? 5 : 1;
    const MatchCalcule autre = calculer_match(*copie);
    const Releve releve = relever(etat, a.match);
    const Enquete q{etat, a.match, provenance, a.constats};
    for (int i = 1; i <= a.match.NbRobot; ++i) {
        a.robots.push_back(bilan_de(etat, a.match, i));
        constater_plan(q, a.robots.back());
    }
    constater_arret(q);
    constater_terrain(q, releve);
    constater_damier(q);
    constater_code(q);
    constater_pas(q, releve, autre, relever(etat, autre));
    ranger(a.constats);
    return a;
}

void mesurer_ecarts(const Etat& etat, Analyse& a) {
    a.ecarts = ecarts_de(etat, a.match);
}
