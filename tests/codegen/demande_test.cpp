#include "codegen/demande.h"

#include "base/erreurs.h"

#include <gtest/gtest.h>

TEST(Demande, les_controles_se_suivent_et_le_premier_qui_echoue_decide) {
    const std::string fichiers = "Sélectionner une ligne dans la liste des Fichiers PICBASIC";
    const std::string projet = "Sélectionner une ligne dans la liste des fichier du projet";
    const std::string incorrect = "Nom de fichier incorrect/projets";
    struct {
        const char* entree;
        const char* depart;
        const char* cible;
        std::string message;
    } const cas[] = {
        {"", "", "", fichiers},
        {"e.ini", "", "", projet},
        {"e.ini", "d.bas", " \t ", "Sélectionner Fichier à générer."},
        {"e.ini", "d.bas", "prog.bas.old", incorrect},
        {"e.ini", "d.bas", "/equipe.v2/prog.bas", incorrect},
        {"e.ini", "d.bas", "./prog.bas", incorrect},
        {"e.ini", "d.bas", "prog.bas ", incorrect},
        {"e.ini", "d.bas", "prog.BAS", ""},
        {"e.ini", "d.bas", "/projets/DefautGENERE.BaS", ""},
    };
    for (const auto& c : cas) {
        const Refus refus = verifier({c.depart, c.entree, c.cible, "F", false, "/projets"});
        EXPECT_EQ(refus.message, c.message) << c.cible;
        EXPECT_EQ(static_cast<bool>(refus), !c.message.empty());
    }
    EXPECT_THROW(verifier({"d.bas", "e.ini", "prog", "F", false, ""}), ErreurExecution);
    EXPECT_EQ(cible_par_defaut("/a/Configuration", "Été"), "/a/Configuration/ÉtéGENERE.BAS");
}
