#include "edition/ligne_brisee.h"

#include "edition/outils.h"

bool LigneBrisee::cliquer(Vecteur cm) {
    if (vide() || (cm != points_.front() && cm != points_.back())) {
        points_.push_back(cm);
        return false;
    }
    if (cm != points_.back() && points_.size() > 2) // two points are closed already
        points_.push_back(cm);
    return true;
}

void LigneBrisee::reprendre() {
    if (!vide())
        points_.pop_back();
}

std::vector<Fiche> LigneBrisee::lignes() const {
    std::vector<Fiche> lignes;
    for (std::size_t i = 1; i < points_.size(); ++i)
        lignes.push_back(tracee("LN", FormeOutil::libre, points_[i - 1], points_[i]));
    return lignes;
}
