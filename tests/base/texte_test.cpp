#include "base/texte.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

using namespace std::string_literals;
using namespace std::string_view_literals;

TEST(LireEntier16, formes_acceptees) {
    const std::pair<const char*, int> cas[] = {
        {"0", 0},           {"  42\t", 42},     {"-7", -7},           {"+7", 7},       {"007", 7},
        {"-32768", -32768}, {"32767.4", 32767}, {"2.5", 2},           {"3.5", 4},      {"-2.5", -2},
        {"1e3", 1000},      {"12E-1", 1},       {"-32768.5", -32768}, {"1e-999999", 0}};
    for (const auto& [texte, attendu] : cas)
        EXPECT_EQ(lire_entier16(texte), attendu) << texte;
    EXPECT_EQ(lire_entier16("0e99999999999999999999"), 0);
    EXPECT_EQ(lire_entier16("0.0000000000000000001e19"), 1);
    EXPECT_EQ(lire_entier16("0." + std::string(500, '0') + "1"), 0);
    EXPECT_EQ(lire_entier16("1" + std::string(500, '0') + "e-500"), 1);
}

TEST(LireEntier16, formes_refusees) {
    for (const char* texte :
         {"",        " ",    "+",        "-",          "- 5",     "--5",   "5-",
          "1 2",     "1,5",  "5.",       ".5",         "1e",      "1e+",   "e5",
          "0x10",    "&H10", "nan",      "inf",        "x",       "32768", "-32769",
          "32767.5", "1e5",  "1e999999", "4294967296", "\u00A05", "5\v",   "٣"})
        EXPECT_THROW(lire_entier16(texte), ErreurConversion) << texte;
    for (const std::string& texte : {"99999999999999999999"s, "1e99999999999999999999"s, "5\0"s})
        EXPECT_THROW(lire_entier16(texte), ErreurConversion) << texte;
    EXPECT_THROW(lire_entier16("0" + std::string(500, '9')), ErreurConversion) << "leading zero";
    EXPECT_THROW(lire_entier16("1" + std::string(500, '0') + "e-100"), ErreurConversion);
}

TEST(LireSimple, garde_la_fraction_et_refuse_ce_qu_aucun_simple_ne_tient) {
    EXPECT_EQ(lire_simple(" 10.25 "), 10.25F);
    EXPECT_EQ(lire_simple("1e-60"), 0.0F);
    EXPECT_THROW(lire_simple("1e39"), ErreurConversion);
    EXPECT_THROW(lire_simple("1e400"), ErreurConversion);
}

TEST(Lignes, toutes_les_fins_de_ligne_sans_ligne_vide_de_trop) {
    using Attendu = std::vector<std::string_view>;
    const std::pair<std::string_view, Attendu> cas[] = {{"", {}},
                                                        {"a", {"a"}},
                                                        {"a\n", {"a"}},
                                                        {"\n", {""}},
                                                        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
                                                        {"a\n\r\nb", {"a", "", "b"}},
                                                        {"a\r\r\nb\r", {"a", "", "b"}},
                                                        {"a\r\nb\r\nc", {"a", "b", "c"}},
                                                        {"a\r\n\r\n", {"a", ""}},
                                                        {"a\0b\nc"sv, {"a\0b"sv, "c"}}};
    for (const auto& [texte, attendu] : cas) {
        Lignes lignes(texte);
        Attendu lues;
        while (const auto ligne = lignes.suivante())
            lues.push_back(*ligne);
        EXPECT_EQ(lues, attendu) << testing::PrintToString(texte);
    }
}

TEST(EnUtf8, garde_l_utf8_valide_et_lit_le_reste_en_windows_1252) {
    const std::pair<std::string, std::string> cas[] = {
        {"Défaut", "Défaut"},
        {"\xEF\xBB\xBFRapide", "Rapide"},
        {"\xEF\xBB\xBF"
         "D\xE9",
         "Dé"},
        {"D\xE9"
         "faut \x80 \x9C",
         "Défaut € œ"},
        {"\x81", "\xEF\xBF\xBD"},                // unassigned
        {"\xC0\x80", "À€"},                      // overlong NUL is no UTF-8
        {"\xED\xA0\x80", "í\u00A0€"},            // nor is a surrogate
        {"\xF4\x90\x80\x80", "ô\xEF\xBF\xBD€€"}, // nor what lies above U+10FFFF
        {"0123456789\xE2\x82", "0123456789â‚"},  // cut sequence
        {"\xF0\x9F\xA4\x96", "🤖"}};
    for (const auto& [octets, attendu] : cas)
        EXPECT_EQ(en_utf8(octets), attendu);
    EXPECT_EQ(encoder("Défaut 🤖!", Encodage::windows1252), "D\xE9"
                                                               "faut ?!");
    EXPECT_EQ(encoder("cass\xE9", Encodage::windows1252), "cass?");
    for (int c = 1; c < 256; ++c) {
        const std::string octet(1, static_cast<char>(c));
        const bool attribue = std::string("\x81\x8D\x8F\x90\x9D").find(octet) == std::string::npos;
        EXPECT_EQ(encoder(en_utf8(octet), Encodage::windows1252), attribue ? octet : "?") << c;
    }
}

TEST(Casse, ascii_et_accents_francais_sans_toucher_aux_signes) {
    EXPECT_EQ(majuscules("défaut àâçéèêëîïôùûüÿœæ ×÷ß 1"), "DÉFAUT ÀÂÇÉÈÊËÎÏÔÙÛÜŸŒÆ ×÷ß 1");
    EXPECT_EQ(minuscules("DÉFAUT ÀŸŒÆ ×÷ß"), "défaut àÿœæ ×÷ß");
    EXPECT_EQ(majuscules("a\xC3"), "A\xC3") << "cut sequence";
    EXPECT_EQ(rogner(" \t é \t"), "é");
    EXPECT_EQ(rogner("\t "), "");
    EXPECT_EQ(premiers_caracteres("éàü", 2), "éà");
    EXPECT_FALSE(contient_capitale_ou_chiffre("défaut , É é /:@[`{"));
}

TEST(TexteSimple, le_plus_court_jamais_d_exposant) {
    const std::pair<float, std::string_view> cas[] = {
        {0.1F, "0.1"},           {-0.0F, "0"},         {90, "90"},
        {1e10F, "10000000000"},  {1e-7F, "0.0000001"}, {359.99997F, "359.99997"},
        {-16777216, "-16777216"}};
    for (const auto& [valeur, attendu] : cas)
        EXPECT_EQ(texte_simple(valeur).vue(), attendu);
    EXPECT_EQ(lire_simple(texte_simple(3.4028235e38F)), 3.4028235e38F);
    EXPECT_EQ(texte_double15(40 * std::sin(1.0)).vue(), "33.6588393923159");
    EXPECT_EQ(texte_double15(0.1 + 0.2).vue(), "0.3");
    EXPECT_EQ(texte_double15(-0.0).vue(), "0");
    EXPECT_EQ(texte_double15(1e15).vue(), "1000000000000000");
}

TEST(Formats, moities_loin_de_zero) {
    EXPECT_EQ(format_0(2.5).vue(), "3");
    EXPECT_EQ(format_0(-2.5).vue(), "-3");
    EXPECT_EQ(format_0(-0.4).vue(), "0");
    EXPECT_EQ(format_00(7).vue(), "07");
    EXPECT_EQ(format_00(-7).vue(), "-07");
    EXPECT_EQ(format_00(123).vue(), "123");
}

TEST(Nom10, complete_par_des_blancs_et_coupe) {
    EXPECT_EQ(Nom10("FIN").vue(), "FIN       ");
    EXPECT_EQ(Nom10("BALISE DROITE"), Nom10("BALISE DRO"));
    EXPECT_NE(Nom10(" FIN"), Nom10("FIN"));
    EXPECT_EQ(Nom10(" FIN").sans_blancs(), "FIN");
}
