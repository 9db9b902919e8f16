#include "banc_console.h"
#include "cli/commande.h"
#include "codegen/traduction.h"
#include "config/lecteur_trajet.h"
#include "config/style_trajet.h"
#include "edition/miroir.h"
#include "record/appuis.h"
#include "record/generation.h"
#include "record/trajet.h"

#include <gtest/gtest.h>

// Whoever adds a row to the table of actions is told here which part does not take it yet.
TEST(Actions, chacune_va_du_fichier_au_bouton_au_code_et_retour) {
    for (const actions::Action& action : actions::boutons) {
        SCOPED_TRACE(action.legende);
        const std::array<std::string, 3> nombres{"", ",40", ",40,30"};
        const DocumentTrajet trajet = DocumentTrajet::depuis(
            std::string(action.mot) + nombres.at(static_cast<std::size_t>(action.nb_parametres())));
        BancConsole b;
        b.debuter();
        ASSERT_FALSE(rejouer(trajet, b.c, [&] {
            b.tourner();
            return b.e.en_course; // no unknown action ended the run
        }));
        const auto relu = std::make_unique<Etat>();
        Entier16 NoLigne;
        LecteurTrajet(*relu).lire(texte_trajet(b.e, 1, "x"), 1, NoLigne);
        EXPECT_EQ(relu->TrajAction(1, 1), action.nom);
        EXPECT_EQ(relu->TrajParam1(1, 1), b.e.TrajParam1(1, 1));
        EXPECT_EQ(relu->TrajParam2(1, 1), b.e.TrajParam2(1, 1));
        EXPECT_EQ(StyleTrajet().ecrire(trajet[0]), trajet.texte_de(0));

        const std::string entree = texte_generation(b.e, "x");
        EXPECT_EQ(compter_les_muettes(entree).inattendues, 0U) << entree;
        EXPECT_EQ(b.e.nb_a_generer, 1) << "its row in the generation table";

        const auto commande =
            lire_commande(std::string(action.legende) + (action.nb_parametres() > 0 ? " 40" : "") +
                          (action.nb_parametres() > 1 ? " 30" : ""));
        EXPECT_EQ(commande->legende, action.legende);
        const Fiche autre = retournee(trajet[0], Retournement::vertical, {});
        EXPECT_EQ(autre != trajet[0], action.miroir != action.nom);
        EXPECT_EQ(retournee(autre, Retournement::vertical, {}), trajet[0]);
    }
}
