#include "base/difference.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string dessiner(const std::vector<LigneComparee>& lignes) {
    std::string texte;
    for (const LigneComparee& ligne : lignes)
        texte.append(1, ligne.signe).append(ligne.texte).append("|");
    return texte;
}

} // namespace

TEST(Difference, les_lignes_communes_restent_et_l_ordre_est_celui_des_textes) {
    struct {
        const char *avant, *apres, *attendu;
    } const cas[] = {
        {"", "", ""},
        {"a\r\nb", "a\nb\n", " a| b|"},
        {"", "a\nb\n", "+a|+b|"},
        {"a\nb\n", "", "-a|-b|"},
        {"a\nb\nc\n", "a\nx\nc\n", " a|-b|+x| c|"},
        {"a\na\n", "a\na\na\n", " a| a|+a|"},
        {"debut\na\nb\nc\nfin", "debut\nb\nx\nc\ny\nfin", " debut|-a| b|+x| c|+y| fin|"},
    };
    for (const auto& [avant, apres, attendu] : cas)
        EXPECT_EQ(dessiner(comparer_lignes(avant, apres)), attendu) << avant << "->" << apres;
}

TEST(Difference, de_longs_textes_sans_rien_de_commun_se_comparent_aussi) {
    std::string avant = "debut\n";
    std::string apres = "debut\n";
    for (int i = 0; i < 30'000; ++i) {
        avant += "a" + std::to_string(i) + "\n";
        apres += "b" + std::to_string(i) + "\n";
    }
    const auto lignes = comparer_lignes(avant, apres);
    ASSERT_EQ(lignes.size(), 60'001U);
    EXPECT_EQ(lignes[1].signe, '-');
    EXPECT_EQ(lignes[60'000].texte, "b29999");
}
