#include "record/generation.h"

#include "record/actions_console.h"
#include "record/trajet.h"

#include <cmath>

namespace {

void ajouter_ligne(std::string& texte, std::string_view mot, std::string_view valeur = {}) {
    texte.append(mot).append(valeur).append(RetourLigne);
}

// A curve of radius R and angle A becomes a straight run R sin A, a quarter turn to its side and a
// straight run (1 - cos A) R. Deliberate: A, recorded in degrees, is taken as radians.
void ajouter_virage(std::string& texte, std::string_view sens, std::string_view cote, int rayon,
                    int angle) {
    const double a = rayon * std::sin(double(angle));
    const double b = (1 - std::cos(double(angle))) * rayon;
    ajouter_ligne(texte, sens, texte_double15(a));
    ajouter_ligne(texte, cote, "90");
    ajouter_ligne(texte, sens, texte_double15(b));
}

void ajouter_entree(std::string& texte, Code code, int p1, int p2) {
    const TexteCourt valeur = texte_entier(p1);
    switch (code) {
    case Code::avance:
        return ajouter_ligne(texte, "AVANCE:", valeur);
    case Code::recule:
        return ajouter_ligne(texte, "RECULE:", valeur);
    // Deliberate: turns on the spot come out crossed.
    case Code::gauche:
        return ajouter_ligne(texte, "DROITE:", valeur);
    case Code::droite:
        return ajouter_ligne(texte, "GAUCHE:", valeur);
    case Code::viravga:
        return ajouter_virage(texte, "AVANCE:", "GAUCHE:", p1, p2);
    case Code::viravdr:
        return ajouter_virage(texte, "AVANCE:", "DROITE:", p1, p2);
    case Code::virarga:
        return ajouter_virage(texte, "RECULE:", "GAUCHE:", p1, p2);
    case Code::virardr:
        return ajouter_virage(texte, "RECULE:", "DROITE:", p1, p2);
    case Code::pause:
        return ajouter_ligne(texte, "DELAY :", valeur);
    case Code::balise_droite:
        return ajouter_ligne(texte, "BALDROITE");
    case Code::balise_gauche:
        return ajouter_ligne(texte, "BALGAUCHE");
    case Code::carreaux:
        return ajouter_ligne(texte, "CARREAUX:", valeur);
    }
    ajouter_ligne(texte, "'*** PB remplissage fichier");
}

} // namespace

std::string texte_generation(const Etat& e, const std::string& nom_de_fichier) {
    std::string texte = entete_enregistrement(nom_de_fichier);
    ajouter_ligne(texte, "");
    ajouter_ligne(
        texte,
        "# Fichier de description du déplacement du robot: POUR GENERATION DU CODE PICBASIC.");
    ajouter_ligne(texte, "#");
    for (int j = 0; j <= actions_max && e.TableauAGenerer(j, 0) != 0; ++j)
        ajouter_entree(texte, Code{e.TableauAGenerer(j, 0)}, e.TableauAGenerer(j, 1),
                       e.TableauAGenerer(j, 2));
    return texte;
}
