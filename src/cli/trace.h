#pragma once

#include "sim/etat.h"

#include <string>

/// The poses of a run as CSV: a header, then a row per tick per robot, "." as separator.
class Trace {
public:
    Trace();
    /// Adds a row for each of the robots 1..NbRobot.
    void ajouter(const Etat& e);
    const std::string& texte() const { return texte_; }

private:
    std::string texte_;
};
