// Any bytes as a generation input file: statements or a refusal that names the line, and the moves
// come back from both.

#include "codegen/relecture.h"
#include "codegen/traduction.h"
#include "outils.h"

namespace {

std::size_t nombre_de_lignes(std::string_view texte) {
    std::size_t n = 0;
    for (Lignes lignes(texte); const auto ligne = lignes.suivante(); ++n)
        exiger(ligne->starts_with("\t'*** ") || ligne->starts_with("\tGosub ") ||
               ligne->starts_with("\tDelay ") || ligne->starts_with("\tVal_Action=") ||
               ligne->starts_with("\tNBRE_CARREAUX ="));
    return n;
}

} // namespace

CIBLE(traduction) {
    const std::string entree(octets, octets + taille);
    std::size_t mouvements = 0;
    std::string sortie;
    try {
        LecteurMouvements lecteur(entree, "entree.ini");
        for (; const auto mouvement = lecteur.suivant(); ++mouvements)
            traduire(*mouvement, "\r\n", sortie);
    } catch (const ErreurExecution& erreur) {
        exiger(std::string_view(erreur.what()).starts_with("entree.ini Ligne "));
    }
    const std::size_t lignes = nombre_de_lignes(sortie);
    exiger(lignes >= mouvements && lignes <= 2 * mouvements);
    const std::size_t relus = relire_entree(entree, "entree.ini").mouvements.size();
    const Programme programme("F:\r\n" + sortie + "\tReturn\r\n");
    exiger(relire_fonction(programme, "f").mouvements.size() == relus && relus <= mouvements);
    return 0;
}
