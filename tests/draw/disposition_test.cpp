#include "draw/disposition.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

// Room of 15000 x 10000 twips once the frame, the labels and the reserve are off.
constexpr MesuresEcran ecran{.largeur_ecran = 15100,
                             .hauteur_ecran = 11450,
                             .cadre_horizontal = 100,
                             .cadre_vertical = 400,
                             .hauteur_Mess = 300,
                             .hauteur_Info = 250,
                             .largeur_logo = 80,
                             .hauteur_logo = 41};

TEST(InitTable, choisit_l_echelle_qui_tient_a_l_ecran) {
    const auto e = std::make_unique<Etat>();
    e->XMax = 200;
    e->YMax = 320;
    const Disposition d = Init_Table(*e, ecran);
    EXPECT_EQ(d.Echelle, 31); // min(75, 31.25)
    EXPECT_EQ(d.largeur_Table, 6200);
    EXPECT_EQ(d.hauteur_Table, 9920);
    EXPECT_EQ(d.largeur_fenetre, 6300);
    EXPECT_EQ(d.hauteur_fenetre, 400 + 9920 + 300 + 250);
    EXPECT_EQ(d.gauche_logo, 60);
    EXPECT_EQ(d.haut_logo, 180.5);
    EXPECT_EQ(d.ZoneLogo.xmax, 140);
    EXPECT_EQ(d.ZoneLogo.ymin, 140); // 139.5 to the even neighbour
    EXPECT_EQ(d.ZoneLogo.ymax, 180);
    EXPECT_EQ(e->ZoneRedessin.ymax, 320);
}

TEST(InitTable, refuse_ce_qui_ne_tient_pas_en_16_bits) {
    struct Cas {
        int XMax, YMax;
    };
    for (const Cas& c : {Cas{20000, 1}, Cas{0, 10}}) {
        const auto e = std::make_unique<Etat>();
        e->XMax = c.XMax;
        e->YMax = c.YMax;
        MesuresEcran large = ecran;
        large.largeur_ecran = 32000;
        EXPECT_THROW(Init_Table(*e, large), ErreurExecution);
    }
}

} // namespace
