#include "edition/difference.h"

#include <gtest/gtest.h>

#include <random>

namespace {

/// "=" equal, "~" changed, "-" taken out, "+" put in, a sign a row.
std::string signes(const char* avant, const char* apres) {
    std::string texte;
    for (const ActionComparee& l :
         comparer_trajets(DocumentTrajet::depuis(avant), DocumentTrajet::depuis(apres)))
        texte += "=~-+"[static_cast<int>(l.sorte)];
    return texte;
}

TEST(Difference, les_lignes_sont_alignees_au_plus_juste) {
    const std::tuple<const char*, const char*, const char*> cas[] = {
        {"", "", ""},
        {"", "FIN", "+"},
        {"Avance,1\nFIN", "", "--"},
        {"Avance,1\nFIN\n", "# vu\n  \navance , 1 # un\nFin", "=="},
        {"Avance,1\nFIN", "Avance,2\nFIN", "~="},
        {"Avance,1\nDroite,5\nFIN", "Avance,1\nGauche,5\nFIN", "=-+="},
        {"Avance,1\nDroite,5\nFIN", "Avance,1\nPause,9\nDroite,5\nFIN", "=+=="},
        {"Avance,1\nAvance,2\nAvance,3", "Avance,2\nAvance,3", "-=="},
        {"Avance,1\nAvance,2\nAvance,3", "Avance,1\nAvance,9\nAvance,3", "=~="},
        {"Init,1,2,3\nVirAvDr,90,5", "Init,1,2,4\nVirAvDr,90,6\nBD", "~~+"},
    };
    for (const auto& [avant, apres, attendu] : cas)
        EXPECT_EQ(signes(avant, apres), attendu) << avant << " / " << apres;
}

// Whatever the two trajectories, each of their records stands in the list once and in its order.
TEST(Difference, chaque_action_y_est_une_fois_et_dans_l_ordre) {
    std::mt19937 hasard(3);
    const auto trajet = [&] {
        std::string texte;
        for (auto n = hasard() % 30; n > 0; --n)
            texte +=
                (hasard() % 2 == 0 ? "Avance," : "Droite,") + std::to_string(hasard() % 4) + "\n";
        return DocumentTrajet::depuis(texte);
    };
    for (int essai = 0; essai < 100; ++essai) {
        const DocumentTrajet avant = trajet();
        const DocumentTrajet apres = trajet();
        std::size_t i = 0;
        std::size_t j = 0;
        for (const ActionComparee& l : comparer_trajets(avant, apres)) {
            EXPECT_EQ(l.avant.value_or(i), i);
            EXPECT_EQ(l.apres.value_or(j), j);
            if (l.avant && l.apres) {
                EXPECT_EQ(l.sorte == ActionComparee::Sorte::egale, avant[i] == apres[j]);
                EXPECT_EQ(avant[i].cle, apres[j].cle);
            }
            i += std::size_t{l.avant.has_value()};
            j += std::size_t{l.apres.has_value()};
        }
        EXPECT_EQ(i, avant.nombre());
        EXPECT_EQ(j, apres.nombre());
    }
}

} // namespace
