#include "codegen/etiquettes.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> textes(const Programme& programme) {
    std::vector<std::string> resultat;
    for (const Etiquette& e : lister_etiquettes(programme))
        resultat.push_back(std::to_string(e.ligne) + " " + e.texte);
    return resultat;
}

} // namespace

TEST(Etiquettes, toute_ligne_finie_par_deux_points_est_listee_entiere) {
    const Programme programme("debut:\r\n\t  Été:\n' note :\rfin: \nx = 1\n\tReturn:\nDebut:");
    const std::vector<std::string> attendu = {
        "1 DEBUT:", "2 \t  ÉTÉ:", "3 ' NOTE :", "6 \tRETURN:", "7 DEBUT:"};
    EXPECT_EQ(textes(programme), attendu);
    EXPECT_EQ(textes(Programme("\xE9t\xE9:\n")), std::vector<std::string>{"1 ÉTÉ:"});
    EXPECT_TRUE(textes(Programme("")).empty());
}

TEST(Etiquettes, le_corps_va_jusqu_au_premier_return_ou_a_la_fin) {
    struct {
        const char* programme;
        const char* etiquette;
        const char* corps;
    } const cas[] = {
        {"a\nF:\n\tx\n\tReturn\nb\n", "F:", "\r\nF:\r\n\tx\r\n\tReturn"},
        {"F:\n' avant le returned\nx\nReturn", "F:", "\r\nF:\r\n' avant le returned"},
        {"F:\nx\n\n", "F:", "\r\nF:\r\nx\r\n"},
        {"f:\n1\nReturn\nF:\n2\nRETURN\n", "F:", "\r\nF:\r\n2\r\nRETURN"},
        {"F:\nF:\nReturn\n", "F:", "\r\nF:\r\nF:\r\nReturn"},
        {"Return:\nx\n", "RETURN:", "\r\nReturn:"},
        {" F:\nx\n", "F:", ""},
    };
    for (const auto& c : cas)
        EXPECT_EQ(corps_de(Programme(c.programme), c.etiquette), c.corps) << c.programme;
}

// The same answer as looking into every body.
TEST(Etiquettes, un_texte_se_cherche_dans_tous_les_corps) {
    const Programme programme("avant\nA:\nx = Été\nB:\nReturn\nété\nC:\nreturn\nA:\nfin");
    const std::vector<Etiquette> liste = lister_etiquettes(programme);
    for (const std::string_view texte : {"été", "RETURN", "fin", "avant", "x", "b:", "a", "zz"}) {
        std::vector<std::size_t> attendu;
        for (std::size_t i = 0; i < liste.size(); ++i)
            if (majuscules(corps_de(programme, liste[i].texte)).find(majuscules(texte)) !=
                std::string::npos)
                attendu.push_back(i);
        EXPECT_EQ(chercher_dans_les_corps(programme, liste, texte), attendu) << texte;
    }
}

TEST(Etiquettes, un_nom_se_cherche_sans_casse_ni_blancs_l_entree_exacte_d_abord) {
    const Programme programme(" Avance :\nAVANCE:\nÉté:\n");
    const std::vector<Etiquette> liste = lister_etiquettes(programme);
    EXPECT_EQ(chercher_etiquette(liste, "avance:"), 1U);
    EXPECT_EQ(chercher_etiquette(liste, "avance"), 0U);
    EXPECT_EQ(chercher_etiquette(liste, "\tété"), 2U);
    EXPECT_EQ(chercher_etiquette(liste, "avanc"), std::nullopt);
}
