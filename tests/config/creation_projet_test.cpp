#include "config/creation_projet.h"

#include "base/erreurs.h"
#include "config/projets.h"
#include "outils/dossier_temporaire.h"
#include "outils/pannes.h"
#include "outils/textes.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

std::size_t fichiers_de(const DossierTemporaire& d) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(d.chemin()), fs::directory_iterator()));
}

TEST(CreationProjet, la_copie_dit_son_nouveau_nom_et_garde_tout_le_reste) {
    const DossierTemporaire d;
    d.ecrire("Essai Table.ini", "M,L\xE9gende\nL,0,0,90,300\n"); // neither UTF-8 nor CR LF
    d.ecrire("Essai Trajet1.ini", "# Fichier Essai Trajet1.iniréalisé\r\nInit,1,2,3\r\nFIN\r\n");
    d.ecrire("Essai Trajet2.ini", "# Fichier Essais d'hier\r\nFIN\r\n");
    d.ecrire("Essai.bas", "End\r\n");
    d.ecrire("Essaim Robot1.ini", "ne fait pas partie de ce projet");
    creer_projet(d.chemin(), "Finale", copie_de_projet(d.chemin(), "Essai", "Finale"));
    EXPECT_EQ(d.lire("Finale Table.ini"), d.lire("Essai Table.ini"));
    EXPECT_EQ(d.lire("Finale Trajet1.ini"),
              "# Fichier Finale Trajet1.iniréalisé\r\nInit,1,2,3\r\nFIN\r\n");
    EXPECT_EQ(d.lire("Finale Trajet2.ini"), d.lire("Essai Trajet2.ini"));
    EXPECT_EQ(d.lire("Finale.bas"), "End\r\n");
    // What was missing waits along the top of that table.
    EXPECT_TRUE(contient(d.lire("Finale Robot1.ini"), "# Fichier Finale Robot1.ini"));
    EXPECT_TRUE(contient(d.lire("Finale Trajet9.ini"), "Init,78,278,90\r\nFIN\r\n"));
}

TEST(CreationProjet, rien_n_est_remplace_et_la_raison_est_dite) {
    const DossierTemporaire d;
    d.ecrire("finale ROBOT3.ini", "à garder");
    const struct {
        const char *nom, *raison;
    } cas[] = {{"", "Un projet a un nom"},
               {"Finale", "« finale ROBOT3.ini »"},
               {"a/b", "ne peut pas contenir"},
               {"Finale #2", "ne peut pas contenir"},
               {" Finale", "blanc"}};
    for (const auto& c : cas) {
        EXPECT_TRUE(contient(raison_projet_refuse(d.chemin(), c.nom), c.raison))
            << c.nom << ": " << raison_projet_refuse(d.chemin(), c.nom);
        EXPECT_THROW(creer_projet(d.chemin(), c.nom, projet_vide("Finale")), ErreurExecution);
    }
    EXPECT_EQ(fichiers_de(d), 1U);
}

TEST(CreationProjet, un_disque_plein_ne_laisse_pas_de_demi_projet) {
    const DossierTemporaire d;
    std::vector<FichierDeProjet> fichiers = projet_vide("Finale");
    fichiers.push_back({".bas", std::string(100'000, '\'')});
    {
        const DisquePlein plein(50'000);
        EXPECT_THROW(creer_projet(d.chemin(), "Finale", fichiers), ErreurFichier);
    }
    EXPECT_EQ(fichiers_de(d), 0U);
    creer_projet(d.chemin(), "Finale", fichiers);
    EXPECT_EQ(lister_projets(d.chemin()), std::vector<std::string>{"Finale"});
}

} // namespace
