#pragma once

#include <chrono>

/// Says when the ticks of the match's clock are due, whenever the system delivers its events: one
/// that comes late brings several ticks, so that 90 s of match take 90 s, or what its speed makes
/// of them.
class Cadence {
public:
    using Duree = std::chrono::nanoseconds;
    using Instant = std::chrono::steady_clock::time_point;

    /// More than this between a tick and its turn is a machine that slept: not caught up.
    static constexpr Duree pause = std::chrono::seconds(1);
    /// Ticks that one event may always bring; the next events bring what is left.
    static constexpr int par_evenement = 8;
    /// Faster than the match's own time an event brings more, as long as they take no more than
    /// this: the window is painted between two events.
    static constexpr Duree budget = std::chrono::milliseconds(12);

    /// The first tick is due one period from now.
    /// @param periode  of the match's own time
    void demarrer(Duree periode, Instant maintenant);
    /// @param vitesse  times the match's own; 0: as fast as the machine allows
    void changer_vitesse(double vitesse, Instant maintenant);
    double vitesse() const { return vitesse_; }
    /// What to ask of the system between two events.
    std::chrono::milliseconds intervalle() const;
    /// The clock is held: nothing is due before one period from now.
    void retenir(Instant maintenant) { prochain_ = maintenant + periode_; }
    /// True when a tick is due, which then counts as played.
    /// @param joues, calcul  ticks that this event has brought so far, and what they took
    bool echu(Instant maintenant, int joues = 0, Duree calcul = {});
    /// The processor's time that a tick took: what exceeds the period delays those that follow.
    void compter(Duree calcul);

private:
    Duree reelle_{1}; ///< of the match's own time
    double vitesse_ = 1;
    Duree periode_{1};
    Instant prochain_;
};

/// The processor's time that this thread has used.
Cadence::Duree temps_de_calcul();
