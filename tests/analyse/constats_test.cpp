#include "analyse/banc_analyse.h"
#include "analyse/verdict.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>

namespace {

using Monter = std::function<void(BancAnalyse&)>;

/// The kinds of finding of robot 1's match, "genre robot autre temps" each.
std::vector<std::string> constats(const Analyse& a) {
    std::vector<std::string> vus;
    for (const Constat& c : a.constats) {
        std::string texte(nom(c.genre));
        texte += " " + (c.robot ? std::to_string(*c.robot) : "-");
        texte += " " + (c.autre ? std::to_string(*c.autre) : "-");
        texte += " " + (c.temps ? std::to_string(*c.temps) : "-");
        vus.push_back(texte);
    }
    return vus;
}

TEST(Analyser, trouve_chaque_genre_et_rien_d_autre) {
    struct Cas {
        const char* nom;
        Monter monter;
        std::vector<std::string> attendus;
    };
    const Cas cas[] = {
        {"rien a dire d'un trajet qui tient",
         [](BancAnalyse& b) {
             b.ajouter(1, actions::AVANCE, 30);
             b.ajouter(1, actions::FIN);
         },
         {}},
        {"un plan vide n'a pas de duree", [](BancAnalyse& b) { b.ajouter(1, actions::FIN); }, {}},
        // Loaded at 1, over when more than its duration has passed: at duration + 2.
        {"finit a 90,00 s juste",
         [](BancAnalyse& b) { b.ajouter(1, actions::PAUSE, 8998); },
         {"valeur 1 - -"}},
        {"finit au tick d'apres",
         [](BancAnalyse& b) { b.ajouter(1, actions::PAUSE, 8999); },
         {"duree 1 - 9000", "valeur 1 - -"}},
        {"n'arrive pas a sa seconde action",
         [](BancAnalyse& b) {
             b.ajouter(1, actions::PAUSE, 9500);
             b.ajouter(1, actions::PAUSE, 1);
             b.ajouter(1, actions::PAUSE, 1);
         },
         {"duree 1 - 9000", "inatteinte 1 - -", "valeur 1 - -"}},
        {"des actions derriere FIN",
         [](BancAnalyse& b) {
             b.ajouter(1, actions::FIN);
             b.ajouter(1, actions::FIN);
             b.ajouter(1, actions::AVANCE, 3000); // not in the plan: no "valeur"
             b.ajouter(1, actions::FIN);
         },
         {"apres-fin 1 - -"}},
        {"un rayon trop grand",
         [](BancAnalyse& b) {
             b.e.VitesseLin(1) = 3;
             b.ajouter(1, actions::VIRAVGA, 10, 256);
         },
         {"valeur 1 - -"}},
        {"le second parametre d'une avance n'en est pas un",
         [](BancAnalyse& b) { b.ajouter(1, actions::AVANCE, 10, 999); },
         {}},
        {"une valeur negative",
         [](BancAnalyse& b) { b.ajouter(1, actions::AVANCE, -10); },
         {"valeur 1 - -"}},
        {"les restes d'une balise n'en sont pas",
         [](BancAnalyse& b) {
             b.e.PointY = {150, 160, 0};
             b.e.XmInit(1) = 100;
             b.e.YmInit(1) = 160;
             b.ajouter(1, actions::BALISE_DRO, 999, 999);
         },
         {}},
        // A sensor line of 20 cm never meets a beacon 5 cm away: 0.0873 degrees a tick, 4126 for a
        // turn.
        {"une balise trop proche",
         [](BancAnalyse& b) {
             b.e.PointY = {105, 160, 0};
             b.e.XmInit(1) = 100;
             b.e.YmInit(1) = 160;
             b.e.DistExtr(1) = 20;
             b.ajouter(1, actions::BALISE_DRO);
         },
         {"balise 1 - 4127", "duree 1 - 9000"}},
        {"sort par le haut et revient",
         [](BancAnalyse& b) {
             b.carre(1, 10);
             b.poser(1, 100, 300, 90);
             b.ajouter(1, actions::AVANCE, 20);
             b.ajouter(1, actions::RECULE, 20);
         },
         {"sortie 1 - 12"}},
        {"des blocs, chacun une fois",
         [](BancAnalyse& b) {
             b.carre(1, 10);
             b.e.NbBlocs = 3;
             b.e.Blocs(1) = {0, 0, 10, 10};
             b.e.Blocs(2) = {130, 150, 140, 170};
             b.e.Blocs(3) = {120, 160, 5, marque_disque};
             b.ajouter(1, actions::AVANCE, 40);
         },
         {"contact-bloc 1 3 6", "contact-bloc 1 2 21"}},
        {"deux robots, la paire une fois",
         [](BancAnalyse& b) {
             b.e.NbRobot = 2;
             b.carre(1, 10);
             b.carre(2, 10);
             b.poser(2, 150, 160);
             b.ajouter(1, actions::AVANCE, 60);
             b.ajouter(1, actions::RECULE, 60);
         },
         {"contact-robot 1 2 31"}},
        {"predictions sans resultat, damier sur table tournee",
         [](BancAnalyse& b) {
             b.e.utiliDamier = true;
             b.e.TableHorizontale = -1;
             b.ajouter(1, actions::VIRAVGA, 90, 30);
             b.ajouter(1, actions::VIRAVGA, 90, 30);
         },
         {"prediction 1 - 1", "damier - - -"}},
        // A pause of 4 lasts 5 ticks of 1, its loading tick 1 more: the 26th ends at 156 before the
        // other robot's at 247. At steps of 5 they end at 260 and 255.
        {"l'ordre de deux fins depend du pas",
         [](BancAnalyse& b) {
             b.e.NbRobot = 2;
             for (int n = 0; n < 40; ++n)
                 b.ajouter(1, actions::PAUSE, 4);
             b.ajouter(2, actions::PAUSE, 245);
             b.ajouter(2, actions::PAUSE, 55);
         },
         {"pas 1 2 156"}},
    };
    for (const Cas& c : cas) {
        BancAnalyse b;
        b.poser(1, 100, 160);
        c.monter(b);
        EXPECT_EQ(constats(b.analyser()), c.attendus) << c.nom;
    }
}

TEST(Analyser, une_sortie_dit_depuis_quand_combien_de_temps_et_jusqu_ou) {
    BancAnalyse b;
    b.carre(1, 10);
    b.poser(1, 100, 300, 90); // its front stands 10 cm from the edge
    b.ajouter(1, actions::AVANCE, 20);
    b.ajouter(1, actions::RECULE, 20);
    const Analyse a = b.analyser();
    const Constat* const c = b.constat(a, Genre::sortie);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->temps, 12);         // loaded at 1, the 11th centimetre
    EXPECT_EQ(c->duree, 10 + 1 + 9); // out, load of the way back, back
    EXPECT_NEAR(*c->ecart, 10, 1e-3);
    EXPECT_NEAR(c->lieu->y, 311, 1e-3);
    EXPECT_NE(c->texte.find("10,0 cm"), std::string::npos) << c->texte;
    EXPECT_NE(c->texte.find("0,20 s"), std::string::npos) << c->texte;
}

TEST(Analyser, les_lignes_sont_celles_du_fichier_et_FIN_en_a_une) {
    BancAnalyse b;
    b.e.NbRobot = 2;
    b.carre(1, 10);
    b.carre(2, 10);
    b.poser(1, 100, 160);
    b.poser(2, 180, 160, 180);
    b.ajouter(1, actions::PAUSE, 0);
    b.ajouter(1, actions::FIN);
    b.ajouter(2, actions::AVANCE, 70);
    Provenance p;
    p.fichier(1) = "Configuration/Defaut Trajet1.ini";
    p.lignes(1) = {4, 9};
    const Analyse a = analyser(b.e, p);
    const Constat* const c = b.constat(a, Genre::contact_robot);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->fichier, "Configuration/Defaut Trajet1.ini");
    EXPECT_EQ(c->ligne, 9) << "robot 1 stood on FIN";
}

TEST(Analyser, l_ecart_le_plus_petit_de_chaque_paire_a_son_instant) {
    BancAnalyse b;
    b.e.NbRobot = 3;
    for (int i = 1; i <= 3; ++i) {
        b.carre(i, 5);
        b.poser(i, 20, 50 * i);
    }
    b.ajouter(2, actions::PAUSE, 9);   // loaded at 1, over at 11
    b.ajouter(2, actions::DROITE, 90); // loaded at 12, over at 102
    b.ajouter(2, actions::AVANCE, 25); // loaded at 103, over at 128: 15 cm above robot 1
    b.ajouter(2, actions::GAUCHE, 180);
    b.ajouter(2, actions::AVANCE, 60);
    Analyse a = b.analyser();
    mesurer_ecarts(b.e, a);
    ASSERT_EQ(a.ecarts.size(), 3U);
    EXPECT_NEAR(a.ecarts[0].ecart, 15 - 5 * (std::sqrt(2.0) - 1), 0.02) << "its corner, turning";
    const int tourne = a.ecarts[0].temps - 129; // one corner at 45 degrees, the next one at 135
    EXPECT_LE(std::min(std::abs(tourne - 45), std::abs(tourne - 135)), 2) << tourne;
    EXPECT_NEAR(a.ecarts[2].ecart, 5, 0.02);
    EXPECT_EQ(en_ligne(a.ecarts[1]).substr(0, 15), "Robots 1 et 3 :");
}

TEST(Analyser, ne_change_rien_a_l_etat_et_donne_deux_fois_la_meme_chose) {
    for (unsigned graine = 300; graine < 306; ++graine) {
        BancAnalyse b;
        ProjetAuHasard(graine).remplir(b);
        const auto avant = std::make_unique<Etat>(b.e);
        const Analyse a = b.analyser();
        EXPECT_EQ(en_json(a), en_json(b.analyser()));
        EXPECT_EQ(b.e.XRobot(1), avant->XRobot(1));
        EXPECT_EQ(b.e.TempsEcoule, avant->TempsEcoule);
        EXPECT_EQ(b.e.PasTemps, avant->PasTemps);
        for (const Constat& c : a.constats)
            EXPECT_GT(c.texte.size(), 40U) << "a sentence that says what to do";
    }
}

TEST(Verdict, tient_en_une_ligne_francaise) {
    BancAnalyse b;
    b.poser(1, 100.25, 160);
    b.ajouter(1, actions::AVANCE, 30);
    EXPECT_EQ(verdict(b.analyser()), "Defaut : dernière action finie à 0,31 s, marge 89,69 s ; "
                                     "robot 1 arrivé en (130,3 ; 160,0), cap 0,0° ; aucun constat");
    b.ajouter(1, actions::PAUSE, 9000);
    const Analyse a = b.analyser();
    EXPECT_EQ(verdict(a), "Defaut : robot 1 pas fini à 90 s ; robot 1 arrivé en (130,3 ; 160,0), "
                          "cap 0,0° ; 2 constats");
    EXPECT_TRUE(
        en_ligne(a.constats[0]).starts_with("90,00 s, robot 1, en (130,3 ; 160,0) : le trajet"));
}

} // namespace
