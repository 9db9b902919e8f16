#include "analyse/trace.h"

#include "analyse/balayage.h"
#include "analyse/banc_analyse.h"
#include "draw/surface_notee.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

class Trace : public testing::Test, protected BancAnalyse {
protected:
    /// The calls of that kind, what follows the numbers alone where `fin` says so.
    std::vector<std::string> appels(std::string_view debut, const OptionsTrace& o) {
        SurfaceNotee s; // half a centimetre a pixel
        dessiner_trace(e, match(), o, s);
        std::erase_if(s.appels, [&](const std::string& a) { return !a.starts_with(debut); });
        return s.appels;
    }
    std::vector<std::string> textes(const OptionsTrace& o = {}) {
        std::vector<std::string> resultat = appels("texte", o);
        for (std::string& texte : resultat) // "texte x y height colour TEXT"
            for (int champ = 0; champ < 5; ++champ)
                texte.erase(0, texte.find(' ') + 1);
        return resultat;
    }
    const MatchCalcule& match() {
        if (!match_) {
            const auto copie = std::make_unique<Etat>(e);
            match_ = calculer_match(*copie);
        }
        return *match_;
    }

private:
    std::optional<MatchCalcule> match_;
};

using Textes = std::vector<std::string>;

// 100 cm/s, 100 degrees/s; the first action begins at 0.01 s.
TEST_F(Trace, montre_chemin_secondes_actions_pauses_et_s_arrete_a_temps) {
    poser(1, 20, 30);
    ajouter(1, actions::AVANCE, 170);
    ajouter(1, actions::PAUSE, 300);
    ajouter(1, actions::RECULE, 0);
    ajouter(1, actions::RECULE, 60);
    ajouter(1, actions::FIN);
    EXPECT_EQ(appels("chemin", {}).at(1), "chemin 20 30 190 30 130 30 0,255,255");
    EXPECT_EQ(textes(), (Textes{"1", "2–4", "5 s"})) << "the joint of three actions is one";
    EXPECT_EQ(appels("repere", {}).back(),
              "repere 190 30 0.5 0,0,0 robot 1, action 2 : pause de 3 s");
    // at 1 s, 2 s (until the pause ends), 5 s and 6 s: a black and a white stroke each
    EXPECT_EQ(appels("ligne", {}).size(), 2U * 4);
    EXPECT_EQ(appels("chemin", {.jusqu_a = 101}).at(1), "chemin 20 30 120 30 0,255,255");
    EXPECT_EQ(textes({.jusqu_a = 101, .secondes = false}), Textes{"1"});
    EXPECT_TRUE(appels("", {.robot = 2}).size() == 1) << "the pen alone is put back";
    const Constat sortie{.genre = Genre::sortie, .robot = 1, .temps = 200, .lieu = Point{30, 30}};
    EXPECT_EQ(textes({.jusqu_a = 199, .actions = false, .constats = {&sortie, 1}}), Textes{});
    EXPECT_EQ(textes({.jusqu_a = 200, .actions = false, .constats = {&sortie, 1}}), Textes{"!"});
}

struct Carte {
    double x1, y1, x2, y2;
};

// To and fro on one line, many times: every number has the same few places.
TEST_F(Trace, les_etiquettes_ne_se_couvrent_pas_et_restent_sur_la_table) {
    poser(1, 2, 160);
    for (int n = 0; n < 12; ++n)
        ajouter(1, n % 2 == 0 ? actions::AVANCE : actions::RECULE, 190);
    ajouter(1, actions::FIN);
    std::vector<Carte> cartes;
    for (const std::string& appel : appels("polygone", {})) {
        double v[8];
        if (std::sscanf(appel.c_str(), "polygone %lf %lf %lf %lf %lf %lf %lf %lf", v, v + 1, v + 2,
                        v + 3, v + 4, v + 5, v + 6, v + 7) == 8)
            cartes.push_back({v[0], v[1], v[4], v[5]});
    }
    ASSERT_EQ(cartes.size(), 12U + 4U);
    for (const Carte& a : cartes) {
        EXPECT_TRUE(a.x1 > -5 && a.x2 < 205);
        EXPECT_EQ(std::ranges::count_if(cartes,
                                        [&](const Carte& b) {
                                            return a.x1 < b.x2 && b.x1 < a.x2 && a.y1 < b.y2 &&
                                                   b.y1 < a.y2;
                                        }),
                  1)
            << a.x1 << " " << a.y1;
    }
}

// A square of 20 cm that goes 100 cm ahead, then turns: a strip and the circle of its corners.
TEST_F(Trace, la_bande_est_ce_que_le_contour_a_couvert) {
    carre(1, 10);
    poser(1, 30, 100);
    ajouter(1, actions::AVANCE, 100);
    ajouter(1, actions::GAUCHE, 90);
    ajouter(1, actions::FIN);
    const std::vector<Forme> formes = balayage(e, match(), 1, 9000);
    const auto couvre = [&](double x, double y) {
        return std::ranges::any_of(formes, [&](const Forme& f) {
            for (std::size_t k = 0; k < f.size(); ++k) {
                const PointTable a = f[k];
                const PointTable b = f[(k + 1) % f.size()];
                if ((b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x) < 0)
                    return false;
            }
            return true;
        });
    };
    for (const auto& [x, y, dedans] : {std::tuple(21.0, 91.0, true),
                                       {19.0, 100.0, false},
                                       {80.0, 109.0, true},
                                       {80.0, 111.0, false},
                                       {130.0, 113.5, true},
                                       {143.0, 101.0, true},
                                       {141.0, 111.0, false},
                                       {130.0, 114.5, false}})
        EXPECT_EQ(couvre(x, y), dedans) << x << " " << y;
}

} // namespace
