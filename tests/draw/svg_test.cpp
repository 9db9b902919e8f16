#include "draw/svg.h"

#include "outils/textes.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(SurfaceSvg, retourne_l_axe_des_y_et_garde_les_epaisseurs_en_pixels) {
    SurfaceSvg s(400, 600);
    s.coordonnees(-5, 325, 205, -5);
    s.couleur_trait({0, 128, 0});
    s.boite_pleine(10, 30, 0, 20);
    s.couleur_fond({255, 255, 0});
    s.cercle(1.00004, 2, 3, {255, 0, 0});
    s.trait_pointille(true);
    s.ligne(0, 0, 1.5, -2, {0, 0, 0});
    const std::string svg = s.document("a < b & c");
    for (
        const char* attendu :
        {R"(width="400" height="600" viewBox="-5 -325 210 330" preserveAspectRatio="none")",
         R"(<rect x="0" y="-30" width="10" height="10" fill="#008000" stroke="none"/>)",
         R"(<circle cx="1" cy="-2" r="3" fill="#ffff00" stroke="#ff0000" stroke-width="1")",
         R"(<line x1="0" y1="0" x2="1.5" y2="2" fill="none" stroke="#000000" stroke-width="1" stroke-dasharray="1 2")",
         "<title>a &lt; b &amp; c</title>"})
        EXPECT_TRUE(contient(svg, attendu));
}

TEST(SurfaceSvg, ecrit_chemins_surfaces_reperes_et_textes_avec_leur_opacite) {
    SurfaceSvg s(400, 600);
    s.coordonnees(0, 300, 200, 0); // half a centimetre a pixel
    const std::vector<PointTable> points{{1, 2}, {3, 4}, {5, 0}};
    s.chemin(points, {255, 0, 0});
    s.opacite(0.25);
    s.polygone(points, {0, 0, 255});
    s.repere({7, 8}, 2, {0, 0, 0}, "a < b");
    s.opacite(1);
    s.texte({10, 20}, 12, {0, 0, 0}, "12 & 13");
    const std::string svg = s.document("");
    for (
        const char* attendu :
        {R"(<polyline points="1,-2 3,-4 5,0 " fill="none" stroke="#ff0000" stroke-width="1" vector)",
         R"(<polygon points="1,-2 3,-4 5,0 " fill="#0000ff" stroke="none" opacity="0.25"/>)",
         R"(<circle cx="7" cy="-8" r="2" fill="#000000" stroke="none" opacity="0.25"><title>a &lt; b)",
         R"(<text x="10" y="-20" font-size="6" text-anchor="middle")",
         R"(fill="#000000" stroke="none">12 &amp; 13</text>)"})
        EXPECT_TRUE(contient(svg, attendu));
}

TEST(SurfaceSvg, un_arc_suit_l_ellipse_de_sa_boite) {
    SurfaceSvg s(1, 1);
    s.arc(20, 50, 30, {255, 255, 255}, 0, 6.28, 3); // 20 wide, 60 high
    EXPECT_TRUE(contient(s.document(""), R"(<path d="M30 -50 A10 30 0 1 0 )"));
    SurfaceSvg plate(1, 1);
    plate.arc(5, 5, 5, {255, 255, 255}, 0, 6.28, 0);
    EXPECT_TRUE(contient(plate.document(""), R"(<line x1="0" y1="-5" x2="10" y2="-5")"));
}

} // namespace
