#include "codegen/lexique.h"

#include <gtest/gtest.h>

TEST(Lexique, etiquettes_et_declarations_se_reconnaissent) {
    using Noms = std::vector<std::string>;
    struct {
        const char* ligne;
        const char* etiquette;
        Noms noms;
    } const cas[] = {
        {"\tAvance_1: x = 2", "Avance_1", {}},
        {"Else: Gosub A", "", {}},
        {"Case 1:", "", {}},
        {"' Avance:", "", {}},
        {"Dim i_menu, J As Byte ' Dim k", "", {"i_menu", "j"}},
        {"  const N = 3", "", {"n"}},
        {"Val_Action VAR BYTE", "", {"val_action"}},
        {"Rem Dim x As Byte", "", {}},
        {"x = \"';\" : Dim y", "", {}},
        {"Dim", "", {""}},
        {"", "", {}},
    };
    for (const auto& c : cas) {
        EXPECT_EQ(etiquette_definie(c.ligne), c.etiquette) << c.ligne;
        EXPECT_EQ(noms_declares(c.ligne), c.noms) << c.ligne;
    }
    EXPECT_EQ(debut_de_commentaire("a = \"l';\" ; b"), 10U);
    EXPECT_EQ(debut_de_commentaire("  REM tout"), 2U);
    EXPECT_TRUE(est_inclusion("\tINCLUDE \"modedefs.bas\""));
    EXPECT_FALSE(est_nom("2nd"));
}
