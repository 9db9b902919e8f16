#include "base/visible.h"

#include <gtest/gtest.h>

namespace {

TEST(Visible, ce_qui_commande_un_terminal_est_montre_au_lieu_d_agir) {
    const std::pair<std::string, std::string> cas[] = {
        {"Défaut – 3 °\t€ 🤖", "Défaut – 3 °\t€ 🤖"},
        {"\x1B[2J\x07\x7F", R"(\x1B[2J\x07\x7F)"},
        {"deux\r\nlignes", R"(deux\x0D\x0Alignes)"},
        {std::string("nul\0!", 5), R"(nul\x00!)"},
        {"\xC2\x9B"
         "31m",
         R"(\u009B31m)"}, // a control sequence in one character
        {"ini.\u202Eexe \u2066\u200F", R"(ini.\u202Eexe \u2066\u200F)"},
        {"\xE9\xC3\xFF", R"(\xE9\xC3\xFF)"},
        {"\xC2\xA0\xC2\x80", "\xC2\xA0\\u0080"},
    };
    for (const auto& [texte, attendu] : cas)
        EXPECT_EQ(visible(texte), attendu);
    EXPECT_EQ(visible("a\nb\tc", "\n"), "a\nb\\x09c");
}

TEST(Visible, un_texte_long_est_coupe_entre_deux_caracteres) {
    EXPECT_EQ(abrege(std::string(80, 'x')), std::string(80, 'x'));
    EXPECT_EQ(abrege(std::string(79, 'x') + "é"), std::string(79, 'x') + "…");
}

} // namespace
