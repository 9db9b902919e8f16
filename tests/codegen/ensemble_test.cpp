#include "codegen/ensemble.h"

#include "codegen/outils_generation.h"

#include <gtest/gtest.h>

namespace {

const std::string programme_double = "PRINCIPAL:\r\n\tGosub ALLER\r\n\tReturn\r\n"
                                     "Aller:\r\n\told\r\n\tReturn\r\n'fin";
const std::string entree_aller = "#\r\nAVANCE:5\r\nGAUCHE:90\r\n";
const std::string entree_retour = "#\r\nAVANCE:5\r\nDROITE:90\r\n";

} // namespace

// What two generations into the program itself would leave, in one piece.
TEST(Ensemble, deux_fonctions_comme_deux_generations) {
    Atelier atelier(programme_double, entree_aller);
    atelier.demande.cible = atelier.demande.depart.string();
    atelier.demande.fonction = "ALLER";
    atelier.generer(toujours(true));
    atelier.demande.entree = atelier.dossier.ecrire("entree.ini", entree_retour);
    atelier.demande.fonction = "ALLER_AUTRE";
    atelier.generer(toujours(true));

    const std::array fonctions{FonctionAEcrire{"ALLER", entree_aller},
                               FonctionAEcrire{"ALLER_AUTRE", entree_retour}};
    const Ensemble e = ecrire_fonctions("depart.bas", programme_double, fonctions);
    EXPECT_EQ(e.octets, atelier.dossier.lire("depart.bas"));
    EXPECT_EQ(e.remplacees, std::vector<std::string>{"ALLER"});
    EXPECT_TRUE(contient(e.apercu, "- Aller:\n"));
    EXPECT_TRUE(contient(e.apercu, "+ ALLER_AUTRE:\n"));
    EXPECT_EQ(std::ranges::count_if(
                  e.avertissements,
                  [](const std::string& phrase) { return contient(phrase, "tours sur place"); }),
              1)
        << "said once";
    EXPECT_EQ(ecrire_fonctions("depart.bas", e.octets, fonctions).octets, e.octets);
}

TEST(Ensemble, des_noms_ou_une_entree_impossibles_sont_refuses_en_entier) {
    const std::pair<std::array<FonctionAEcrire, 2>, const char*> cas[] = {
        {{{{"ALLER", entree_aller}, {"Aller", entree_retour}}}, "« Aller »"},
        {{{{"ALLER", entree_aller}, {"2E", entree_retour}}}, "« 2E » n'est pas un nom"},
        {{{{"ALLER", entree_aller}, {"", entree_retour}}}, "est vide"},
        {{{{"ALLER", entree_aller}, {"RETOUR", "#\nAVANCE:x\n"}}}, "RETOUR Ligne 2"},
    };
    for (const auto& [fonctions, raison] : cas) {
        try {
            ecrire_fonctions("depart.bas", programme_double, fonctions);
            ADD_FAILURE() << raison;
        } catch (const ErreurExecution& erreur) {
            EXPECT_TRUE(contient(erreur.what(), raison)) << erreur.what();
        }
    }
}
