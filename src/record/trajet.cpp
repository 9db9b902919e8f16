#include "record/trajet.h"

#include "config/ecriture.h"
#include "sim/actions.h"

#include <array>

namespace {

// The padding stays in the line, before the comma: "AVANCE    ,120".
void ecrire_action(Ecrivain& fichier, const Nom10& N, int param1, int param2) {
    using actions::Genre;
    const actions::Action* const action = actions::trouver(N);
    if (action == nullptr || action->genre == Genre::fin || action->genre == Genre::depart)
        return;
    const std::array valeurs{param1, param2};
    std::string ligne(N.vue());
    for (int k = 0; k < action->nb_parametres(); ++k)
        (ligne += ',').append(texte_entier(valeurs.at(static_cast<std::size_t>(k))));
    fichier.ligne(ligne);
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
