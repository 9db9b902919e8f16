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
    using B = BancAnalyse;
    using namespace actions;
    struct Cas {
        const char* nom;
        Monter monter;
        std::vector<std::string> attendus;
    };
    const Cas cas[] = {
        {"rien a dire", [](B& b) { b.ajouter(1, AVANCE, 30).ajouter(1, FIN); }, {}},
        {"un plan vide n'a pas de duree", [](B& b) { b.ajouter(1, FIN); }, {}},
        // Loaded at 1, over when more than its duration has passed: at duration + 2.
        {"90,00 s juste", [](B& b) { b.ajouter(1, PAUSE, 8998); }, {"valeur 1 - -"}},
        {"au tick d'apres",
         [](B& b) { b.ajouter(1, PAUSE, 8999); },
         {"duree 1 - 9000", "valeur 1 - -"}},
        {"n'arrive pas a sa seconde action",
         [](B& b) { b.ajouter(1, PAUSE, 9500).ajouter(1, PAUSE, 1).ajouter(1, PAUSE, 1); },
         {"duree 1 - 9000", "inatteinte 1 - -", "valeur 1 - -"}},
        // What lies behind FIN is not in the plan: no "valeur".
        {"des actions derriere FIN",
         [](B& b) { b.ajouter(1, FIN).ajouter(1, FIN).ajouter(1, AVANCE, 3000).ajouter(1, FIN); },
         {"apres-fin 1 - -"}},
        {"un rayon trop grand",
         [](B& b) { b.vitesse(1, 3).ajouter(1, VIRAVGA, 10, 256); },
         {"valeur 1 - -"}},
        {"une avance n'a qu'un parametre", [](B& b) { b.ajouter(1, AVANCE, 10, 999); }, {}},
        {"une valeur negative", [](B& b) { b.ajouter(1, AVANCE, -10); }, {"valeur 1 - -"}},
        {"les restes d'une balise n'en sont pas",
         [](B& b) {
             b.balise(1, {150, 160, 0}, 100, 160).ajouter(1, BALISE_DRO, 999, 999);
         },
         {}},
        // A sensor line of 20 cm never meets a beacon 5 cm away: 0.0873 degrees a tick, 4126 for a
        // turn.
        {"une balise trop proche",
         [](B& b) {
             b.balise(1, {105, 160, 0}, 100, 160, 20).ajouter(1, BALISE_DRO);
         },
         {"balise 1 - 4127", "duree 1 - 9000"}},
        {"des blocs, chacun une fois",
         [](B& b) {
             b.bloc({0, 0, 10, 10}).bloc({130, 150, 140, 170}).bloc({120, 160, 5, marque_disque});
             b.carre(1, 10).ajouter(1, AVANCE, 40);
         },
         {"contact-bloc 1 3 6", "contact-bloc 1 2 21"}},
        {"deux robots, la paire une fois",
         [](B& b) {
             b.regler(&Etat::NbRobot, 2).carre(1, 10).carre(2, 10).poser(2, 150, 160);
             b.ajouter(1, AVANCE, 60).ajouter(1, RECULE, 60);
         },
         {"contact-robot 1 2 31"}},
        {"predictions sans resultat, damier sur table tournee",
         [](B& b) {
             b.regler(&Etat::utiliDamier, true).regler(&Etat::TableHorizontale, -1);
             b.ajouter(1, VIRAVGA, 90, 30).ajouter(1, VIRAVGA, 90, 30);
         },
         {"prediction 1 - 1", "damier - - -"}},
        // A pause of 4 lasts 5 ticks of 1, its loading tick 1 more: the 26th ends at 156 before the
        // other robot's at 247. At steps of 5 they end at 260 and 255.
        {"l'ordre de deux fins depend du pas",
         [](B& b) {
             for (int n = 0; n < 40; ++n)
                 b.ajouter(1, PAUSE, 4);
             b.regler(&Etat::NbRobot, 2).ajouter(2, PAUSE, 245).ajouter(2, PAUSE, 55);
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
    b.carre(1, 10).poser(1, 100, 300, 90); // its front stands 10 cm from the edge
    b.ajouter(1, actions::AVANCE, 20).ajouter(1, actions::RECULE, 20);
    const Analyse a = b.analyser();
    EXPECT_EQ(constats(a), std::vector<std::string>{"sortie 1 - 12"});
    const Constat* const c = b.constat(a, Genre::sortie);
    ASSERT_NE(c, nullptr);
    // Its time, 12: loaded at 1, the 11th centimetre.
    EXPECT_EQ(c->duree, 10 + 1 + 9); // out, load of the way back, back
    EXPECT_NEAR(*c->ecart, 10, 1e-3);
    EXPECT_NEAR(c->lieu->y, 311, 1e-3);
    EXPECT_TRUE(contient(c->texte, "10,0 cm"));
    EXPECT_TRUE(contient(c->texte, "0,20 s"));
}

TEST(Analyser, les_lignes_sont_celles_du_fichier_et_FIN_en_a_une) {
    BancAnalyse b;
    b.e.NbRobot = 2;
    b.carre(1, 10).carre(2, 10).poser(1, 100, 160).poser(2, 180, 160, 180);
    b.ajouter(1, actions::PAUSE, 0).ajouter(1, actions::FIN).ajouter(2, actions::AVANCE, 70);
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
