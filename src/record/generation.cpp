#include "record/generation.h"

#include "config/ecriture.h"
#include "sim/actions.h"

namespace {

void ajouter_entree(Ecrivain& fichier, int code, int p1, int p2) {
    const actions::Action* const action = actions::trouver_code(code);
    if (code == actions::code_carreaux) {
        fichier.ligne(actions::mots::carreaux, texte_entier(p1));
        return;
    }
    if (action == nullptr) {
        fichier.ligne("'*** PB remplissage fichier");
        return;
    }
    for (const actions::LigneGeneree& ligne : actions::lignes_generees(*action, p1, p2)) {
        if (ligne.mot.ends_with(':'))
            fichier.ligne(ligne.mot, texte_double15(ligne.valeur));
        else
            fichier.ligne(ligne.mot);
    }
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
        ajouter_entree(fichier, e.TableauAGenerer(j, 0), e.TableauAGenerer(j, 1),
                       e.TableauAGenerer(j, 2));
    return fichier.texte();
}

std::vector<std::string> mouvements_du_trajet(const Etat& e, Entier16 i) {
    Ecrivain fichier;
    for (int k = 1; k <= e.TrajNbActions(i) && !(e.TrajAction(i, k) == actions::FIN); ++k) {
        const actions::Action* const bouton = actions::trouver_bouton(e.TrajAction(i, k));
        if (bouton == nullptr)
            continue;
        // A trajectory has the angle of a curve first, the generation table its radius.
        const bool virage = bouton->genre == actions::Genre::arc;
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
