#include "sim/banc.h"
#include "sim/damier.h"
#include "sim/fenetres_muettes.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {
std::size_t allocations = 0;
} // namespace

// Counts what a tick allocates. Not inlined, or g++ sees new meet free(). NOLINTBEGIN
[[gnu::noinline]] void* operator new(std::size_t taille) {
    ++allocations;
    if (void* p = std::malloc(taille))
        return p;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept {
    std::free(p);
}
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}
// NOLINTEND

namespace {

using Appels = std::vector<std::string>;

TEST(RunJeu, remet_les_robots_en_place_dans_l_ordre_attendu) {
    Banc b;
    b.e.XInit(1) = 100;
    b.e.XmInit(1) = 10;
    b.e.XextrInit(1) = 20;
    b.e.CapInit(1) = 45;
    b.e.NbreCarreaux = 8;
    b.e.Incidence = 12;
    b.e.NumAction(1) = 4;
    b.e.Progression(1) = 9;
    b.e.XRobot(2) = 55; // beyond NbRobot: untouched
    b.m.Run_Jeu();
    EXPECT_EQ(b.f.appels,
              (Appels{"nbre_carreaux 0", "course 1", "Dessine_Table", "logo 0", "Timer 10"}));
    EXPECT_FALSE(b.e.persistant);
    EXPECT_EQ(b.e.NbreCarreaux, 0);
    EXPECT_FLOAT_EQ(b.e.XRobot(1), 100);
    EXPECT_FLOAT_EQ(b.e.CapRobot(1), 45);
    EXPECT_FLOAT_EQ(b.e.Xm(1), 10);
    EXPECT_FLOAT_EQ(b.e.Xextr(1), 20);
    EXPECT_FLOAT_EQ(b.e.Incidence, 0);
    EXPECT_EQ(b.e.NumAction(1), 0);
    EXPECT_FLOAT_EQ(b.e.Progression(1), 9) << "reset by the tick that loads action 1";
    EXPECT_FLOAT_EQ(b.e.XRobot(2), 55);
    EXPECT_EQ(b.e.ZoneRedessin.ymax, 320);
}

TEST(RunJeu, l_affichage_lent_garde_le_dessin_persistant_et_le_pas_allege_l_horloge) {
    Banc b;
    b.e.AffichageLent = vrai16(true);
    b.e.PasTemps = 5;
    b.m.Run_Jeu();
    EXPECT_EQ(b.f.appels, (Appels{"nbre_carreaux 0", "course 1", "logo 0", "Timer 50"}));
    b.f.appels.clear();
    b.m.Fin_Jeu();
    EXPECT_EQ(b.f.appels, (Appels{"Timer 0", "logo 1", "course 0"}));
}

TEST(FinJeu, ne_touche_que_le_robot_1_et_redessine_tout) {
    Banc b;
    b.e.NbRobot = 3;
    b.m.Run_Jeu();
    b.e.ActionEnCours(2) = actions::AVANCE;
    b.e.ZoneRedessin = {1, 2, 3, 4};
    b.f.appels.clear();
    b.m.Fin_Jeu();
    EXPECT_EQ(b.f.appels,
              (Appels{"Timer 0", "logo 1", "Dessine_Table", "Dessine_Robot", "course 0"}));
    EXPECT_EQ(b.e.ActionEnCours(1), actions::FIN);
    EXPECT_EQ(b.e.ActionEnCours(2), actions::AVANCE);
    EXPECT_EQ(b.e.ZoneRedessin.xmax, 200);
    EXPECT_TRUE(b.e.persistant);
}

TEST(TimerTimer, le_match_finit_au_premier_tick_apres_90_secondes) {
    struct Cas {
        int pas;
        std::int32_t fin;
    };
    for (const Cas& c : {Cas{1, 9001}, Cas{5, 9005}}) {
        Banc b;
        b.e.PasTemps = c.pas;
        b.ajouter(1, actions::PAUSE, 20000);
        b.m.Run_Jeu();
        while (b.f.intervalle > 0)
            b.m.Timer_Timer();
        EXPECT_EQ(b.e.TempsEcoule, c.fin);
        // "FIN" already, but the unit is that of the action that the end broke off.
        EXPECT_EQ(b.f.Mess, "     Durée : 1 mn 30 s     Action 1/1 en cours : FIN         0/0 ms "
                            "Incidence:0 Nbre carreaux:0");
    }
}

TEST(TimerTimer, la_limite_du_match_rend_ses_boutons_a_la_console) {
    Banc b;
    b.e.RobotTele = 1;
    b.e.TempsEcoule = 9000;
    b.e.ActionEnCours(1) = actions::PAUSE;
    b.e.ParamEnCours(1) = 500;
    b.m.Timer_Timer();
    EXPECT_EQ(b.f.appels, (Appels{"Dessine_Table", "Dessine_Robot", "Timer 0", "logo 1", "course 0",
                                  "Active_Desactive 1", "Mess"}));
}

bool memes_courses(const Course& a, const Course& b) {
    const auto memes = [](const auto& x, const auto& y) {
        using Octets = std::array<std::byte, sizeof x>;
        return std::bit_cast<Octets>(x) == std::bit_cast<Octets>(y);
    };
    return memes(a.XRobot, b.XRobot) && memes(a.YRobot, b.YRobot) &&
           memes(a.CapRobot, b.CapRobot) && memes(a.Xm, b.Xm) && memes(a.Ym, b.Ym) &&
           memes(a.Xextr, b.Xextr) && memes(a.Yextr, b.Yextr) &&
           memes(a.ActionEnCours, b.ActionEnCours) && memes(a.NumAction, b.NumAction) &&
           memes(a.Progression, b.Progression) && memes(a.TempsEcoule, b.TempsEcoule) &&
           memes(a.Incidence, b.Incidence) && memes(a.NbreCarreaux, b.NbreCarreaux);
}

TEST(Course, une_copie_suffit_a_reprendre_le_match_au_bit_pres) {
    Banc b;
    initDamier(b.e);
    b.e.NbRobot = 3;
    b.e.PointY = {30, 200, 0};
    for (int i = 1; i <= 3; ++i) {
        b.e.DistExtr(i) = 12;
        for (const Nom10& action : {actions::AVANCE, actions::BALISE_DRO, actions::VIRAVDR,
                                    actions::PAUSE, actions::RECULE, actions::VIRARGA})
            b.ajouter(i, action, 35 + i, 20);
    }
    const auto jouer = [&b](int ticks) {
        // Another engine each time: nothing of the run may hide in it.
        Moteur m(b.e, b.f);
        for (int tick = 0; tick < ticks; ++tick)
            m.Timer_Timer();
    };
    b.m.Run_Jeu();
    jouer(400);
    const Course milieu = b.e;
    jouer(800);
    const Course fin = b.e;
    static_cast<Course&>(b.e) = milieu;
    jouer(800);
    EXPECT_TRUE(memes_courses(b.e, fin));
    EXPECT_FALSE(memes_courses(b.e, milieu));
}

TEST(Predictions, les_abandons_se_comptent_par_robot_et_par_course) {
    Banc b;
    initDamier(b.e);
    b.e.NbRobot = 2;
    b.ajouter(1, actions::AVANCE, 20);
    b.ajouter(2, actions::VIRAVGA, 90, 30); // ends aside of the walk, which never gets there
    for (int course = 1; course <= 2; ++course) {
        b.m.Run_Jeu();
        b.m.Timer_Timer();
        EXPECT_EQ(b.m.predictions_abandonnees(1), 0);
        EXPECT_EQ(b.m.predictions_abandonnees(2), 1);
    }
}

TEST(TimerTimer, n_alloue_rien) {
    Banc b;
    FenetresMuettes muettes;
    Moteur m(b.e, muettes);
    b.e.NbRobot = 9;
    for (int i = 1; i <= 9; ++i) {
        for (const Nom10& action : {actions::AVANCE, actions::GAUCHE, actions::VIRAVDR,
                                    actions::BALISE_DRO, actions::PAUSE})
            b.ajouter(i, action, 20, 30);
    }
    m.Run_Jeu();
    const std::size_t avant = allocations;
    for (int tick = 0; tick < 500; ++tick)
        ASSERT_TRUE(m.Timer_Timer());
    EXPECT_EQ(allocations, avant);
}

} // namespace
