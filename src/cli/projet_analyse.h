#pragma once

#include "analyse/analyse.h"
#include "cli/simulation.h"

#include <memory>

/// A project read as it is and its match played; nothing is installed or changed. What the readers
/// complain about is told, and among the findings.
class ProjetAnalyse {
public:
    explicit ProjetAnalyse(const ChoixDeLigne& choix);

    const Etat& etat() const { return *etat_; }
    const Projet& projet() const { return projet_; }
    Analyse& analyse() { return analyse_; }
    /// 1 when something was told.
    int code_de_sortie() const { return fenetres_.code_de_sortie(); }

private:
    std::unique_ptr<Etat> etat_;
    FenetresTerminal fenetres_;
    Projet projet_;
    Analyse analyse_;
};
