#include "analyse/banc_analyse.h"
#include "analyse/contacts.h"
#include "analyse/sortie.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace {

struct Scene {
    BancAnalyse b;
    MatchCalcule m;

    explicit Scene(const std::function<void(BancAnalyse&)>& monter) {
        b.e.NbRobot = 2;
        monter(b);
        const auto copie = std::make_unique<Etat>(b.e);
        m = calculer_match(*copie);
    }
    Rencontre robots() const { return rencontre(Parcours(b.e, m, 1), Parcours(b.e, m, 2)); }
    std::optional<std::size_t> bloc(const Obstacle& o) const {
        return premier_contact(Parcours(b.e, m, 1), o);
    }
};

// Two squares of 20 cm, the first one at (50, 50).
BancAnalyse& deux_carres(BancAnalyse& b, double x, double y) {
    return b.carre(1, 10).carre(2, 10).poser(1, 50, 50).poser(2, x, y);
}

// Two bars across the way; the first one moves 150 cm in one tick.
BancAnalyse& deux_barres(BancAnalyse& b, double y) {
    b.contour(1, {{{0, -5}, {0, 5}}}).contour(2, {{{0, -5}, {0, 5}}});
    return b.poser(1, 10, 50).poser(2, 100, y).vitesse(1, 150).ajouter(1, actions::AVANCE, 150);
}

// An arm of 30 cm sweeps 90 degrees in one tick; the other robot stands at 45 degrees.
BancAnalyse& bras(BancAnalyse& b, Nom10 tour) {
    b.contour(1, {{{0, 0}, {30, 0}}}).carre(2, 1).poser(1, 100, 100).poser(2, 114, 114);
    return b.vitesse(1, 1, 90).ajouter(1, tour, 90);
}

// A half turn of radius 40 in one tick (its outer wheel: 40 + 10 / 2).
BancAnalyse& demi_tour(BancAnalyse& b, double x, double y) {
    b.carre(1, 1).carre(2, 1).poser(1, 100, 100).poser(2, x, y);
    return b.vitesse(1, 45 * Pi).ajouter(1, actions::VIRAVGA, 180, 40);
}

constexpr int jamais = -1;

TEST(Rencontre, de_deux_robots_sur_des_figures_faites_a_la_main) {
    using B = BancAnalyse;
    using actions::AVANCE;
    struct Cas {
        const char* nom;
        std::function<void(B&)> monter;
        int contact;  ///< tick
        double ecart; ///< cm, without a contact
    };
    const Cas cas[] = {
        {"immobiles a 7 cm", [](B& b) { deux_carres(b, 77, 50); }, jamais, 7},
        {"poses l'un contre l'autre", [](B& b) { deux_carres(b, 70, 50); }, 1, 0},
        // 30 cm between them, loaded at tick 1: face meets face on the 30th moving tick.
        {"au dernier pas", [](B& b) { deux_carres(b, 100, 50).ajouter(1, AVANCE, 30); }, 31, 0},
        {"1 cm avant", [](B& b) { deux_carres(b, 100, 50).ajouter(1, AVANCE, 29); }, jamais, 1},
        {"frole", [](B& b) { deux_carres(b, 100, 70.5).ajouter(1, AVANCE, 120); }, jamais, 0.5},
        {"accroche", [](B& b) { deux_carres(b, 100, 69.5).ajouter(1, AVANCE, 120); }, 31, 0},
        {"traverse entre deux ticks", [](B& b) { deux_barres(b, 52); }, 2, 0},
        // The nearest tick counts: 60 cm beyond it, 2 cm aside.
        {"passe a cote", [](B& b) { deux_barres(b, 62); }, jamais, std::hypot(60, 2)},
        {"un bras fauche entre deux ticks", [](B& b) { bras(b, actions::GAUCHE); }, 2, 0},
        {"dans l'autre sens", [](B& b) { bras(b, actions::DROITE); }, jamais, 13},
        {"un arc passe par son sommet", [](B& b) { demi_tour(b, 140, 140); }, 2, 0},
        {"et non par sa corde", [](B& b) { demi_tour(b, 100, 140); }, jamais, 38},
        {"l'un dans l'autre des le depart", [](B& b) { deux_carres(b, 52, 51).carre(2, 3); }, 1, 0},
        {"dans un contour ouvert : rien ne se touche",
         [](B& b) {
             b.contour(1, {{{-10, -10}, {10, -10}}, {{10, -10}, {10, 10}}, {{10, 10}, {-10, 10}}})
                 .carre(2, 3);
         },
         jamais, 7},
        // 41 cm apart, 2 cm a tick: in the 21st, between two ticks.
        {"deux qui se croisent",
         [](B& b) {
             deux_carres(b, 111, 55)
                 .poser(2, 111, 55, 180)
                 .ajouter(1, AVANCE, 100)
                 .ajouter(2, AVANCE, 100);
         },
         22, 0},
        {"suivi a vitesse egale",
         [](B& b) { deux_carres(b, 75, 50).ajouter(1, AVANCE, 100).ajouter(2, AVANCE, 100); },
         jamais, 5},
        {"sans contour", [](B& b) { b.carre(1, 10); }, jamais, INFINITY},
    };
    for (const Cas& c : cas) {
        const Rencontre r = Scene(c.monter).robots();
        EXPECT_EQ(r.contact ? static_cast<int>(*r.contact) : jamais, c.contact) << c.nom;
        if (std::isfinite(c.ecart)) {
            EXPECT_NEAR(r.ecart, c.ecart, 0.011) << c.nom;
        }
    }
}

TEST(Rencontre, d_un_robot_et_d_un_bloc_plein) {
    const auto tourner = [](BancAnalyse& b) {
        b.carre(1, 10).poser(1, 50, 50).ajouter(1, actions::GAUCHE, 45);
    };
    const auto avancer = [](BancAnalyse& b) {
        b.carre(1, 10).poser(1, 50, 50).ajouter(1, actions::AVANCE, 60);
    };
    struct Cas {
        const char* nom;
        std::function<void(BancAnalyse&)> monter;
        Obstacle bloc;
        int contact;
    };
    const Cas cas[] = {
        // The corner, 14.142 cm out, reaches the wall 12 cm away when 45 - h = acos(12 / 14.142),
        // h = 13.05 degrees: in the 14th moving tick.
        {"un coin tourne dans un mur", tourner, {{62, 0}, {70, 200}}, 15},
        {"un mur hors de portee du coin", tourner, {{64.2, 0}, {70, 200}}, jamais},
        {"avance dans une boite", avancer, {{80, 40}, {90, 60}}, 21},
        {"la boite est pleine : on part dedans", avancer, {{0, 0}, {200, 200}}, 1},
        {"part autour d'un petit bloc", avancer, {{48, 48}, {52, 52}}, 1},
        {"avance dans un disque", avancer, {{100, 50}, {100, 50}, 8}, 33},
        {"passe a cote d'un disque", avancer, {{80, 69}, {80, 69}, 8.9}, jamais},
        {"accroche le bas d'un disque", avancer, {{80, 67}, {80, 67}, 8}, 18},
    };
    for (const Cas& c : cas) {
        const auto contact = Scene(c.monter).bloc(c.bloc);
        EXPECT_EQ(contact ? static_cast<int>(*contact) : jamais, c.contact) << c.nom;
    }
}

// The same questions, asked at every tick without leaping.
struct Temoin {
    std::optional<std::size_t> contact;
    double ecart = INFINITY;
};

Temoin pas_a_pas(const Scene& s) {
    const Parcours a(s.b.e, s.m, 1);
    const Parcours b(s.b.e, s.m, 2);
    std::vector<Segment> ca;
    std::vector<Segment> cb;
    Temoin t;
    for (std::size_t tick = 0; tick <= s.m.nb_ticks() && !t.contact; ++tick) {
        constexpr int finesse = 8; // moments looked at between two ticks
        for (int n = 0; n < finesse && !t.contact; ++n) {
            if (tick == s.m.nb_ticks() && n > 0)
                break;
            a.placer_entre(std::min(tick, s.m.nb_ticks() - 1),
                           tick == s.m.nb_ticks() ? 1 : n / double{finesse}, ca);
            b.placer_entre(std::min(tick, s.m.nb_ticks() - 1),
                           tick == s.m.nb_ticks() ? 1 : n / double{finesse}, cb);
            const double vu = ecart(ca, cb, INFINITY);
            if (vu < tolerance_contact)
                t.contact = std::max<std::size_t>(1, n == 0 ? tick : tick + 1);
            if (n == 0)
                t.ecart = std::min(t.ecart, vu);
        }
    }
    return t;
}

TEST(Rencontre, les_bonds_ne_sautent_rien_sur_des_projets_au_hasard) {
    int contacts = 0;
    int libres = 0;
    for (unsigned graine = 100; graine < 116; ++graine) {
        SCOPED_TRACE(graine);
        const Scene s([graine](BancAnalyse& b) {
            ProjetAuHasard hasard(graine);
            hasard.remplir(b);
            b.e.NbRobot = 2;
            b.e.PasTemps = 5;
            b.carre(1, hasard.entier(1, 12));
            b.carre(2, hasard.entier(1, 12));
            b.poser(2, double{b.e.XInit(1)} + hasard.entier(25, 70), double{b.e.YInit(1)});
        });
        if (s.m.nb_ticks() == 0)
            continue;
        const Rencontre r = s.robots();
        const Temoin t = pas_a_pas(s);
        if (t.contact) { // the witness may see it later, never earlier
            ++contacts;
            ASSERT_TRUE(r.contact);
            EXPECT_LE(*r.contact, *t.contact);
        } else if (!r.contact) {
            ++libres;
            EXPECT_NEAR(r.ecart, t.ecart, 0.011);
        }
    }
    EXPECT_GT(contacts, 2);
    EXPECT_GT(libres, 2);
}

TEST(SortieDeTable, est_celle_que_donne_chaque_point_a_chaque_tick) {
    int sorties = 0;
    for (unsigned graine = 200; graine < 240; ++graine) {
        SCOPED_TRACE(graine);
        const Scene s([graine](BancAnalyse& b) { ProjetAuHasard(graine).remplir(b); });
        const Parcours p(s.b.e, s.m, 1);
        SortieDeTable attendue;
        std::vector<Segment> contour;
        for (std::size_t tick = 1; tick <= s.m.nb_ticks(); ++tick) {
            p.placer(tick, contour);
            double dehors = 0;
            for (const Segment& c : contour) {
                for (const Point q : {c.a, c.b})
                    dehors = std::max(dehors, std::hypot(std::max({0.0, -q.x, q.x - 200}),
                                                         std::max({0.0, -q.y, q.y - 320})));
            }
            if (dehors <= 0.01)
                continue;
            attendue.premier = attendue.nb_ticks == 0 ? tick : attendue.premier;
            ++attendue.nb_ticks;
            attendue.ecart = std::max(attendue.ecart, dehors);
        }
        const auto sortie = sortie_de_table(p, 200, 320);
        ASSERT_EQ(sortie.has_value(), attendue.nb_ticks > 0);
        if (!sortie)
            continue;
        ++sorties;
        EXPECT_EQ(sortie->premier, attendue.premier);
        EXPECT_EQ(sortie->nb_ticks, attendue.nb_ticks);
        EXPECT_NEAR(sortie->ecart, attendue.ecart, 1e-9);
    }
    EXPECT_GT(sorties, 10);
}

} // namespace
