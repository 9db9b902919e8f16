#include "ui/principale/cadence.h"

#include <algorithm>
#include <ctime>

void Cadence::demarrer(Duree periode, Instant maintenant) {
    reelle_ = periode;
    changer_vitesse(vitesse_, maintenant);
}

void Cadence::changer_vitesse(double vitesse, Instant maintenant) {
    vitesse_ = vitesse;
    const Duree periode =
        vitesse > 0 ? std::chrono::duration_cast<Duree>(reelle_ / vitesse) : Duree(0);
    periode_ = std::max(periode, Duree(1));
    retenir(maintenant);
}

// A screen shows no more than this.
std::chrono::milliseconds Cadence::intervalle() const {
    constexpr std::chrono::milliseconds le_plus_court(10);
    return std::max(le_plus_court, std::chrono::round<std::chrono::milliseconds>(periode_));
}

// An event may come a little early; waiting for the next one would make pairs of ticks.
bool Cadence::echu(Instant maintenant, int joues, Duree calcul) {
    const bool plus_vite = periode_ < reelle_;
    if (joues >= par_evenement && (!plus_vite || calcul > budget))
        return false;
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
