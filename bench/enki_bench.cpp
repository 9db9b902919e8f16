#include "banc_match.h"
#include "comparer.h"

#include <enki/PhysicalEngine.h>
#include <enki/robots/DifferentialWheeled.h>

#include <memory>
#include <vector>

namespace {

// A two-wheeled robot of the default robot's size.
class RobotEnki final : public Enki::DifferentialWheeled {
public:
    RobotEnki(double x, double y) : DifferentialWheeled(10, 100, 0) {
        setRectangular(20, 34, 10, 1000);
        pos = Enki::Point(x, y);
    }
};

// The whole default match against as many steps of Enki, a fast two-dimensional robot simulator,
// with as many robots: a robot-step at most 0.5 with 1 robot, 0.25 with 9. Enki computes
// collisions, this simulator does not: the comparison says what a student's laptop can do, not
// which is better.
void robot_pas_contre_enki(benchmark::State& state) {
    const auto robots = static_cast<int>(state.range(0));
    Banc<> b;
    charger_defaut(b, robots);
    Enki::World monde(200, 320);
    std::vector<std::unique_ptr<RobotEnki>> enki;
    for (int i = 1; i <= robots; ++i) {
        enki.push_back(std::make_unique<RobotEnki>(100, 30 * i));
        enki.back()->leftSpeed = 8 + i;
        enki.back()->rightSpeed = 9 + i;
        monde.addObject(enki.back().get());
    }
    constexpr int pas_du_match = dernier_tick(1);
    comparer(
        state,
        [&] {
            for (int pas = 0; pas < pas_du_match; ++pas)
                monde.step(0.01);
        },
        [&] { b.jouer(); });
    for (auto& robot : enki)
        monde.removeObject(robot.get());
}
BENCHMARK(robot_pas_contre_enki)->Arg(1)->Arg(9)->Unit(benchmark::kMicrosecond);

} // namespace
