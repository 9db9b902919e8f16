#include "analyse/essai.h"

#include "sim/orientation.h"

#include <algorithm>

namespace {

std::vector<int> numeros_des_actions(const DocumentTrajet& trajet) {
    std::vector<int> numeros;
    int derniere = 0;
    for (std::size_t i = 0; i < trajet.nombre(); ++i)
        numeros.push_back(trajet[i].cle == "INIT" ? 0 : ++derniere);
    return numeros;
}

std::vector<int> lignes_des_actions(const DocumentTrajet& trajet) {
    std::vector<int> lignes;
    for (std::size_t i = 0; i < trajet.nombre(); ++i)
        if (trajet[i].cle != "INIT")
            lignes.push_back(trajet.ligne(i));
    return lignes;
}

} // namespace

const ActionJouee* EssaiTrajet::jouee(std::size_t i) const {
    const auto& jouees = analyse.match.actions(robot);
    const auto numero = static_cast<std::size_t>(numeros[i]);
    return numero == 0 || numero > jouees.size() ? nullptr : &jouees[numero - 1];
}

PoseTick EssaiTrajet::avant(const DocumentTrajet& trajet, std::size_t i) const {
    if (numeros[i] == 0)
        return {trajet[i].v[0], trajet[i].v[1], trajet[i].v[2]};
    const ActionJouee* const action = jouee(i);
    return action != nullptr ? action->avant : analyse.match.poses(robot).back();
}

std::vector<const Constat*> EssaiTrajet::constats(const DocumentTrajet& trajet,
                                                  std::size_t i) const {
    std::vector<const Constat*> trouves;
    for (const Constat& c : analyse.constats)
        if (c.robot == robot && c.ligne == trajet.ligne(i))
            trouves.push_back(&c);
    return trouves;
}

std::unique_ptr<Etat> etat_des_fichiers(const Etat& etat) {
    auto copie = std::make_unique<Etat>(etat);
    if (copie->TableHorizontale) {
        vertical(*copie);
        copie->TableHorizontale = vrai16(false);
    }
    return copie;
}

EssaiTrajet essayer(const Etat& etat, const Provenance& provenance, const DocumentTrajet& trajet,
                    int robot) {
    const auto copie = std::make_unique<Etat>(etat);
    trajet.remplir(*copie, robot);
    copie->NbRobot = std::max<int>(copie->NbRobot, robot);
    Provenance ou = provenance;
    ou.lignes(robot) = lignes_des_actions(trajet);
    return {robot, analyser(*copie, ou), numeros_des_actions(trajet)};
}
