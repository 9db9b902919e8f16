#include "ui/commun/surface_qt.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace {

constexpr Couleur rouge = couleurs::rouge;
constexpr Couleur bleu = couleurs::bleu;

// A picture of 100 x 50 logical pixels; one cm is 10 across and 5 up.
QImage peindre(double densite, const std::function<void(Surface&)>& dessin) {
    QImage image((QSizeF(100, 50) * densite).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(densite);
    image.fill(Qt::white);
    QPainter peintre(&image);
    SurfaceQt surface(peintre, {100, 50});
    surface.coordonnees(0, 10, 10, 0);
    dessin(surface);
    return image;
}

struct Pixel {
    double x, y; ///< logical pixels
    Couleur attendu;
};

struct Cas {
    const char* nom;
    std::function<void(Surface&)> dessin;
    std::vector<Pixel> pixels;
};

TEST(SurfaceQtTest, chaque_primitive_tombe_a_sa_place_a_toutes_les_echelles) {
    const std::vector<Cas> cas{
        {"filled box, y upwards, corners in any order",
         [](Surface& s) {
             s.couleur_trait(rouge);
             s.boite_pleine(3, 4, 1, 2);
         },
         {{10.5, 30.5, rouge},
          {29.5, 39.5, rouge},
          {9, 35, couleurs::blanc},
          {20, 41, couleurs::blanc}}},
        {"neighbouring boxes leave no seam",
         [](Surface& s) {
             s.couleur_trait(rouge);
             s.boite_pleine(0, 0, 3.33, 10);
             s.boite_pleine(3.33, 0, 10, 10);
         },
         {{32.6, 20, rouge}, {33.4, 20, rouge}, {34, 20, rouge}}},
        {"a box without width is still seen",
         [](Surface& s) {
             s.couleur_trait(rouge);
             s.boite_pleine(5, 0, 5, 10);
         },
         {{50.2, 20, rouge}}},
        {"an outline is empty or filled",
         [](Surface& s) {
             s.couleur_fond(bleu);
             s.boite(1, 1, 3, 9, rouge);
             s.fond_plein(false);
             s.boite(6, 1, 8, 9, rouge);
         },
         {{20, 25, bleu}, {70, 25, couleurs::blanc}}},
        {"a thick line",
         [](Surface& s) {
             s.epaisseur(6);
             s.ligne(0, 5, 10, 5, rouge);
         },
         {{50, 23, rouge}, {50, 27, rouge}, {50, 31, couleurs::blanc}}},
        {"a disc is round in cm",
         [](Surface& s) {
             s.couleur_fond(bleu);
             s.cercle(5, 5, 2, rouge);
         },
         {{50, 25, bleu}, {66, 25, bleu}, {50, 18, bleu}, {50, 11, couleurs::blanc}}},
        {"an arc is never filled; its larger half-axis is the radius",
         [](Surface& s) {
             s.epaisseur(4);
             s.arc(5, 5, 4, rouge, 0, 6.28, 2);
         },
         {{50, 5, rouge}, {70, 25, rouge}, {50, 25, couleurs::blanc}, {90, 25, couleurs::blanc}}},
        {"a quarter of an arc turns anticlockwise; a flat one is a line",
         [](Surface& s) {
             s.epaisseur(4);
             s.arc(5, 5, 4, rouge, 0, 1.5708, 1);
             s.arc(2, 1, 1, bleu, 0, 6.28, 0);
         },
         {{90, 24, rouge}, {50, 5, rouge}, {10, 25, couleurs::blanc}, {20, 45, bleu}}},
        {"a translucent shape lets half of the floor through, a dot covers it again",
         [](Surface& s) {
             const std::vector<PointTable> carre{{1, 1}, {6, 1}, {6, 9}, {1, 9}};
             s.opacite(0.5);
             s.polygone(carre, rouge);
             s.opacite(1);
             s.repere({3, 5}, 1, bleu, "");
             s.epaisseur(4);
             s.chemin(carre, rouge);
         },
         {{50, 25, {255, 128, 128}}, {30, 25, bleu}, {60, 25, rouge}, {70, 25, couleurs::blanc}}},
        {"a text is about its middle",
         [](Surface& s) {
             s.texte({5, 5}, 40, rouge, "I");
         },
         {{50, 25, rouge}, {20, 25, couleurs::blanc}, {80, 25, couleurs::blanc}}},
        {"what is not a number is left out",
         [](Surface& s) {
             const double rien = std::numeric_limits<double>::quiet_NaN();
             s.ligne(rien, 0, 10, 10, rouge);
             s.cercle(5, 5, std::numeric_limits<double>::infinity(), rouge);
             s.arc(5, 5, 1, rouge, 0, 6, rien);
             s.repere({rien, 5}, 1, rouge, "");
             s.texte({5, rien}, 20, rouge, "I");
             s.polygone(std::vector<PointTable>{{0, 0}, {rien, 9}, {9, 9}}, rouge);
         },
         {{50, 25, couleurs::blanc}}}};
    for (const Cas& c : cas)
        for (const double densite : {1.0, 1.5, 2.0}) {
            const QImage image = peindre(densite, c.dessin);
            for (const Pixel& p : c.pixels) {
                const QColor vu = image.pixelColor(int(p.x * densite), int(p.y * densite));
                EXPECT_EQ(vu.name(), couleur_qt(p.attendu).name())
                    << c.nom << ", " << densite << ", (" << p.x << ", " << p.y << ")";
            }
        }
}

TEST(SurfaceQtTest, un_trait_pointille_laisse_des_jours) {
    const QImage image = peindre(1, [](Surface& s) {
        s.trait_pointille(true);
        s.ligne(0, 5, 10, 5, couleurs::noir);
    });
    int sombres = 0;
    for (int x = 0; x < 100; ++x)
        sombres +=
            image.pixelColor(x, 25).lightness() < 128 || image.pixelColor(x, 24).lightness() < 128;
    EXPECT_GT(sombres, 20);
    EXPECT_LT(sombres, 80);
}

} // namespace
