// Any bytes as a hand-written program, behind a byte of choices (1: menu, 2: answer Non).
// Its lines keep their bytes, the new subroutine ends the target, and generating again with Oui
// changes nothing.

#include "codegen/apercu.h"
#include "codegen/composition.h"
#include "outils.h"

#include <vector>

namespace {

constexpr std::string_view entree = "#\nAVANCE:1\nx\n";

// Lines with their ends.
std::vector<std::string_view> decouper(std::string_view octets) {
    std::vector<std::string_view> lignes;
    while (!octets.empty()) {
        std::size_t fin = octets.find_first_of("\r\n");
        fin = fin == std::string_view::npos ? octets.size() : fin + 1;
        if (octets.substr(fin - 1).starts_with("\r\n"))
            ++fin;
        lignes.push_back(octets.substr(0, fin));
        octets.remove_prefix(fin);
    }
    return lignes;
}

std::string_view sans_fin(std::string_view ligne) {
    return ligne.substr(0, ligne.find_first_of("\r\n"));
}

bool est_une_constante(std::string_view ligne) {
    return contient_sans_casse(en_utf8(std::string(ligne)), "const num_menu_max");
}

// Every line of `petit`, byte for byte and in order, among those of `grand`. A last line may gain
// its line end, a constant its new value.
bool lignes_conservees(std::string_view petit, std::string_view grand) {
    const std::vector<std::string_view> lignes = decouper(grand);
    auto i = lignes.begin();
    for (const std::string_view ligne : decouper(petit)) {
        const bool ouverte = sans_fin(ligne).size() == ligne.size();
        const bool constante = est_une_constante(ligne);
        while (i != lignes.end() && *i != ligne && !(ouverte && sans_fin(*i) == ligne) &&
               !(constante && i->find("Const NUM_MENU_MAX = ") != std::string_view::npos))
            ++i;
        if (i == lignes.end())
            return false;
        ++i;
    }
    return true;
}

// Line ends that would join with a neighbour's, and a mark that a removal could bring to the front,
// read differently once the lines around them are gone.
bool se_lit_autrement_en_morceaux(std::string_view programme) {
    for (const std::string_view ligne : decouper(programme)) {
        if (ligne.ends_with('\r'))
            return true;
    }
    return programme.find("\xEF\xBB\xBF", 1) != std::string_view::npos;
}

void verifier_apercu(const Demande& demande, const Programme& depart, bool reponse) {
    std::size_t avant = 0;
    std::size_t apres = 0;
    for (const LigneApercu& ligne : preparer_apercu(demande, depart, entree, reponse).lignes) {
        exiger(ligne.avant == 0 || ligne.avant > avant);
        exiger(ligne.apres == 0 || ligne.apres > apres);
        avant = ligne.avant == 0 ? avant : ligne.avant;
        apres = ligne.apres == 0 ? apres : ligne.apres;
    }
}

void essayer(const Demande& demande, const Programme& depart, bool reponse) {
    const auto repondre = [reponse](std::string_view) { return reponse; };
    const Composition c = composer(demande, depart, entree, repondre);
    exiger(c.cible.starts_with(c.depart));
    exiger(c.cible.ends_with(encoder(c.ajout, depart.encodage())));
    exiger(reponse || !c.retrait.remplacee);
    verifier_apercu(demande, depart, reponse);
    if (se_lit_autrement_en_morceaux(depart.octets()))
        return;
    if (c.retrait.remplacee)
        exiger(lignes_conservees(c.depart, depart.octets()));
    else
        exiger(lignes_conservees(depart.octets(), c.depart));
    if (!reponse)
        return;
    const Composition encore = composer(demande, Programme(c.cible), entree, repondre);
    exiger(encore.cible == c.cible);
}

} // namespace

CIBLE(retrait) {
    if (taille == 0)
        return 0;
    Demande demande;
    demande.fonction = "F";
    demande.menu = (octets[0] & 1U) != 0;
    const bool reponse = (octets[0] & 2U) == 0;
    const Programme depart(std::string(octets + 1, octets + taille));
    try {
        essayer(demande, depart, reponse);
    } catch (const ErreurExecution&) {
        exiger(demande.menu); // an unreadable constant
    }
    return 0;
}
