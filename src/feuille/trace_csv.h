#pragma once

#include "sim/etat.h"

#include <string>

/// The poses of a run as CSV: a header, then a row per tick per robot, "." as separator.
class TraceCsv {
public:
    TraceCsv();
    /// Adds a row for each of the robots 1..NbRobot.
    void ajouter(const Etat& e);
    const std::string& texte() const { return texte_; }

private:
    std::string texte_;
};

/// The whole match that "Démarrer" would play from `e`, which is the caller's to lose (a copy). A
/// run-time error ends it.
std::string trace_csv(Etat& e);
