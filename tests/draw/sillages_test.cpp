#include "draw/sillages.h"

#include "draw/surface_notee.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(Sillages, un_arret_n_ajoute_pas_de_point_mais_ses_secondes) {
    const auto e = std::make_unique<Etat>();
    e->NbRobot = 1;
    Sillages sillages;
    for (const int t : {50, 100, 150, 200}) {
        e->TempsEcoule = t;
        e->XRobot(1) = t < 100 ? 0.0F : 7.0F;
        sillages.noter(*e);
    }
    SurfaceNotee s;
    sillages.peindre(*e, s);
    EXPECT_EQ(s.appels, (std::vector<std::string>{
                            "epaisseur 4", "chemin 0 0 7 0 0,0,0", "epaisseur 2",
                            "chemin 0 0 7 0 0,255,255", "repere 7 0 0.8 0,0,0 robot 1, 1 s",
                            "repere 7 0 0.8 0,0,0 robot 1, 2 s", "epaisseur 1"}));
}

} // namespace
