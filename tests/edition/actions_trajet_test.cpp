#include "edition/actions_trajet.h"

#include "outils/textes.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const std::string fichier = "# début\n"
                            "Init,1,2,3\n"
                            "Avance,1 # un\n"
                            "\n"
                            "DROITE    ,2\n"
                            "# avant trois\n"
                            "gauche,3\n"
                            "FIN";

TEST(ActionsTrajet, chaque_geste_deplace_des_lignes_entieres) {
    struct Cas {
        const char* nom;
        Choix (*geste)(DocumentTrajet&);
        Choix choix;
        const char* attendu; ///< keys and first numbers, in order
    };
    const Cas cas[] = {
        {"bas",
         [](DocumentTrajet& d) {
             return deplacer(d, {1, 3}, 5);
         },
         {3, 4},
         "INIT1 DROITE2 FIN0 AVANCE1 GAUCHE3 "},
        {"haut",
         [](DocumentTrajet& d) {
             return deplacer(d, {2, 4}, 0);
         },
         {0, 1},
         "DROITE2 FIN0 INIT1 AVANCE1 GAUCHE3 "},
        {"entre",
         [](DocumentTrajet& d) {
             return deplacer(d, {1, 3}, 2);
         },
         {1, 2},
         "INIT1 AVANCE1 GAUCHE3 DROITE2 FIN0 "},
        {"sur place",
         [](DocumentTrajet& d) {
             return deplacer(d, {1, 2}, 1);
         },
         {1, 2},
         "INIT1 AVANCE1 DROITE2 GAUCHE3 FIN0 "},
        {"double",
         [](DocumentTrajet& d) {
             return dupliquer(d, {1, 2});
         },
         {3, 4},
         "INIT1 AVANCE1 DROITE2 AVANCE1 DROITE2 GAUCHE3 FIN0 "},
        {"rien",
         [](DocumentTrajet& d) { return dupliquer(d, {}); },
         {},
         "INIT1 AVANCE1 DROITE2 GAUCHE3 FIN0 "},
        {"retire",
         [](DocumentTrajet& d) {
             retirer(d, {1, 4});
             return Choix{};
         },
         {},
         "INIT1 DROITE2 GAUCHE3 "},
        {"collé",
         [](DocumentTrajet& d) { return coller(d, 5, "pause,9\n\n# x\nRecule,8"); },
         {5, 6},
         "INIT1 AVANCE1 DROITE2 GAUCHE3 FIN0 PAUSE9 RECULE8 "},
    };
    for (const Cas& c : cas) {
        DocumentTrajet d = DocumentTrajet::depuis(fichier);
        EXPECT_EQ(c.geste(d), c.choix) << c.nom;
        std::string texte;
        for (std::size_t i = 0; i < d.nombre(); ++i)
            texte += d[i].cle + std::to_string(d[i].entier(0)) + " ";
        EXPECT_EQ(texte, c.attendu) << c.nom;
        EXPECT_TRUE(d.ecrire().starts_with("# début\n")) << c.nom;
        EXPECT_TRUE(contient(d.ecrire(), "# avant trois\n")) << c.nom;
    }
}

TEST(ActionsTrajet, ce_qui_est_copie_se_colle_ailleurs_octet_pour_octet) {
    DocumentTrajet d = DocumentTrajet::depuis(fichier);
    const std::string lignes = copier(d, {1, 2});
    EXPECT_EQ(lignes, "Avance,1 # un\r\nDROITE    ,2\r\n");
    DocumentTrajet autre = DocumentTrajet::depuis("Fin\r\n# \xE9t\xE9\r\n"); // Windows-1252
    coller(autre, 0, lignes + "# cœur\n");
    EXPECT_EQ(autre.ecrire(),
              "Avance,1 # un\r\nDROITE    ,2\r\n# c\x9Cur\r\nFin\r\n# \xE9t\xE9\r\n");
    EXPECT_THROW(coller(autre, 0, "# \xCE\xA9\nAvance,1"), ErreurExecution); // no such character
    EXPECT_THROW(coller(d, 0, "Avance,1\nTourne,2"), LigneRefusee);
    EXPECT_EQ(d.ecrire(), fichier);
}

// A table of actions keeps the documents from before its steps: back to the first one, whatever
// happened, the file's bytes are there again.
TEST(ActionsTrajet, tout_annuler_rend_les_octets_du_fichier) {
    std::mt19937 hasard(8);
    DocumentTrajet d = DocumentTrajet::depuis(fichier);
    std::vector<DocumentTrajet> pas;
    for (int k = 0; k < 200; ++k) {
        pas.push_back(d);
        Choix choix;
        for (std::size_t i = 0; i < d.nombre(); ++i)
            if (hasard() % 4 == 0)
                choix.push_back(i);
        const auto place = hasard() % (d.nombre() + 1);
        const auto geste = hasard() % 4;
        const std::size_t n = d.nombre();
        if (geste == 0 && n > 20)
            retirer(d, choix);
        else if (geste == 1 && n < 60)
            EXPECT_EQ(dupliquer(d, choix).size(), choix.size());
        else if (geste == 2 && n < 60)
            coller(d, place, copier(d, choix));
        else
            EXPECT_EQ(copier(d, deplacer(d, choix, place)), copier(pas.back(), choix));
        EXPECT_EQ(DocumentTrajet::depuis(d.ecrire()).nombre(), d.nombre());
    }
    while (!pas.empty()) {
        d = pas.back();
        pas.pop_back();
    }
    EXPECT_EQ(d.ecrire(), fichier);
}

} // namespace
