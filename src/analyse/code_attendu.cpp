#include "analyse/code_attendu.h"

#include "analyse/match.h"
#include "sim/actions.h"

#include <algorithm>
#include <cmath>

namespace {

// The length of the longest common subsequence: row by row, `longueurs` is the row above.
std::size_t communs(const std::vector<MouvementAttendu>& attendus,
                    const std::vector<MouvementRelu>& relus) {
    std::vector<std::size_t> longueurs(relus.size() + 1);
    for (const MouvementAttendu& attendu : attendus) {
        std::size_t coin = 0; // above and to the left
        for (std::size_t j = 0; j < relus.size(); ++j) {
            const std::size_t dessus = longueurs[j + 1];
            longueurs[j + 1] = attendu.est(relus[j]) ? coin + 1 : std::max(dessus, longueurs[j]);
            coin = dessus;
        }
    }
    return longueurs.back();
}

} // namespace

std::vector<MouvementAttendu> mouvements_attendus(const Trajectoires& t, int robot) {
    std::vector<MouvementAttendu> mouvements;
    for (int k = 1; k <= actions_du_plan(t, robot); ++k) {
        const actions::Action* const action = actions::trouver_bouton(t.TrajAction(robot, k));
        if (action == nullptr)
            continue;
        // A trajectory has the angle of an arc first, the generation table its radius.
        const bool arc = action->genre == actions::Genre::arc;
        const int p1 = t.TrajParam1(robot, k);
        const int p2 = t.TrajParam2(robot, k);
        for (const actions::LigneGeneree& ligne :
             actions::lignes_generees(*action, arc ? p2 : p1, arc ? p1 : p2))
            mouvements.push_back({ligne.mot, static_cast<int>(std::nearbyint(ligne.valeur)), k});
    }
    return mouvements;
}

std::vector<MouvementRelu> deplacements(const CodeRelu& code) {
    std::vector<MouvementRelu> mouvements = code.mouvements;
    std::erase_if(mouvements,
                  [](const MouvementRelu& m) { return m.regle->mot == actions::mots::carreaux; });
    return mouvements;
}

int robot_du_code(const Etat& e, const CodeRelu& code) {
    const std::vector<MouvementRelu> relus = deplacements(code);
    int meilleur = 0;
    std::size_t le_plus = 0;
    for (int i = 1; i <= robots_des_fichiers; ++i) {
        const std::vector<MouvementAttendu> attendus = mouvements_attendus(e, i);
        const std::size_t n = communs(attendus, relus);
        if (n > le_plus && 2 * n >= attendus.size()) {
            meilleur = i;
            le_plus = n;
        }
    }
    return meilleur <= e.NbRobot ? meilleur : 0;
}
