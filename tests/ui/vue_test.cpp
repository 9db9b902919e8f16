#include "ui/commun/camera.h"
#include "ui/commun/gestes.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace {

// A timeline: one axis alone, in seconds, with no window about it.
TEST(Axe, seul_il_gradue_un_temps_en_secondes) {
    Axe temps(0.5, 200);
    temps.poser(40, 940);
    temps.ajuster(0, 90, 0);
    EXPECT_EQ(temps.echelle(), 10);
    EXPECT_EQ(temps.pixel(90), 940);
    EXPECT_EQ(temps.valeur(40), 0);
    EXPECT_EQ(temps.pas_lisible(1, 48), 5);
    std::vector<double> marques;
    temps.graduer(30, [&](double seconde, double pixel) {
        marques.insert(marques.end(), {seconde, pixel});
    });
    EXPECT_EQ(marques, (std::vector<double>{0, 40, 30, 340, 60, 640, 90, 940}));
    temps.zoomer(1000, 340);
    EXPECT_EQ(temps.echelle(), 200) << "no closer than its limit";
    EXPECT_NEAR(temps.valeur(340), 30, 1e-9) << "what is under the mouse stays there";
    temps.glisser(-400);
    EXPECT_NEAR(temps.valeur(340), 32, 1e-9);
}

TEST(Camera, montre_tout_les_y_vers_le_haut_puis_suit_la_souris) {
    Camera camera(0.1, 100);
    EXPECT_TRUE(camera.ajustee()) << "the first window that is shown fits its drawing";
    camera.poser({20, 20, 400, 200});
    camera.ajuster({0, 0, 200, 200}, 0);
    EXPECT_EQ(camera.echelle(), 1) << "the scale of the side that has less room";
    EXPECT_EQ(camera.en_pixels(QPointF(0, 0)), QPointF(120, 220));
    EXPECT_EQ(camera.en_pixels(QRectF(0, 0, 10, 20)), QRectF(120, 200, 10, 20));
    camera.zoomer(4, {120, 220});
    EXPECT_FALSE(camera.ajustee());
    EXPECT_EQ(camera.en_cm({120, 220}), QPointF(0, 0));
    EXPECT_EQ(camera.en_cm({160, 180}), QPointF(10, 10));
    camera.glisser({40, 40});
    EXPECT_EQ(camera.en_cm({160, 260}), QPointF(0, 0));
}

using enum Gestes::Suite;

constexpr auto gauche = Qt::LeftButton;
constexpr auto milieu = Qt::MiddleButton;

TEST(Gestes, un_geste_va_de_son_bouton_a_son_bouton_ou_il_est_coupe) {
    using Pas = std::function<Gestes::Suite(Gestes&)>;
    const Pas presse = [](Gestes& g) { return g.presser(gauche, {10, 10}); };
    const Pas autre = [](Gestes& g) { return g.presser(Qt::RightButton, {10, 10}); };
    const Pas tire = [](Gestes& g) { return g.bouger(gauche, {30, 10}); };
    const Pas libre = [](Gestes& g) { return g.bouger(Qt::NoButton, {30, 10}); };
    const Pas lache = [](Gestes& g) { return g.relacher(gauche, {30, 10}); };
    const Pas coupe = [](Gestes& g) { return g.couper(); };
    const Pas espace = [](Gestes& g) { return g.tenir_espace(true), rien; };
    const Pas vue = [](Gestes& g) { return g.presser(milieu, {10, 10}); };
    const Pas vue_tiree = [](Gestes& g) { return g.bouger(milieu, {30, 10}); };
    struct Cas {
        const char* nom;
        std::vector<Pas> pas;
        std::vector<Gestes::Suite> suites;
    };
    const Cas cas[]{
        {"a drag",
         {libre, presse, tire, lache, libre},
         {survoler, presser, glisser, relacher, survoler}},
        {"the right button begins nothing", {autre, libre, lache}, {rien, survoler, rien}},
        {"another button cuts", {presse, tire, autre, lache}, {presser, glisser, abandonner, rien}},
        {"released elsewhere", {presse, libre, libre}, {presser, abandonner, survoler}},
        {"Escape or the keyboard gone",
         {presse, coupe, tire, lache},
         {presser, abandonner, survoler, rien}},
        {"nothing to cut", {coupe, presse}, {rien, presser}},
        {"the view",
         {vue, vue_tiree, lache, coupe},
         {prendre_la_vue, deplacer_la_vue, rien, lacher_la_vue}},
        {"the view, with the space bar",
         {espace, presse, tire, lache},
         {rien, prendre_la_vue, deplacer_la_vue, lacher_la_vue}},
    };
    for (const Cas& c : cas) {
        Gestes gestes;
        std::vector<Gestes::Suite> vues;
        for (const Pas& pas : c.pas)
            vues.push_back(pas(gestes));
        EXPECT_EQ(vues, c.suites) << c.nom;
    }
}

TEST(Gestes, un_clic_qui_glisse_un_peu_reste_un_clic) {
    Gestes gestes;
    gestes.presser(gauche, {10, 10});
    gestes.bouger(gauche, {12, 11});
    EXPECT_FALSE(gestes.loin());
    gestes.bouger(gauche, {12, 12});
    EXPECT_TRUE(gestes.loin());
    EXPECT_EQ(gestes.ecart(), QPointF(0, 1));
    EXPECT_EQ(gestes.depart(), QPointF(10, 10));
}

} // namespace
