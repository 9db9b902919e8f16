#include "analyse/verdict.h"

#include <nlohmann/json.hpp>

namespace {

using Json = nlohmann::ordered_json;

template <typename T>
Json ou_nul(const std::optional<T>& valeur) {
    return valeur ? Json(*valeur) : Json(nullptr);
}

Json action_en_json(const ActionJouee& action, std::optional<int> ligne) {
    Json j{{"numero", int{action.numero}},
           {"action", action.action.sans_blancs()},
           {"ligne", ou_nul(ligne)},
           {"debut", action.debut},
           {"fin", nullptr},
           {"x", nullptr},
           {"y", nullptr},
           {"cap", nullptr}};
    if (action.finie()) {
        j["fin"] = action.fin;
        j["x"] = double{action.apres.x};
        j["y"] = double{action.apres.y};
        j["cap"] = double{action.apres.cap};
    }
    return j;
}

Json robot_en_json(const Analyse& a, const Bilan& b) {
    Json actions = Json::array();
    const std::vector<int>& lignes = a.lignes(b.robot);
    for (const ActionJouee& action : a.match.actions(b.robot)) {
        const auto n = static_cast<std::size_t>(action.numero - 1);
        actions.push_back(
            action_en_json(action, n < lignes.size() ? std::optional(lignes[n]) : std::nullopt));
    }
    return {{"robot", b.robot},
            {"fin", ou_nul(b.fin)},
            {"marge", b.fin ? Json(duree_du_match - *b.fin) : Json(nullptr)},
            {"x", double{b.arrivee.x}},
            {"y", double{b.arrivee.y}},
            {"cap", double{b.arrivee.cap}},
            {"actions", std::move(actions)}};
}

Json constat_en_json(const Constat& c) {
    return {{"genre", nom(c.genre)},
            {"robot", ou_nul(c.robot)},
            {"autre", ou_nul(c.autre)},
            {"temps", ou_nul(c.temps)},
            {"duree", ou_nul(c.duree)},
            {"ecart", ou_nul(c.ecart)},
            {"x", c.lieu ? Json(c.lieu->x) : Json(nullptr)},
            {"y", c.lieu ? Json(c.lieu->y) : Json(nullptr)},
            {"fichier", c.fichier.empty() ? Json(nullptr) : Json(c.fichier)},
            {"ligne", ou_nul(c.ligne)},
            {"texte", c.texte}};
}

} // namespace

std::string en_json(const Analyse& a) {
    Json robots = Json::array();
    for (const Bilan& b : a.robots)
        robots.push_back(robot_en_json(a, b));
    Json constats = Json::array();
    for (const Constat& c : a.constats)
        constats.push_back(constat_en_json(c));
    const Json tout{{"projet", a.projet},
                    {"duree", a.match.duree},
                    {"robots", std::move(robots)},
                    {"constats", std::move(constats)}};
    // A name that is no UTF-8 is shown with its faulty bytes replaced.
    return tout.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}
