#include "banc_match.h"
#include "comparer.h"

#include "analyse/analyse.h"

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

} // namespace
