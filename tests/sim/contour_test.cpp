#include "sim/contour.h"
#include "sim/secours.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

struct Points {
    std::vector<double> x, y;
};

Points placer(const Contour& c, double x, double y, float cap) {
    Points p{std::vector<double>(c.nombre()), std::vector<double>(c.nombre())};
    Direction d;
    d.viser(cap);
    c.placer(x, y, d, p.x, p.y);
    return p;
}

TEST(Contour, un_point_devant_suit_le_cap) {
    const auto e = std::make_unique<Etat>();
    e->NbPoints(1) = 2;
    e->RobotDist(1, 1) = 10; // straight ahead
    e->RobotDist(1, 2) = 5;  // to the left
    e->RobotAngle(1, 2) = 1.5708F;
    const Contour c(*e, 1);
    EXPECT_EQ(c.rayon(), 10);
    struct Cas {
        float cap;
        double x1, y1, x2, y2;
    };
    for (const Cas& k : {Cas{0, 110, 50, 100, 55}, Cas{90, 100, 60, 95, 50},
                         Cas{-90, 100, 40, 105, 50}, Cas{540, 90, 50, 100, 45}}) {
        const Points p = placer(c, 100, 50, k.cap);
        EXPECT_NEAR(p.x[0], k.x1, 1e-3) << k.cap;
        EXPECT_NEAR(p.y[0], k.y1, 1e-3) << k.cap;
        EXPECT_NEAR(p.x[1], k.x2, 1e-3) << k.cap;
        EXPECT_NEAR(p.y[1], k.y2, 1e-3) << k.cap;
    }
}

TEST(Contour, est_celui_que_le_dessin_trace) {
    const auto e = std::make_unique<Etat>();
    Init_Robot_Old(*e);
    e->NbPoints(3) = 7; // paired with point 8, as when drawn
    for (const int i : {1, 3}) {
        const Contour c(*e, i);
        ASSERT_EQ(c.nombre(), 8U);
        for (int essai = 0; essai < 65; ++essai) {
            const float cap = -400 + 37.3F * static_cast<float>(essai);
            const Points p = placer(c, 12.5, -3, cap);
            for (int k = 1; k <= 8; ++k) {
                const double a = radians(cap) + e->RobotAngle(i, k);
                const auto n = static_cast<std::size_t>(k - 1);
                EXPECT_NEAR(p.x[n], 12.5 + e->RobotDist(i, k) * std::cos(a), 1e-11);
                EXPECT_NEAR(p.y[n], -3 + e->RobotDist(i, k) * std::sin(a), 1e-11);
            }
        }
    }
    e->NbPoints(2) = 101; // would need point 102
    EXPECT_THROW(Contour(*e, 2), HorsTable);
}

} // namespace
