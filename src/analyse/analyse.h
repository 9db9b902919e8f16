#pragma once

#include "analyse/resultat.h"
#include "config/projet.h"

#include <memory>
#include <vector>

Provenance provenance_de(const Projet& projet);
/// What the readers of a project complained about, a finding each.
std::vector<Constat> constats_de_lecture(const Projet& projet);

/// Plays the match of `etat`, with its settings, and looks for all that the team should know. The
/// state is copied: nothing of it changes.
/// @param connus  findings of the caller's own, to be sorted in
Analyse analyser(const Etat& etat, const Provenance& provenance, std::vector<Constat> connus = {});
/// Fills `ecarts`, for whoever shows them: with nine robots it takes longer than all the rest.
/// @param etat  the one that was analysed
void mesurer_ecarts(const Etat& etat, Analyse& a);
