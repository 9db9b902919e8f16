#include "ui/principale/cadence.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using std::chrono::milliseconds;

/// Events at these moments (ms) of a 10 ms clock started at 0; the ticks that each brings.
std::vector<int> ticks(const std::vector<int>& moments, Cadence::Duree calcul = {},
                       double vitesse = 1) {
    Cadence c;
    const Cadence::Instant debut;
    c.demarrer(milliseconds(10), debut);
    c.changer_vitesse(vitesse, debut);
    std::vector<int> suite;
    for (const int ms : moments) {
        int n = 0;
        for (; c.echu(debut + milliseconds(ms), n, n * calcul); ++n)
            c.compter(calcul);
        suite.push_back(n);
    }
    return suite;
}

TEST(Cadence, rattrape_ce_qui_vient_en_retard) {
    struct Cas {
        std::vector<int> moments, attendus;
    };
    const Cas cas[] = {
        {{10, 20, 30}, {1, 1, 1}},
        {{9, 21, 29, 41}, {1, 1, 1, 1}}, // early or late by a hair: no pairs
        {{2, 10}, {0, 1}},
        {{10, 40, 50}, {1, 3, 1}},
        {{10, 210, 211, 212}, {1, 8, 8, 4}}, // a few an event
        {{10, 1500, 1510}, {1, 1, 1}},       // asleep
    };
    for (const Cas& c : cas)
        EXPECT_EQ(ticks(c.moments), c.attendus) << c.moments[1];
}

TEST(Cadence, un_tick_trop_long_retarde_les_suivants_sans_dette) {
    EXPECT_EQ(ticks({10, 50, 90, 130}, milliseconds(40)), (std::vector{1, 1, 1, 1}));
    EXPECT_EQ(ticks({10, 20, 30, 40, 50}, milliseconds(10)), (std::vector{1, 1, 1, 1, 1}));
}

TEST(Cadence, plus_lente_ou_plus_vite_elle_suit_sa_vitesse_sans_figer_la_fenetre) {
    struct Cas {
        double vitesse;
        milliseconds calcul;
        std::vector<int> attendus; ///< of events at 10, 20, 100, 110 ms
        int intervalle;
    };
    const Cas cas[] = {
        {0.1, milliseconds(0), {0, 0, 1, 0}, 100},
        {2, milliseconds(0), {2, 2, 16, 2}, 10},
        {100, milliseconds(0), {100, 100, 800, 100}, 10},
        {100, milliseconds(1), {10, 10, 13, 13}, 10}, // what takes longer is painted meanwhile
        {0, milliseconds(2), {5, 5, 8, 8}, 10},
    };
    for (const Cas& c : cas) {
        EXPECT_EQ(ticks({10, 20, 100, 110}, c.calcul, c.vitesse), c.attendus) << c.vitesse;
        Cadence cadence;
        cadence.demarrer(milliseconds(10), {});
        cadence.changer_vitesse(c.vitesse, {});
        EXPECT_EQ(cadence.intervalle(), milliseconds(c.intervalle)) << c.vitesse;
    }
}

TEST(Cadence, retenue_elle_ne_doit_rien) {
    Cadence c;
    const Cadence::Instant debut;
    c.demarrer(milliseconds(10), debut);
    for (int ms = 10; ms <= 900; ms += 10)
        c.retenir(debut + milliseconds(ms));
    EXPECT_FALSE(c.echu(debut + milliseconds(902)));
    EXPECT_TRUE(c.echu(debut + milliseconds(910)));
    EXPECT_FALSE(c.echu(debut + milliseconds(910)));
}

} // namespace
