#include "analyse/banc_analyse.h"
#include "feuille/largeur_texte.h"
#include "feuille/page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

class PageDeFeuille : public testing::Test, protected BancAnalyse {
protected:
    Page page() {
        return composer(feuille_du_match(
            e, analyser(), {{"Defaut Table.ini", "01/02/2026 10:00", "0123abcd"}}, "ce jour"));
    }
    static bool dit(const Page& p, const std::string& texte) {
        return std::ranges::any_of(p.textes,
                                   [&](const TexteDePage& t) { return t.texte == texte; });
    }
    /// Actions that are written and those that are counted instead.
    static int actions_dites(const Page& p) {
        int n = 0;
        for (const TexteDePage& t : p.textes) {
            n += t.texte == "Avance 1 cm" ? 1 : 0;
            if (t.texte.starts_with("… ") && t.texte.find("action") != std::string::npos)
                n += std::stoi(t.texte.substr(std::string("… ").size()));
        }
        return n;
    }
};

TEST_F(PageDeFeuille, rien_ne_sort_de_la_page_ni_ne_disparait_sans_etre_compte) {
    struct Cas {
        int robots, actions, XMax, YMax;
    };
    for (const Cas& c : {Cas{1, 1, 200, 320},
                         {1, 25, 200, 320},
                         {1, 60, 200, 320},
                         {2, 32, 320, 200},
                         {9, 32, 200, 320},
                         {9, 32, 900, 30},
                         {1, 999, 30, 900},
                         {9, 999, 200, 200}}) {
        e.XMax = c.XMax;
        e.YMax = c.YMax;
        e.NbRobot = c.robots;
        for (int i = 1; i <= c.robots; ++i) {
            e.TrajNbActions(i) = 0;
            poser(i, 15, 15 * i);
            carre(i, 5);
            for (int n = 0; n < c.actions; ++n)
                ajouter(i, actions::AVANCE, 1);
        }
        const Page p = page();
        const std::string ou = std::to_string(c.robots) + " x " + std::to_string(c.actions);
        EXPECT_EQ(actions_dites(p), c.robots * c.actions) << ou;
        for (const TexteDePage& t : p.textes) {
            EXPECT_GE(t.x, 12) << ou << t.texte;
            EXPECT_LE(t.x + largeur_texte(t.texte, t.corps, t.gras), largeur_page - 11)
                << ou << t.texte;
            EXPECT_LE(t.y, hauteur_page - 12) << ou << t.texte;
            EXPECT_GE(t.corps, 4) << ou << t.texte;
            const bool sur_l_image = t.x < p.image_x + p.image_largeur && t.y > p.image_y &&
                                     t.y < p.image_y + p.image_hauteur;
            EXPECT_FALSE(sur_l_image) << ou << t.texte;
        }
        for (auto a = p.textes.begin(); a != p.textes.end(); ++a)
            for (auto b = a + 1; b != p.textes.end(); ++b)
                EXPECT_FALSE(a->x == b->x && std::abs(a->y - b->y) < 0.9 * a->corps * mm_par_point)
                    << ou << a->texte << " / " << b->texte;
    }
}

TEST_F(PageDeFeuille, un_robot_se_place_avec_une_regle) {
    // Outline: 20 ahead, 10 behind, 6 to the left, 4 to the right of the reference point.
    contour(1, {{{-10, -4}, {20, -4}}, {{20, 6}, {-10, 6}}});
    struct Cas {
        double x, y, cap;
        std::vector<std::string> textes;
    };
    const Cas cas[] = {
        {40,
         30,
         0,
         {"référence : 40,0 cm du bord gauche, 30,0 cm du bord bas",
          "contour : 30,0 cm et 26,0 cm des mêmes bords", "cap 0,0°, vers la droite"}},
        {170,
         300,
         450,
         {"référence : 30,0 cm du bord droit, 20,0 cm du bord haut",
          "contour : 26,0 cm et 0,0 cm des mêmes bords", "cap 90,0°, vers le haut"}},
        {100,
         160,
         -45,
         {"référence : 100,0 cm du bord gauche, 160,0 cm du bord bas",
          "cap 315,0°, entre le bas et la droite"}},
        {100, 160, 719.99, {"cap 0,0°, vers la droite"}},
    };
    for (const Cas& c : cas) {
        poser(1, c.x, c.y, c.cap);
        const Placement p = placement_de(e, 1);
        for (const std::string& texte : c.textes)
            EXPECT_TRUE(texte == p.texte_reference() || texte == p.texte_contour() ||
                        texte == p.texte_cap())
                << texte << " / " << p.texte_contour() << p.texte_cap();
    }
}

TEST_F(PageDeFeuille, chaque_action_a_ses_temps_et_sa_pose) {
    poser(1, 50, 60);
    carre(1, 5);
    ajouter(1, actions::AVANCE, 30);
    ajouter(1, actions::PAUSE, 9500);
    ajouter(1, actions::VIRAVDR, 90, 20);
    const Page p = page();
    for (const char* texte :
         {"robot 1 pas fini à 90 s ; 3 constats", "Robot 1 : pas fini à 90,00 s", "Avance 30 cm",
          "0,01 → 0,31", "80,0 ; 60,0 ; 0,0°", "Pause 95,00 s", "0,32 → …",
          "VirAvDr 90° rayon 20 cm", "jamais atteinte",
          "Defaut Table.ini  01/02/2026 10:00  0123abcd", "ce jour"})
        EXPECT_TRUE(dit(p, texte)) << texte;
}

} // namespace
