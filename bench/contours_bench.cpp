#include "banc_match.h"
#include "comparer.h"

#include "draw/robot.h"
#include "draw/surface_vide.h"
#include "sim/contour.h"

#include <vector>

namespace {

constexpr int robots = 9;

struct Pose {
    float x, y, cap;
};

// Every pose of the default match, tick by tick, robot by robot.
class FenetresPoses final : public FenetresBanc {
public:
    using FenetresBanc::FenetresBanc;
    void apres_actions() override {
        for (int i = 1; i <= e.NbRobot; ++i)
            poses.push_back({e.XRobot(i), e.YRobot(i), e.CapRobot(i)});
    }
    std::vector<Pose> poses;
};

// 9 x 9,001 outlines from their cartesian form (notre_us: under 2000) against the polar arithmetic
// of the drawing.
void contours_du_match(benchmark::State& state) {
    Banc<FenetresPoses> b;
    charger_defaut(b, robots);
    b.jouer();
    std::vector<Contour> contours;
    for (int i = 1; i <= robots; ++i)
        contours.emplace_back(b.e, i);
    std::vector<Direction> directions(robots);
    std::vector<double> x(points_max);
    std::vector<double> y(points_max);
    SurfaceVide vide;
    const auto polaire = [&] {
        for (std::size_t n = 0; n < b.f.poses.size(); ++n) {
            const Pose& p = b.f.poses[n];
            const int i = static_cast<int>(n % robots) + 1;
            b.e.XRobot(i) = p.x;
            b.e.YRobot(i) = p.y;
            b.e.CapRobot(i) = p.cap;
            if (i == robots)
                peindre_robots(b.e, vide);
        }
    };
    const auto cartesien = [&] {
        for (std::size_t n = 0; n < b.f.poses.size(); ++n) {
            const Pose& p = b.f.poses[n];
            Direction& d = directions[n % robots];
            d.viser(p.cap);
            contours[n % robots].placer(p.x, p.y, d, x, y);
            benchmark::DoNotOptimize(x.data());
            benchmark::DoNotOptimize(y.data());
            benchmark::ClobberMemory();
        }
    };
    comparer(state, polaire, cartesien);
}
BENCHMARK(contours_du_match)->Unit(benchmark::kMicrosecond);

} // namespace
