#pragma once

#include "analyse/analyse.h"
#include "feuille/fichiers.h"
#include "feuille/placement.h"

#include <string>
#include <vector>

/// One line of a robot's plan.
struct ActionDeFeuille {
    std::string numero; ///< "3"
    std::string texte;  ///< "VirAvDr 90° rayon 30 cm"
    std::string temps;  ///< "12,34 → 15,60"; "jamais atteinte"
    std::string pose;   ///< "180,0 ; 30,0 ; 90,0°", at its end
};

struct PlanDeFeuille {
    std::string titre; ///< "Robot 1 : fin à 42,18 s, marge 47,82 s"
    std::vector<ActionDeFeuille> actions;
};

/// What the match sheet says, in words.
struct Feuille {
    std::string projet;
    std::string verdict;
    std::string date; ///< of the sheet
    std::vector<Placement> placements;
    std::vector<PlanDeFeuille> plans;
    std::vector<std::string> constats;
    std::vector<FichierDeFeuille> fichiers;
    double largeur = 0, hauteur = 0; ///< of the table with its margin, cm
};

/// @param e  the state that was analysed
Feuille feuille_du_match(const Etat& e, const Analyse& a, std::vector<FichierDeFeuille> fichiers,
                         std::string date);
