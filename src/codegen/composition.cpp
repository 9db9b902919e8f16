#include "codegen/composition.h"

#include "base/erreurs.h"
#include "codegen/traduction.h"

namespace {

void verifier_fonction(const std::string& fonction) {
    if (fonction.find_first_of("\r\n") != std::string::npos)
        throw ErreurExecution("le nom de la fonction doit tenir sur une ligne");
}

// Banner, label, statements, Return; a bad value ends it and leaves its reason in `erreur`.
std::string sous_programme(const Demande& demande, std::string_view entree, std::string_view fin,
                           std::string& erreur) {
    std::string texte;
    texte.reserve(2 * entree.size() + 1024);
    for (const std::string& ligne : banniere())
        texte.append(ligne).append(fin);
    texte.append(demande.fonction).append(":").append(fin);
    try {
        LecteurMouvements lecteur(entree, demande.entree);
        while (const auto mouvement = lecteur.suivant())
            traduire(*mouvement, fin, texte);
        texte.append("\tReturn").append(fin);
    } catch (const ErreurExecution& e) {
        erreur = e.what();
    }
    return texte;
}

} // namespace

Composition composer(const Demande& demande, const Programme& depart, std::string_view entree,
                     const Repondre& repondre) {
    verifier_fonction(demande.fonction);
    const std::string_view fin_avant = fin_majoritaire(depart.octets()).value_or(RetourLigne);
    Composition c;
    c.retrait = retirer_fonction(depart, demande.fonction, repondre);
    if (demande.menu && !c.retrait.remplacee)
        c.menu = integrer_au_menu(depart, demande.depart, demande.fonction, fin_avant);
    c.depart = appliquer(depart, c.modifications());
    // Counted without the older subroutine, so that generating again gives the same file.
    const std::string_view fin = fin_majoritaire(c.depart).value_or(fin_avant);
    c.ajout = sous_programme(demande, entree, fin, c.erreur);
    c.cible = c.depart;
    c.cible.append(fin_manquante(c.depart, fin)).append(encoder(c.ajout, depart.encodage()));
    return c;
}
