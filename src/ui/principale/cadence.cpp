#include "ui/principale/cadence.h"

#include <algorithm>
#include <ctime>

void Cadence::demarrer(Duree periode, Instant maintenant) {
    periode_ = std::max(periode, Duree(1));
    retenir(maintenant);
}

// An event may come a little early; waiting for the next one would make pairs of ticks.
bool Cadence::echu(Instant maintenant) {
    if (maintenant - prochain_ > pause)
        prochain_ = maintenant;
    if (maintenant + periode_ / 2 < prochain_)
        return false;
    prochain_ += periode_;
    return true;
}

void Cadence::compter(Duree calcul) {
    prochain_ += std::max(calcul - periode_, Duree(0));
}

Cadence::Duree temps_de_calcul() {
    timespec t{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return std::chrono::seconds(t.tv_sec) + Cadence::Duree(t.tv_nsec);
}
