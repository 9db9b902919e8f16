#include "outils/textes.h"
#include "sim/actions.h"
#include "sim/textes_etat.h"

#include <gtest/gtest.h>

namespace {

TEST(LigneMess, compose_la_ligne_d_etat) {
    const LigneMess mess{.TempsEcoule = 7540,
                         .NumAction = 3,
                         .TrajNbActions = 8,
                         .ActionEnCours = actions::AVANCE,
                         .action_pour_l_unite = actions::AVANCE,
                         .Progression = 12.6F,
                         .ParamEnCours = 50,
                         .Incidence = 90,
                         .NbreCarreaux = 2};
    EXPECT_EQ(mess.texte().vue(), "     Durée : 1 mn 15 s     Action 3/8 en cours : AVANCE      "
                                  "13/50 cm Incidence:90 Nbre carreaux:2");
}

TEST(LigneMess, arrondit_la_progression_sans_signe_et_donne_l_unite) {
    struct Cas {
        Nom10 action;
        float progression;
        const char* fin;
    };
    const Cas liste[] = {{actions::DROITE, -0.5F, "  1/0 ° "},
                         {actions::PAUSE, 2.5F, "  3/0 ms "},
                         {actions::BALISE_GAU, 0.49F, "  0/0 ° "},
                         {actions::BD, 0, "  0/0  "},
                         {actions::VIRAVDR, 0, "  0/0  "}};
    for (const Cas& c : liste) {
        LigneMess mess;
        mess.ActionEnCours = mess.action_pour_l_unite = c.action;
        mess.Progression = c.progression;
        EXPECT_TRUE(contient(mess.texte().vue(), std::string(c.action.vue()) + c.fin));
    }
}

TEST(LigneInfo, montre_les_points_puis_les_distances_de_la_balise) {
    LigneInfo info{.Xm = 12.4F, .Ym = 40, .Xextr = 12.4F, .Yextr = 60};
    EXPECT_EQ(info.texte().vue(), "Xm=12 Ym=40 Xextr=12 Yextr=60");
    info.avec_balise = true;
    info.d = 87.6;
    info.dmin = 89.85;
    info.d2 = 107.6;
    EXPECT_EQ(info.texte().vue(), "Xm=12 Ym=40 Xextr=12 Yextr=60d=88 dmin=90 d2=108");
    info.Xm = -0.4F;
    info.Ym = -2.5F;
    EXPECT_TRUE(info.texte().vue().starts_with("Xm=00 Ym=-03 "));
}

} // namespace
