#include "record/trajet.h"

#include "config/ecriture.h"
#include "sim/actions.h"

#include <algorithm>
#include <initializer_list>

namespace {

bool parmi(const Nom10& action, std::initializer_list<Nom10> noms) {
    return std::find(noms.begin(), noms.end(), action) != noms.end();
}

// The padding stays in the line, before the comma: "AVANCE    ,120".
void ecrire_action(Ecrivain& fichier, const Nom10& N, int param1, int param2) {
    using namespace actions;
    if (parmi(N, {PAUSE, AVANCE, RECULE, DROITE, GAUCHE}))
        fichier.ligne(N.vue(), ",", texte_entier(param1));
    else if (parmi(N, {BG, BD, BALISE_DRO, BALISE_GAU}))
        fichier.ligne(N.vue());
    else if (parmi(N, {VIRAVDR, VIRAVGA, VIRARDR, VIRARGA}))
        fichier.ligne(N.vue(), ",", texte_entier(param1), ",", texte_entier(param2));
}

} // namespace

std::string texte_trajet(const Etat& e, Entier16 i, const std::string& nom_de_fichier) {
    Ecrivain fichier;
    fichier.entete(nom_de_fichier);
    fichier.ligne();
    fichier.description("Fichier de description du déplacement du robot.", "le document Word");
    fichier.ligne("Init,", texte_simple(e.XInit(i)), ",", texte_simple(e.YInit(i)), ",",
                  texte_simple(e.CapInit(i)));
    for (int j = 1; j <= e.TrajNbActions(i); ++j)
        ecrire_action(fichier, e.TrajAction(i, j), e.TrajParam1(i, j), e.TrajParam2(i, j));
    fichier.ligne(actions::FIN.sans_blancs());
    return fichier.texte();
}
