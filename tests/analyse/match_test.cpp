#include "analyse/banc_analyse.h"
#include "outils/fausses_fenetres.h"
#include "sim/moteur.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

namespace {

bool memes_bits(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

// Ticks through the window's engine and compares with what was computed at once. "FIN" comes to
// robot 1 only after its pose of the last tick.
void comparer_tick_par_tick(BancAnalyse& b, const MatchCalcule& m) {
    FaussesFenetres f;
    Moteur moteur(b.e, f);
    moteur.Run_Jeu();
    std::size_t tick = 0;
    while (f.intervalle > 0) {
        const bool entier = moteur.Timer_Timer();
        ASSERT_EQ(entier, ++tick <= m.nb_ticks());
        if (!entier)
            break;
        for (int i = 1; i <= m.NbRobot; ++i) {
            const PoseTick& p = m.poses(i)[tick];
            ASSERT_TRUE(memes_bits(p.x, b.e.XRobot(i)) && memes_bits(p.y, b.e.YRobot(i)) &&
                        memes_bits(p.cap, b.e.CapRobot(i)))
                << "robot " << i << ", tick " << tick;
        }
        ASSERT_TRUE(memes_bits(m.Incidence[tick], b.e.Incidence));
        ASSERT_EQ(m.NbreCarreaux[tick], b.e.NbreCarreaux);
    }
    EXPECT_EQ(m.arret.has_value(), f.terminee);
    EXPECT_EQ(m.duree, m.temps(m.nb_ticks()));
}

TEST(CalculerMatch, donne_au_bit_pres_ce_que_joue_la_fenetre) {
    int avec_balise = 0;
    int arretes = 0;
    for (unsigned graine = 0; graine < 24; ++graine) {
        SCOPED_TRACE(graine);
        BancAnalyse b;
        ProjetAuHasard(graine).remplir(b);
        if (graine % 10 == 0) { // an arc that divides by zero
            b.e.Entraxe(1) = 10;
            b.e.TrajNbActions(1) = 0;
            b.ajouter(1, actions::PAUSE, 70);
            b.ajouter(1, actions::VIRAVGA, 90, -5);
        }
        const auto copie = std::make_unique<Etat>(b.e);
        const MatchCalcule m = calculer_match(*copie);
        comparer_tick_par_tick(b, m);
        if (HasFatalFailure())
            return;
        arretes += m.arret ? 1 : 0;
        for (const ActionJouee& a : m.actions(1))
            avec_balise += a.action == actions::BALISE_DRO ? 1 : 0;
    }
    EXPECT_GT(avec_balise, 5);
    EXPECT_GT(arretes, 0);
}

TEST(CalculerMatch, une_erreur_garde_le_dernier_tick_entier_et_nomme_le_robot) {
    BancAnalyse b;
    b.e.NbRobot = 2;
    b.ajouter(2, actions::PAUSE, 1);
    b.ajouter(2, actions::VIRAVGA, 90, -5); // Entraxe / 2 + rayon is 0
    const MatchCalcule m = calculer_match(b.e);
    ASSERT_TRUE(m.arret);
    EXPECT_EQ(m.arret->robot, 2);
    EXPECT_EQ(m.arret->numero, 2);
    EXPECT_EQ(m.duree, 4); // loaded at 1, done at 3, the arc loaded at 4 and broken at 5
    const Analyse a = b.analyser();
    const Constat* const c = b.constat(a, Genre::arret);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->robot, 2);
    EXPECT_EQ(c->temps, 4);
}

} // namespace
