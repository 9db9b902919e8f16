#pragma once

#include <chrono>

/// Says when the ticks of the match's clock are due, whenever the system delivers its events: one
/// that comes late brings several ticks, so that 90 s of match take 90 s.
class Cadence {
public:
    using Duree = std::chrono::nanoseconds;
    using Instant = std::chrono::steady_clock::time_point;

    /// More than this between a tick and its turn is a machine that slept: not caught up.
    static constexpr Duree pause = std::chrono::seconds(1);
    /// Ticks that one event brings at most; the next events bring what is left.
    static constexpr int par_evenement = 8;

    /// The first tick is due one period from now.
    void demarrer(Duree periode, Instant maintenant);
    /// The clock is held: nothing is due before one period from now.
    void retenir(Instant maintenant) { prochain_ = maintenant + periode_; }
    /// True when a tick is due, which then counts as played.
    bool echu(Instant maintenant);
    /// The processor's time that a tick took: what exceeds the period delays those that follow.
    void compter(Duree calcul);

private:
    Duree periode_{1};
    Instant prochain_;
};

/// The processor's time that this thread has used.
Cadence::Duree temps_de_calcul();
