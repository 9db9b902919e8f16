#pragma once

#include "base/erreurs.h"

#include <array>
#include <cstddef>
#include <span>

[[noreturn]] void lever_HorsTable(long long indice, long long dernier);

/// Fixed table with slots 0..Dernier. Slot 0 exists and is never written: counts start at slot 1.
/// @throws HorsTable for any other index
template <typename T, int Dernier>
class Tableau {
public:
    static constexpr int dernier = Dernier;

    constexpr T& operator()(int i) { return cases_[verifie(i)]; }
    constexpr const T& operator()(int i) const { return cases_[verifie(i)]; }
    /// Slots 1..n, their bounds checked once: for the loops of every tick.
    constexpr std::span<T> premiers(int n) { return {cases_.data() + 1, verifie(n)}; }
    constexpr std::span<const T> premiers(int n) const { return {cases_.data() + 1, verifie(n)}; }
    constexpr void remplir(const T& valeur) { cases_.fill(valeur); }

private:
    static constexpr std::size_t verifie(int i) {
        if (i < 0 || i > Dernier) [[unlikely]]
            lever_HorsTable(i, Dernier);
        return static_cast<std::size_t>(i);
    }

    std::array<T, static_cast<std::size_t>(Dernier) + 1> cases_{};
};

/// Fixed table of two dimensions, slots 0..Dernier1 by 0..Dernier2: table(i, k).
template <typename T, int Dernier1, int Dernier2>
class Tableau2 {
public:
    constexpr T& operator()(int i, int k) { return lignes_(i)(k); }
    constexpr const T& operator()(int i, int k) const { return lignes_(i)(k); }

private:
    Tableau<Tableau<T, Dernier2>, Dernier1> lignes_;
};
