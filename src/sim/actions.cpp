#include "sim/actions.h"

#include <cmath>

namespace actions {

namespace {

// What a new row must keep to.
constexpr bool se_tient(const Action& a) {
    const Action* const miroir = trouver(a.miroir);
    const bool cotes = miroir != nullptr && miroir->miroir == a.nom && miroir->genre == a.genre &&
                       miroir->parametres == a.parametres;
    const bool bouton = !a.legende.empty();
    const auto meme_code = [&a](const Action& autre) { return autre.code == a.code; };
    return cotes && trouver(a.nom) == &a && bouton == (a.code != 0) &&
           bouton == !a.genere.empty() && (a.genre == Genre::arc) == !a.quart.empty() &&
           (!bouton || std::ranges::count_if(table, meme_code) == 1) && a.code != code_carreaux;
}
static_assert(std::ranges::all_of(table, se_tient));
static_assert(std::ranges::all_of(boutons, [](const Action& a) { return !a.legende.empty(); }));

template <typename Condition>
const Action* chercher(Condition condition) {
    const auto trouve = std::ranges::find_if(boutons, condition);
    return trouve == boutons.end() ? nullptr : &*trouve;
}

} // namespace

const Action* trouver_bouton(const Nom10& nom) {
    return chercher([&](const Action& a) { return a.nom == nom; });
}

const Action* trouver_legende(std::string_view nom) {
    return chercher([&](const Action& a) { return majuscules(a.legende) == nom; });
}

const Action* trouver_code(int code) {
    return chercher([&](const Action& a) { return a.code == code; });
}

std::vector<LigneGeneree> lignes_generees(const Action& action, int p1, int p2) {
    if (action.genre != Genre::arc)
        return {{action.genere, double(p1)}};
    return {{action.genere, p1 * std::sin(double(p2))},
            {action.quart, 90},
            {action.genere, (1 - std::cos(double(p2))) * p1}};
}

} // namespace actions
