// What Readme.txt says of the formats is what the readers do.
#include "codegen/traduction.h"
#include "config/defauts.h"
#include "config/projet.h"

#include "outils/dossier_temporaire.h"
#include "outils/fausses_fenetres.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace {

struct ExempleDeNotice {
    std::string contenu;
    std::vector<std::pair<std::string, std::string>> refus; ///< a line, and a part of the reason
};

/// The files that Readme.txt shows: "Exemple : NAME" and the lines it indents by four below; behind
/// "Refusé :", lines and why they are refused.
std::map<std::string, ExempleDeNotice> exemples_de_la_notice() {
    std::map<std::string, ExempleDeNotice> exemples;
    ExempleDeNotice* ici = nullptr;
    bool refuses = false;
    const std::string texte = texte_de_la_notice();
    Lignes lignes(texte);
    while (const auto ligne = lignes.suivante()) {
        if (ligne->starts_with("Exemple : ")) {
            ici = &exemples[std::string(ligne->substr(10))];
            refuses = false;
        } else if (*ligne == "Refusé :") {
            refuses = true;
        } else if (ici != nullptr && ligne->starts_with("    ")) {
            const std::string_view utile = ligne->substr(4);
            const std::size_t fleche = utile.find("  ->  ");
            if (!refuses)
                ici->contenu.append(utile).append(RetourLigne);
            else if (fleche != std::string_view::npos)
                ici->refus.emplace_back(utile.substr(0, fleche), utile.substr(fleche + 6));
        } else if (!ligne->empty()) {
            ici = nullptr;
        }
    }
    return exemples;
}

class Notice : public testing::Test {
protected:
    Notice() {
        std::filesystem::current_path(d.chemin()); // as the program does
        for (const auto& [nom, exemple] : exemples)
            d.ecrire("Configuration/" + nom, exemple.contenu);
        e->NomProjet = "Essai";
        projet.Installe();
    }
    ~Notice() override { std::filesystem::current_path(std::filesystem::temp_directory_path()); }
    /// Every message of a reading, with its explanation.
    std::string lire() {
        f = FaussesFenetres();
        projet.LoadGeneral();
        projet.LoadTable();
        projet.Init_Robot();
        projet.Init_Jeu();
        std::string texte;
        for (const ErreurDeLecture& erreur : projet.erreurs())
            texte += erreur.raison + "\n";
        return texte;
    }
    std::vector<Mouvement> mouvements(const std::string& octets) {
        std::vector<Mouvement> tous;
        LecteurMouvements lecteur(octets, "entrée");
        while (const auto m = lecteur.suivant())
            tous.push_back(*m);
        return tous;
    }

    const std::map<std::string, ExempleDeNotice> exemples = exemples_de_la_notice();
    DossierTemporaire d;
    std::unique_ptr<Etat> e = std::make_unique<Etat>();
    FaussesFenetres f;
    Projet projet{*e, f, d.chemin()};
};

TEST_F(Notice, ses_exemples_se_lisent_sans_message) {
    ASSERT_EQ(exemples.size(), 5U);
    EXPECT_EQ(lire(), "");
    EXPECT_EQ(e->NomProjet, "Essai");
    EXPECT_EQ(e->Options(3), 2);
    EXPECT_EQ(e->NbZones, 3);
    EXPECT_EQ(e->NbPions, 4);
    EXPECT_EQ(e->NbBlocs, 2);
    EXPECT_EQ(e->Blocs(2).X2, 8) << "the radius of the disc";
    EXPECT_EQ(e->NbPoints(1), 8);
    EXPECT_EQ(e->TrajNbActions(1), 7);
    const auto lus = mouvements(exemples.at("Essai PourGenerer10.ini").contenu);
    EXPECT_EQ(lus.size(), 6U);
    for (const Mouvement& m : lus)
        EXPECT_NE(m.regle, nullptr) << m.ligne;
}

TEST_F(Notice, ce_qu_elle_dit_refuse_l_est_pour_cette_raison) {
    int compte = 0;
    for (const auto& [nom, exemple] : exemples)
        for (const auto& [ligne, raison] : exemple.refus) {
            const std::string octets = exemple.contenu + ligne + "\r\n";
            d.ecrire("Configuration/" + nom, octets);
            std::string dite;
            try {
                dite = lire();
                if (nom == "Essai PourGenerer10.ini")
                    mouvements(octets);
            } catch (const ErreurExecution& erreur) {
                dite = erreur.what();
            }
            EXPECT_NE(dite.find(raison), std::string::npos)
                << nom << " : " << ligne << " : " << dite;
            d.ecrire("Configuration/" + nom, exemple.contenu);
            ++compte;
        }
    EXPECT_EQ(compte, 18);
}

TEST(TexteDeLaNotice, se_lit_dans_une_fenetre_de_78_colonnes) {
    const std::string texte = texte_de_la_notice();
    ASSERT_TRUE(est_utf8(texte));
    EXPECT_TRUE(texte.starts_with("TAVOLMEX"));
    EXPECT_TRUE(texte.ends_with("\r\n"));
    Lignes lignes(texte);
    while (const auto ligne = lignes.suivante())
        EXPECT_EQ(premiers_caracteres(*ligne, 78).size(), ligne->size()) << *ligne;
}

} // namespace
