#include "record/generation.h"

#include "config/ecriture.h"
#include "record/actions_console.h"
#include "sim/actions.h"

#include <algorithm>
#include <cmath>

namespace {

// A curve of radius R and angle A becomes a straight run R sin A, a quarter turn to its side and a
// straight run (1 - cos A) R. Deliberate: A, recorded in degrees, is taken as radians.
void ajouter_virage(Ecrivain& fichier, std::string_view sens, std::string_view cote, int rayon,
                    int angle) {
    const double a = rayon * std::sin(double(angle));
    const double b = (1 - std::cos(double(angle))) * rayon;
    fichier.ligne(sens, texte_double15(a));
    fichier.ligne(cote, "90");
    fichier.ligne(sens, texte_double15(b));
}

void ajouter_entree(Ecrivain& fichier, Code code, int p1, int p2) {
    const TexteCourt valeur = texte_entier(p1);
    switch (code) {
    case Code::avance:
        fichier.ligne("AVANCE:", valeur);
        return;
    case Code::recule:
        fichier.ligne("RECULE:", valeur);
        return;
    // Deliberate: turns on the spot come out crossed.
    case Code::gauche:
        fichier.ligne("DROITE:", valeur);
        return;
    case Code::droite:
        fichier.ligne("GAUCHE:", valeur);
        return;
    case Code::viravga:
        return ajouter_virage(fichier, "AVANCE:", "GAUCHE:", p1, p2);
    case Code::viravdr:
        return ajouter_virage(fichier, "AVANCE:", "DROITE:", p1, p2);
    case Code::virarga:
        return ajouter_virage(fichier, "RECULE:", "GAUCHE:", p1, p2);
    case Code::virardr:
        return ajouter_virage(fichier, "RECULE:", "DROITE:", p1, p2);
    case Code::pause:
        fichier.ligne("DELAY :", valeur);
        return;
    case Code::balise_droite:
        fichier.ligne("BALDROITE");
        return;
    case Code::balise_gauche:
        fichier.ligne("BALGAUCHE");
        return;
    case Code::carreaux:
        fichier.ligne("CARREAUX:", valeur);
        return;
    }
    fichier.ligne("'*** PB remplissage fichier");
}

// The button that records an action of a trajectory; null for what none records ("INIT").
const ActionConsole* bouton_de(const Nom10& action) {
    const auto* const trouve =
        std::find_if(actions_console.begin(), actions_console.end(),
                     [&](const ActionConsole& bouton) { return Nom10(bouton.nom) == action; });
    return trouve == actions_console.end() ? nullptr : trouve;
}

} // namespace

std::string texte_generation(const Etat& e, const std::string& nom_de_fichier) {
    Ecrivain fichier;
    fichier.entete(nom_de_fichier);
    fichier.ligne();
    fichier.ligne(
        "# Fichier de description du déplacement du robot: POUR GENERATION DU CODE PICBASIC.");
    fichier.ligne("#");
    for (int j = 0; j <= actions_max && e.TableauAGenerer(j, 0) != 0; ++j)
        ajouter_entree(fichier, Code{e.TableauAGenerer(j, 0)}, e.TableauAGenerer(j, 1),
                       e.TableauAGenerer(j, 2));
    return fichier.texte();
}

std::vector<std::string> mouvements_du_trajet(const Etat& e, Entier16 i) {
    Ecrivain fichier;
    for (int k = 1; k <= e.TrajNbActions(i) && !(e.TrajAction(i, k) == actions::FIN); ++k) {
        const ActionConsole* const bouton = bouton_de(e.TrajAction(i, k));
        if (bouton == nullptr)
            continue;
        // A trajectory has the angle of a curve first, the generation table its radius.
        const bool virage = bouton->parametres == Parametres::rayon_et_angle;
        const int p1 = e.TrajParam1(i, k);
        const int p2 = e.TrajParam2(i, k);
        ajouter_entree(fichier, bouton->code, virage ? p2 : p1, virage ? p1 : p2);
    }
    std::vector<std::string> mouvements;
    Lignes lignes(fichier.texte());
    while (const auto ligne = lignes.suivante())
        mouvements.emplace_back(*ligne);
    return mouvements;
}
