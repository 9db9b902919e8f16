#pragma once

#include "edition/formes.h"

#include <vector>

/// A chain of lines as it is drawn, point after point.
class LigneBrisee {
public:
    /// @returns true when the point ends the chain: its first point closes it, its last one leaves
    /// it open
    bool cliquer(Vecteur cm);
    /// Takes the last point back.
    void reprendre();
    bool vide() const { return points_.empty(); }
    const std::vector<Vecteur>& points() const { return points_; }
    /// Its lines, as a table's records.
    std::vector<Fiche> lignes() const;

private:
    std::vector<Vecteur> points_;
};
