#include "sim/damier.h"

#include "banc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <random>

namespace {

// The sensor's rules taken literally, step by step: what the quicker walk must give.
class DamierAuPasAPas {
public:
    explicit DamierAuPasAPas(const Etat& etat) : e(etat) {}

    bool couleur(float x, float y) const {
        int i = 0;
        int j = 0;
        while (!entre(30 * i, x) && i < 6)
            ++i;
        while (!entre(30 * j, y) && i < 6 && j < 9)
            ++j;
        return (i + j) % 2 == 0;
    }

    // The colour changes met; nothing when the step counter overflows.
    std::optional<int> compter(float x0, float y0, float xf, float yf) const {
        const double a = e.Incidence * 3.14159 / 180;
        float x = x0;
        float y = y0;
        bool vue = couleur(x, y);
        int nombre = 0;
        for (int k = 0; x < xf || y < yf;) {
            nombre += couleur(x, y) != vue ? 1 : 0;
            vue = couleur(x, y);
            if (++k > 32767)
                return std::nullopt;
            x = static_cast<float>(x0 + k * std::cos(a));
            y = static_cast<float>(y0 + k * std::sin(a));
        }
        return nombre;
    }

private:
    static bool entre(int bord, float v) {
        return static_cast<float>(bord) < v && v < static_cast<float>(bord + 30);
    }

    const Etat& e;
};

struct BancDamier : Banc {
    BancDamier() { initDamier(e); }

    // Walks `distance` cm from (x, y) along `cap`. @returns the changes counted
    int marcher(float x, float y, float cap, int distance) {
        e.Incidence = cap;
        e.NbreCarreaux = 0;
        const double a = radians(cap);
        calculer_nbre_carreaux(e, x, y, simple(x + distance * std::cos(a)),
                               simple(y + distance * std::sin(a)));
        return e.NbreCarreaux;
    }
};

TEST(Damier, detecterCouleur_suit_la_couleur_et_refuse_l_exterieur) {
    const BancDamier b;
    Entier16 nouvelle = 0;
    Entier16 couleur = -1;
    detecterCouleur(b.e, 1, 0, nouvelle, couleur);
    EXPECT_EQ(nouvelle, -1);
    EXPECT_EQ(couleur, 0);
    detecterCouleur(b.e, 2, 1, nouvelle, couleur);
    EXPECT_EQ(nouvelle, 0);
    EXPECT_THROW(detecterCouleur(b.e, 8, 0, nouvelle, couleur), HorsTable);
    EXPECT_THROW(detecterCouleur(b.e, 0, 11, nouvelle, couleur), HorsTable);
}

TEST(Damier, compte_les_changements_rencontres) {
    struct Cas {
        const char* nom;
        float x, y, cap;
        int distance, attendu;
    };
    const Cas cas[] = {
        {"le bord 30 se lit en colonne 6, de la couleur de la colonne 0", 10, 10, 0, 21, 0},
        {"compte a x = 31", 10, 10, 0, 22, 1},
        {"le point d'arrivee n'est pas examine : x va jusqu'a 59", 10, 10, 0, 50, 1},
        {"le bord 60 se lit vrai et le compte est de deux", 10, 10, 0, 51, 2},
        {"colonne 6 : la rangee est toujours 0", 190, 10, 90, 200, 0},
        {"sur une rangee, chaque bord 30, 60, 90 compte a son tour", 10, 10, 90, 100, 3},
        {"hors de la table a droite, tout est en colonne 6", 215, 35, 90, 90, 0},
        {"vers 180, y monte d'un rien et la marche a lieu", 100, 10, 180, 50, 2},
        {"vers 270, l'arrivee est deja atteinte au depart", 100, 200, 270, 150, 0},
        {"une distance nulle", 10, 10, 0, 0, 0},
    };
    for (const Cas& c : cas)
        EXPECT_EQ(BancDamier().marcher(c.x, c.y, c.cap, c.distance), c.attendu) << c.nom;
}

TEST(Damier, toute_marche_donne_ce_que_donne_le_pas_a_pas) {
    BancDamier b;
    const DamierAuPasAPas temoin(b.e);
    std::mt19937 hasard(20260711);
    std::uniform_real_distribution<float> coordonnee(-40, 340);
    std::uniform_int_distribution<int> cap(-8, 800);
    int sans_fin = 0;
    for (int essai = 0; essai < 3000; ++essai) {
        // Whole headings and positions too: the edges are met exactly.
        const float x = essai % 3 == 0 ? std::round(coordonnee(hasard)) : coordonnee(hasard);
        const float y = essai % 3 == 0 ? std::round(coordonnee(hasard)) : coordonnee(hasard);
        b.e.Incidence = static_cast<float>(essai % 4 == 0 ? 90 * (cap(hasard) / 90) : cap(hasard));
        const double a = radians(b.e.Incidence);
        const int distance = essai % 400;
        // Now and then an end that the walk may never reach.
        const float ecart = essai % 50 == 0 ? 3.0F : 0.0F;
        const float xf = simple(x + distance * std::cos(a)) + ecart;
        const float yf = simple(y + distance * std::sin(a));
        const auto attendu = temoin.compter(x, y, xf, yf);
        b.e.NbreCarreaux = 5;
        EXPECT_EQ(predire_marche(b.e, x, y, xf, yf, std::cos(a), std::sin(a)), attendu.has_value());
        EXPECT_EQ(b.e.NbreCarreaux, 5 + attendu.value_or(0)) << x << " " << y << " " << distance;
        b.e.NbreCarreaux = 7; // the changes are added
        if (attendu) {
            calculer_nbre_carreaux(b.e, x, y, xf, yf);
            EXPECT_EQ(b.e.NbreCarreaux, 7 + *attendu);
        } else {
            ++sans_fin;
            EXPECT_THROW(calculer_nbre_carreaux(b.e, x, y, xf, yf), Debordement);
        }
    }
    EXPECT_GT(sans_fin, 5);
}

} // namespace
