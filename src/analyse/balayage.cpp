#include "analyse/balayage.h"

#include "draw/silhouette.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float pas_de_rotation = 5; ///< degrees

bool en_chemin(const PoseTick& debut, const PoseTick& ici, const PoseTick& suivante, float pas) {
    const bool tout_droit = suivante.cap == ici.cap && ici.cap == debut.cap;
    const bool tourne = suivante.cap != ici.cap && ici.cap != debut.cap;
    return tout_droit || (tourne && std::fabs(suivante.cap - debut.cap) < pas);
}

// What the outline's edges pass over between two poses. Two triangles an edge: a quadrilateral
// that crosses itself would leave a hole.
void balayer(const Forme& a, const Forme& b, std::vector<Forme>& formes) {
    for (std::size_t k = 0; k < a.size(); ++k) {
        const std::size_t suivant = (k + 1) % a.size();
        for (Forme triangle :
             {Forme{a[k], a[suivant], b[suivant]}, Forme{a[k], b[suivant], b[k]}}) {
            orienter(triangle);
            formes.push_back(std::move(triangle));
        }
    }
}

} // namespace

std::vector<PoseTick> etapes(const MatchCalcule& m, int robot, std::size_t dernier, float pas) {
    const std::vector<PoseTick>& poses = m.poses(robot);
    std::vector<PoseTick> resultat{poses.front()};
    std::size_t action = 0;
    const auto& actions = m.actions(robot);
    for (std::size_t t = 1; t <= dernier; ++t) {
        while (action < actions.size() && m.tick(actions[action].debut) < t)
            ++action;
        const bool jointure = action < actions.size() && m.tick(actions[action].debut) == t;
        if (poses[t] == resultat.back())
            continue;
        if (t == dernier || jointure || !en_chemin(resultat.back(), poses[t], poses[t + 1], pas))
            resultat.push_back(poses[t]);
    }
    return resultat;
}

std::vector<Forme> balayage(const Etat& e, const MatchCalcule& m, int robot, std::int32_t jusqu_a) {
    const std::vector<PoseTick> poses = etapes(m, robot, m.tick(jusqu_a), pas_de_rotation);
    std::vector<Forme> resultat;
    const Silhouette silhouette(e, robot);
    for (const Forme& forme : silhouette.formes()) {
        Forme avant = placee(forme, poses[0].x, poses[0].y, poses[0].cap);
        resultat.push_back(avant);
        for (std::size_t k = 1; k < poses.size(); ++k) {
            Forme ici = placee(forme, poses[k].x, poses[k].y, poses[k].cap);
            balayer(avant, ici, resultat);
            avant = std::move(ici);
        }
    }
    return resultat;
}
