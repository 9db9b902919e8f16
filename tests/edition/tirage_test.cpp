#include "edition/tirage.h"

#include "analyse/essai.h"
#include "sim/actions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

/// A trajectory of one action in an empty match.
EssaiTrajet essai_de(const DocumentTrajet& trajet) {
    const auto etat = std::make_unique<Etat>();
    etat->XMax = 200;
    etat->YMax = 320;
    etat->PasTemps = 1;
    etat->NbRobot = 1;
    etat->VitesseLin(1) = 0.4F;
    etat->VitesseRot(1) = 0.9F;
    etat->Entraxe(1) = 20;
    return essayer(*etat, {}, trajet, 1);
}

PoseTrajet pose(const PoseTick& p) {
    return {p.x, p.y, p.cap};
}

// Pulled to where it ends anyhow, an action stays as it is: what the mouse does is the inverse of
// what the robot does.
TEST(Tirage, tiree_la_ou_elle_finit_une_action_ne_change_pas) {
    std::mt19937 hasard(12);
    const auto n = [&](int de, int a) {
        return std::to_string(std::uniform_int_distribution(de, a)(hasard));
    };
    for (int essai = 0; essai < 120; ++essai) {
        const char* const droits[] = {"Avance,", "Recule,"};
        const char* const tours[] = {"Droite,", "Gauche,"};
        const char* const arcs[] = {"VirAvDr,", "VirAvGa,", "VirArDr,", "VirArGa,"};
        const auto sorte = hasard() % 8;
        const std::string action = sorte < 2   ? droits[sorte] + n(1, 255)
                                   : sorte < 4 ? tours[sorte - 2] + n(1, 359)
                                               : arcs[sorte - 4] + n(20, 340) + "," + n(10, 150);
        const auto trajet = DocumentTrajet::depuis("Init," + n(0, 200) + "," + n(0, 320) + "," +
                                                   n(-179, 180) + "\n" + action + "\nFIN\n");
        const EssaiTrajet calcule = essai_de(trajet);
        const ActionJouee* const jouee = calcule.jouee(1);
        ASSERT_TRUE(jouee != nullptr && jouee->finie()) << action;
        Vecteur vers{jouee->apres.x, jouee->apres.y};
        if (actions::est(jouee->action, actions::Genre::rotation)) {
            const double cap = radians(jouee->apres.cap);
            vers = {vers.x + 50 * std::cos(cap), vers.y + 50 * std::sin(cap)};
        }
        const auto tiree = fin_tiree(trajet[1], pose(jouee->avant), vers);
        ASSERT_TRUE(tiree.has_value()) << action;
        EXPECT_EQ(*tiree, trajet[1])
            << action << ", devenue " << tiree->v[0] << ", " << tiree->v[1];
    }
}

TEST(Tirage, ce_qui_ne_va_pas_plus_pres_reste_une_action) {
    struct Cas {
        const char* quoi;
        Fiche action;
        Vecteur vers;
        std::optional<std::array<float, 2>> attendu;
    };
    const PoseTrajet avant{100, 100, 0};
    for (const Cas& cas : {
             Cas{"derrière une ligne droite", {"AVANCE", {50}, ""}, {40, 100}, {{1, 0}}},
             Cas{"derrière en reculant", {"RECULE", {5}, ""}, {40.4, 100}, {{60, 0}}},
             Cas{"vers soi-même, un tour", {"GAUCHE", {5}, ""}, {150, 100}, {{360, 0}}},
             Cas{"à droite d'un arc à gauche", {"VIRAVGA", {90, 30}, ""}, {130, 90}, {{37, 30}}},
             Cas{"loin", {"AVANCE", {50}, ""}, {1e6, 100}, {{32767, 0}}},
             Cas{"une pause", {"PAUSE", {50}, ""}, {0, 0}, {}},
             Cas{"une balise", {"BALISE DRO", {}, ""}, {0, 0}, {}},
         }) {
        const auto tiree = fin_tiree(cas.action, avant, cas.vers);
        ASSERT_EQ(tiree.has_value(), cas.attendu.has_value()) << cas.quoi;
        if (cas.attendu) {
            EXPECT_EQ((std::array{tiree->v[0], tiree->v[1]}), *cas.attendu) << cas.quoi;
        }
    }
    const Fiche depart = depart_deplace({"INIT", {1, 2, 3}, ""}, {10.6, -4.4});
    EXPECT_EQ(depart, (Fiche{"INIT", {11, -4, 3}, ""}));
    EXPECT_EQ(depart_oriente(depart, {11, 30}), (Fiche{"INIT", {11, -4, 90}, ""}));
}

} // namespace
