#include "record/trajet.h"

#include "sim/actions.h"

#include <algorithm>
#include <initializer_list>

namespace {

bool parmi(const Nom10& action, std::initializer_list<Nom10> noms) {
    return std::find(noms.begin(), noms.end(), action) != noms.end();
}

// The padding stays in the line, before the comma: "AVANCE    ,120".
void ajouter_action(std::string& texte, const Nom10& N, int param1, int param2) {
    using namespace actions;
    const bool a_une_valeur = parmi(N, {PAUSE, AVANCE, RECULE, DROITE, GAUCHE});
    const bool est_balise = parmi(N, {BG, BD, BALISE_DRO, BALISE_GAU});
    const bool est_virage = parmi(N, {VIRAVDR, VIRAVGA, VIRARDR, VIRARGA});
    if (!a_une_valeur && !est_balise && !est_virage)
        return;
    texte += N.vue();
    if (a_une_valeur || est_virage)
        texte.append(",").append(texte_entier(param1).vue());
    if (est_virage)
        texte.append(",").append(texte_entier(param2).vue());
    texte += RetourLigne;
}

} // namespace

std::string entete_enregistrement(const std::string& nom_de_fichier) {
    std::string texte = "# Fichier " + nom_de_fichier + "réalisé par " TAVOLMEX_CONTACT;
    texte += RetourLigne;
    texte += "# Projet Ardanel. Equipe Brindalo";
    texte += RetourLigne;
    texte += "# Site : " TAVOLMEX_SITE;
    texte += RetourLigne;
    return texte;
}

std::string texte_trajet(const Etat& e, Entier16 i, const std::string& nom_de_fichier) {
    std::string texte = entete_enregistrement(nom_de_fichier);
    for (const char* const ligne : {"", "# Fichier de description du déplacement du robot.", "#",
                                    "# Description du fichier dans le document Word", "#"})
        texte.append(ligne).append(RetourLigne);
    texte += "Init";
    for (const float valeur : {e.XInit(i), e.YInit(i), e.CapInit(i)})
        texte.append(",").append(texte_simple(valeur).vue());
    texte += RetourLigne;
    for (int j = 1; j <= e.TrajNbActions(i); ++j)
        ajouter_action(texte, e.TrajAction(i, j), e.TrajParam1(i, j), e.TrajParam2(i, j));
    texte.append(actions::FIN.sans_blancs()).append(RetourLigne);
    return texte;
}
