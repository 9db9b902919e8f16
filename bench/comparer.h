#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

/// Runs `base` and `notre` in turns, in changing order, and reports the median time of each (in
/// microseconds) and their ratio: on a noisy machine only what was measured side by side compares.
template <typename Base, typename Notre>
void comparer(benchmark::State& state, Base base, Notre notre) {
    using Horloge = std::chrono::steady_clock;
    const auto duree = [](auto& f) {
        const auto debut = Horloge::now();
        f();
        return std::chrono::duration<double, std::micro>(Horloge::now() - debut).count();
    };
    const auto mediane = [](std::vector<double>& v) {
        const auto milieu = v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2);
        std::nth_element(v.begin(), milieu, v.end());
        return *milieu;
    };
    std::vector<double> temps_base;
    std::vector<double> temps_notre;
    bool base_d_abord = true;
    for ([[maybe_unused]] auto _ : state) {
        if (base_d_abord)
            temps_base.push_back(duree(base));
        temps_notre.push_back(duree(notre));
        if (!base_d_abord)
            temps_base.push_back(duree(base));
        base_d_abord = !base_d_abord;
    }
    const double b = mediane(temps_base);
    const double n = mediane(temps_notre);
    state.counters["base_us"] = b;
    state.counters["notre_us"] = n;
    state.counters["rapport"] = n / b;
}
