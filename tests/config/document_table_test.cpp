#include "config/document_table.h"

#include "config/defauts.h"
#include "config/lecteur_table.h"
#include "outils/textes.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace {

Fiche objet(std::string cle, float a, float b, float c, float d = 0) {
    return {std::move(cle), {a, b, c, d}, ""};
}

std::string apres(std::string_view texte, const std::function<void(DocumentTable&)>& changer) {
    DocumentTable d = DocumentTable::depuis(texte);
    changer(d);
    return d.ecrire();
}

/// What the simulator draws of a table, block by block: enough to tell two tables apart.
std::string contenu(const Etat& e) {
    std::string resultat;
    const auto ajouter = [&](std::string_view type, auto... nombres) {
        resultat.append("/").append(type);
        ((resultat += " " + std::to_string(nombres)), ...);
    };
    for (const Zone& z : e.Zones.premiers(e.NbZones))
        ajouter(std::string_view(&z.Type, 1), z.X1, z.Y1, z.X2, z.Y2);
    for (const Quatre& q : e.Blocs.premiers(e.NbBlocs))
        ajouter("bloc", q.X1, q.Y1, q.X2, q.Y2);
    for (const Quatre& q : e.Lignes.premiers(e.NbLignes))
        ajouter("LN", q.X1, q.Y1, q.X2, q.Y2);
    for (const Quatre& q : e.Ellipses.premiers(e.NbEllipses))
        ajouter("LE", q.X1, q.Y1, q.X2, q.Y2);
    for (const Pion& p : e.Pions.premiers(e.NbPions))
        ajouter(p.Type, p.X, p.Y, p.Taille);
    return resultat;
}

/// What the simulator reads: the caption, then the records.
std::string lecture(std::string_view octets) {
    const auto e = std::make_unique<Etat>();
    Entier16 NoLigne;
    std::string nom;
    vider_table(*e);
    lire_table(
        en_utf8(std::string(octets)), *e, [&](std::string_view n) { nom = n; }, NoLigne);
    return nom + contenu(*e);
}

} // namespace

TEST(DocumentTable, une_ligne_inchangee_garde_ses_octets) {
    const std::string_view fichiers[] = {
        "\xEF\xBB\xBF# BOM\nL,0,0,9,9",
        "# \xE9t\xE9\r\nM,,Caf\xE9\xC3\xA9\r\n\r\n l , 200, 21, 0,19 # bande\r\nL,1,1,2,2\r\n",
        "L,0,0,9,9\rL, 9 ,8,7,6\r",
        "zz\nL , 0, 19, 200, 21\n  DR , 50, 50, 10  # lu 1\nDR, 5, 5,+7\n\n\n",
    };
    for (const auto f : fichiers)
        EXPECT_EQ(apres(f, [](auto&) {}), f) << f;
    EXPECT_NE(message_de([] { apres("", [](auto&) {}); }), "") << "no reader takes it";
    EXPECT_EQ(apres(table_par_defaut(), [](auto&) {}), table_par_defaut());
}

TEST(DocumentTable, seule_la_ligne_changee_est_reecrite_avec_son_commentaire) {
    const std::string avant = "# a\nM, Un # m\nL,0,0,9,9# b\nZut 1\nPB , 1,2,3\n";
    const auto changer = [](DocumentTable& d) {
        EXPECT_EQ(d.incomprises(), std::vector<int>{4});
        EXPECT_EQ(d[0].texte, " Un ");
        d.remplacer(0, {"M", {}, "\nA,b#\nc"});
        d.remplacer(1, objet("O", 20, 8, 7, 6));
    };
    EXPECT_EQ(apres(avant, changer), "# a\nM,,A,b,c# m\nO , 7, 6, 20, 8 # b\nZut 1\nPB , 1,2,3\n");
    EXPECT_EQ(DocumentTable::relire(avant)->ligne, 4);
    // A file in the other encoding keeps it.
    EXPECT_EQ(apres("M,\xE9\nL,0,0,9,9",
                    [](auto& d) {
                        d.remplacer(0, {"M", {}, "à"});
                    }),
              "M,\xE0\nL,0,0,9,9");
}

TEST(DocumentTable, ajout_derriere_sa_sorte_retrait_et_ordre) {
    const std::string avant = "L,0,0,9,9\nPB,1,1,1 # un";
    EXPECT_EQ(apres(avant, [](auto& d) { d.ajouter(objet("L", 3, 3, 4, 4)); }),
              "L,0,0,9,9\nL , 3, 3, 4, 4\nPB,1,1,1 # un");
    EXPECT_EQ(apres(avant, [](auto& d) { d.ajouter(objet("PN", 3, 3, 4)); }),
              "L,0,0,9,9\nPB,1,1,1 # un\nPN , 3, 3, 4\n");
    EXPECT_EQ(apres(avant, [](auto& d) { d.retirer(1); }), "L,0,0,9,9\n");
    // In front is later in the file; a piece does not pass a zone.
    EXPECT_EQ(apres("O,1,1,2,2\nPB,1,1,1\nL,0,0,9,9",
                    [](auto& d) {
                        EXPECT_EQ(d.deplacer(0, true), 2U);
                        EXPECT_EQ(d.deplacer(2, true), 2U);
                        EXPECT_EQ(d.deplacer(1, false), 1U);
                    }),
              "L,0,0,9,9\nPB,1,1,1\nO,1,1,2,2");
}

TEST(DocumentTable, le_rayon_d_un_disque_est_relu_entier) {
    const auto disque = [](float x, float y, float r) {
        return [=](DocumentTable& d) { d.ajouter(objet("DR", x, y, r)); };
    };
    struct Cas {
        std::string avant;
        std::function<void(DocumentTable&)> changer;
        std::string_view attendu;
    };
    const Cas cas[] = {
        // The line has room under the remembered comma, or is written tightly.
        {"L , 100, 190, 200, 210\n", disque(5, 5, 7), "L , 100, 190, 200, 210\nDR , 5, 5, 7\n"},
        {"L , 0, 19, 200, 21\n", disque(50, 50, 10), "L , 0, 19, 200, 21\nDR,50,50,10\n"},
        // Else the record before it is padded.
        {"L,0,0,9,9 # c\n", disque(150, 100, 25), "L,0,0,9      ,9 # c\nDR,150,100,25\n"},
        // Moving a four-field record up when the disc comes first.
        {"PB,1,1,1\nDR,4,4,4\nPN,1,1,1\nLN,0,0,9,9",
         [](auto& d) { d.remplacer(1, objet("PB", 2, 2, 2)); },
         "PB,1,1,1\nDR,4,4,4\nPB , 2, 2, 2\nLN,0,0,9,9"},
        // A disc that relied on being cut keeps its radius when the line before it changes.
        {"L , 0, 19, 200, 21\nDR , 50, 50, 10",
         [](auto& d) { d.remplacer(0, objet("L", 100, 190, 200, 210)); },
         "L , 100, 190, 200, 210\nDR,50,50,1"},
        {"L , 0, 19, 200, 21\nDR,50,50,10", [](auto& d) { d.remplacer(0, objet("L", 1, 1, 2, 2)); },
         "L , 1, 1, 2, 2\nDR,50,50,10"},
        {"LN,0,0,9,9\nDR,5,5,7\nO,0,0,10,10", [](auto& d) { d.retirer(0); },
         "O,0,0,10,10\nDR,5,5,7"},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(apres(c.avant, c.changer), c.attendu) << c.avant;
    EXPECT_TRUE(
        contient(message_de([] { apres("LN,0,0,9,9\nDR,5,5,7\n", [](auto& d) { d.retirer(0); }); }),
                 "à quatre champs"));
    // A disc that was not read is not brought to life by what is drawn elsewhere.
    EXPECT_TRUE(contient(message_de([] {
                             apres("M,a\nDR,5,5,7\nL,0,0,9,9",
                                   [](auto& d) { d.remplacer(0, objet("L", 100, 100, 200, 200)); });
                         }),
                         "n'était pas comprise"));
}

TEST(DocumentTable, capacites_dites_clairement) {
    DocumentTable d = DocumentTable::nouveau();
    for (int i = 0; i < 10; ++i)
        d.ajouter(objet(i % 2 != 0 ? "DC" : "DR", 1, 1, 5, 5));
    EXPECT_EQ(message_de([&] { d.ajouter(objet("DR", 1, 1, 1)); }),
              "La table ne peut pas avoir plus de 10 blocs");
    for (int i = 0; i < 100; ++i)
        d.ajouter(objet("Y", -5, 1, 5));
    EXPECT_EQ(message_de([&] { d.ajouter(objet("PB", 1, 1, 1)); }),
              "La table ne peut pas avoir plus de 100 pièces");
    EXPECT_EQ(message_de([&] { d.ecrire(); }), "");
    std::string trop;
    for (int i = 0; i < 101; ++i)
        trop += "L,0,0,9,9\n";
    EXPECT_TRUE(contient(message_de([&] { apres(trop, [](auto&) {}); }), "ligne 101"));
    EXPECT_EQ(message_de([&] { apres(trop, [](auto& t) { t.retirer(50); }); }), "");
}

// Random tables, edited at random: what is written is read back, and what was not touched stays.
TEST(DocumentTable, des_tables_au_hasard_sont_relues_telles_quelles) {
    std::mt19937 hasard(20);
    const auto tirer = [&](int n) { return static_cast<int>(hasard() % static_cast<unsigned>(n)); };
    const std::string_view cles[] = {"L",  "O",  "V",  "T",  "U",  "W", "LN",
                                     "DC", "DR", "DR", "LE", "PB", "X", "Y"};
    const int bornes[] = {10, 100, 1000, 32000};
    for (int essai = 0; essai < 300; ++essai) {
        DocumentTable d = DocumentTable::depuis("# début\n\nU,0,0,1,1 # c\nétrange ici\n");
        for (int k = 0; k < 60; ++k) {
            const auto valeur = [&] { return static_cast<float>(tirer(bornes[tirer(4)])); };
            const auto nouveau = [&] {
                return objet(std::string(cles[tirer(14)]), valeur(), valeur(), valeur(), valeur());
            };
            const auto i = static_cast<std::size_t>(tirer(static_cast<int>(d.nombre()) + 1));
            const bool existe = i > 0 && i < d.nombre(); // the first one stays
            const int geste = tirer(8);
            if (existe && geste == 0)
                d.retirer(i);
            else if (existe && geste == 1)
                d.deplacer(i, tirer(2) == 0);
            else if (existe && geste == 2 && sorte_table(d[i].cle)->nom == "zones")
                d.remplacer(i, objet("T", valeur(), valeur(), valeur(), valeur()));
            else
                message_de([&] { d.ajouter(nouveau()); });
        }
        const std::string octets = d.ecrire();
        const DocumentTable relu = DocumentTable::depuis(octets);
        EXPECT_EQ(relu.ecrire(), octets);
        EXPECT_TRUE(octets.starts_with("# début\n\n"));
        ASSERT_EQ(relu.nombre(), d.nombre());
        EXPECT_EQ(relu.incomprises().size(), 0U);
        for (std::size_t i = 0; i < d.nombre(); ++i)
            EXPECT_EQ(relu[i], d[i]) << octets;
        const auto dessine = std::make_unique<Etat>();
        d.remplir(*dessine);
        EXPECT_EQ(lecture(octets), contenu(*dessine)) << octets;
    }
}
