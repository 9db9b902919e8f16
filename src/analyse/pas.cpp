#include "analyse/phrases.h"
#include "analyse/releve.h"

#include <algorithm>
#include <cmath>

namespace {

/// Compares one match with the same one at the other time step, and says it once a robot.
class Comparaison {
public:
    Comparaison(const Enquete& q, const Releve& releve, const MatchCalcule& autre,
                const Releve& autre_releve)
        : q_(q), notre_(releve), autre_(autre), sien_(autre_releve) {}

    void constater() {
        for (int i = 1; i <= q_.m.NbRobot; ++i) {
            poses(i);
            sorties(i);
            contacts(i, notre_.robots, sien_.robots, "le contact avec le robot ");
            contacts(i, notre_.blocs, sien_.blocs, "le contact avec le bloc ");
            for (int j = i + 1; j <= q_.m.NbRobot; ++j)
                ordre(i, j);
            dire(i);
        }
    }

private:
    struct Cause {
        std::int32_t temps;
        std::optional<int> autre;
        std::string texte;
    };

    void noter(std::int32_t temps, std::optional<int> autre, std::string texte) {
        causes_.push_back({std::min(temps, q_.m.duree), autre, std::move(texte)});
    }
    std::string seulement(bool chez_nous) const {
        const int pas = chez_nous ? q_.m.PasTemps : autre_.PasTemps;
        return " seulement au pas de " + compte(pas, "centième");
    }

    void poses(int i) {
        const auto& a = q_.m.actions(i);
        const auto& b = autre_.actions(i);
        for (std::size_t n = 0; n < std::min(a.size(), b.size()); ++n) {
            if (!a[n].finie() || !b[n].finie())
                return;
            const double loin = std::hypot(double{a[n].apres.x} - b[n].apres.x,
                                           double{a[n].apres.y} - b[n].apres.y);
            const double tourne = std::fabs(double{a[n].apres.cap} - b[n].apres.cap);
            if (loin <= 1 && tourne <= 1)
                continue;
            return noter(a[n].fin, std::nullopt,
                         q_.l_action(i, a[n].numero) + " finit à " + dixiemes(loin) + " cm et " +
                             dixiemes(tourne) + "° d'écart d'un pas à l'autre");
        }
    }

    void sorties(int i) {
        const bool chez_nous = notre_.sorties(i).has_value();
        if (chez_nous == sien_.sorties(i).has_value())
            return;
        noter(chez_nous ? q_.m.temps(notre_.sorties(i)->premier)
                        : autre_.temps(sien_.sorties(i)->premier),
              std::nullopt, "le robot sort de la table" + seulement(chez_nous));
    }

    /// The contacts of robot i that only one of the two matches has.
    void contacts(int i, const std::vector<Releve::Contact>& notres,
                  const std::vector<Releve::Contact>& siens, const std::string& quoi) {
        const auto seuls = [&](const auto& les_uns, const auto& les_autres, const MatchCalcule& m,
                               bool chez_nous) {
            for (const Releve::Contact& c : les_uns) {
                const auto meme = [&c](const Releve::Contact& d) {
                    return d.robot == c.robot && d.autre == c.autre;
                };
                if (c.robot == i && std::ranges::none_of(les_autres, meme))
                    noter(m.temps(c.tick), c.autre,
                          quoi + std::to_string(c.autre) + " a lieu" + seulement(chez_nous));
            }
        };
        seuls(notres, siens, q_.m, true);
        seuls(siens, notres, autre_, false);
    }

    static constexpr std::int32_t net = 50; ///< ends this far apart should keep their order

    /// The first action of `i` that ends clearly before one of `j` in match `m` and after it in
    /// match `n`.
    static const ActionJouee* inversee(const MatchCalcule& m, const MatchCalcule& n, int i, int j,
                                       const ActionJouee*& autre) {
        const auto& a = m.actions(i);
        const auto& b = m.actions(j);
        std::size_t k = 0;
        for (std::size_t l = 0; l < std::min(a.size(), n.actions(i).size()); ++l) {
            while (k < b.size() && b[k].finie() && b[k].fin <= a[l].fin + net)
                ++k;
            if (!a[l].finie() || !n.actions(i)[l].finie() || k >= b.size() || !b[k].finie() ||
                k >= n.actions(j).size() || !n.actions(j)[k].finie())
                return nullptr;
            autre = &b[k];
            if (n.actions(i)[l].fin > n.actions(j)[k].fin)
                return &a[l];
        }
        return nullptr;
    }

    void ordre(int i, int j) {
        struct Sens {
            const MatchCalcule *m, *n;
            int i, j;
        };
        for (const Sens& s : {Sens{&q_.m, &autre_, i, j}, Sens{&q_.m, &autre_, j, i},
                              Sens{&autre_, &q_.m, i, j}, Sens{&autre_, &q_.m, j, i}}) {
            const ActionJouee* b = nullptr;
            const ActionJouee* const a = inversee(*s.m, *s.n, s.i, s.j, b);
            if (a == nullptr)
                continue;
            return noter(a->fin, j,
                         q_.l_action(s.i, a->numero) + " du robot " + std::to_string(s.i) + " et " +
                             q_.l_action(s.j, b->numero) + " du robot " + std::to_string(s.j) +
                             " ne finissent pas dans le même ordre d'un pas à l'autre");
        }
    }

    void dire(int i) {
        const auto premiere = std::ranges::min_element(causes_, {}, &Cause::temps);
        if (premiere == causes_.end())
            return;
        Constat& c = q_.au_moment(Genre::pas, i, premiere->temps);
        c.autre = premiere->autre;
        c.texte =
            "le résultat dépend du pas de temps : " + premiere->texte +
            (causes_.size() > 1
                 ? " (et " + compte(static_cast<int>(causes_.size()) - 1, "autre différence") + ")"
                 : "") +
            ". Le vrai robot peut faire l'un comme l'autre : laissez-lui plus de marge à cet "
            "endroit.";
        causes_.clear();
    }

    const Enquete& q_;
    const Releve& notre_;
    const MatchCalcule& autre_;
    const Releve& sien_;
    std::vector<Cause> causes_;
};

} // namespace

void constater_pas(const Enquete& q, const Releve& releve, const MatchCalcule& autre,
                   const Releve& autre_releve) {
    Comparaison(q, releve, autre, autre_releve).constater();
}
