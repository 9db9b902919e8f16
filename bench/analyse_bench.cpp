#include "banc_match.h"
#include "comparer.h"

#include "analyse/analyse.h"

#include <algorithm>
#include <thread>
#include <vector>

namespace {

// The whole match computed with every pose kept (state copied), against the bare match of the same
// engine: at most 1.3.
void match_calcule(benchmark::State& state) {
    Banc<> b;
    charger_defaut(b, static_cast<int>(state.range(0)));
    const auto copie = std::make_unique<Etat>();
    comparer(
        state, [&] { b.jouer(); },
        [&] {
            *copie = b.e;
            benchmark::DoNotOptimize(calculer_match(*copie));
        });
}
BENCHMARK(match_calcule)->Arg(1)->Arg(9)->Unit(benchmark::kMicrosecond);

// With all findings, the second time step included: at most 3.
void match_analyse(benchmark::State& state) {
    Banc<> b;
    charger_defaut(b, static_cast<int>(state.range(0)));
    const Provenance provenance;
    comparer(
        state, [&] { b.jouer(); }, [&] { benchmark::DoNotOptimize(analyser(b.e, provenance)); });
}
BENCHMARK(match_analyse)->Arg(1)->Arg(9)->Unit(benchmark::kMicrosecond);

constexpr std::size_t matchs = 100;
using Resultats = std::vector<MatchCalcule>;

// Every match from a start pose of its own, on a state of its own.
void jouer_de(const Etat& depart, Resultats& resultats, std::size_t premier, std::size_t fin) {
    const auto e = std::make_unique<Etat>();
    for (std::size_t i = premier; i < fin; ++i) {
        *e = depart;
        e->XInit(1) = e->XRobot(1) = static_cast<float>(i);
        resultats[i] = calculer_match(*e);
    }
}

bool memes_poses(const Resultats& a, const Resultats& b) {
    return std::equal(a.begin(), a.end(), b.begin(), [](const auto& m, const auto& n) {
        return m.poses(1) == n.poses(1) && m.NbreCarreaux == n.NbreCarreaux;
    });
}

// A hundred independent matches by two threads, against one: at most 0.53, and the same bits.
void matchs_a_deux(benchmark::State& state) {
    Banc<> b;
    charger_defaut(b, 1);
    Resultats seul(matchs);
    Resultats a_deux(matchs);
    comparer(
        state, [&] { jouer_de(b.e, seul, 0, matchs); },
        [&] {
            std::thread autre([&] { jouer_de(b.e, a_deux, 0, matchs / 2); });
            jouer_de(b.e, a_deux, matchs / 2, matchs);
            autre.join();
        });
    if (!memes_poses(seul, a_deux))
        state.SkipWithError("two threads give other poses");
}
BENCHMARK(matchs_a_deux)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(4);

} // namespace
