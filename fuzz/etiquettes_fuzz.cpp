// Any bytes as a PICBASIC file: every label listed is found again and shows a body, in which no
// more is understood than there are lines.

#include "codegen/etiquettes.h"
#include "codegen/lexique.h"
#include "codegen/relecture.h"
#include "outils.h"

namespace {

constexpr std::size_t essayees = 20; // a body reads the whole file

} // namespace

CIBLE(etiquettes) {
    const Programme programme(std::string(octets, octets + taille));
    std::size_t numero = 0;
    for (LignesProgramme lignes = programme.lignes(); const auto ligne = lignes.suivante();) {
        exiger(ligne->numero == ++numero && ligne->debut <= ligne->fin);
        exiger(debut_de_commentaire(ligne->texte) <= ligne->texte.size());
        noms_declares(ligne->texte);
    }
    const std::vector<Etiquette> etiquettes = lister_etiquettes(programme);
    for (std::size_t i = 0; i < etiquettes.size() && i < essayees; ++i) {
        const std::string& texte = etiquettes[i].texte;
        const auto rang = chercher_etiquette(etiquettes, texte);
        exiger(rang && *rang <= i && etiquettes[*rang].texte == texte);
        const auto seule = chercher_etiquette(programme, texte); // without the list
        exiger(seule && seule->ligne == etiquettes[*rang].ligne);
        const std::string corps = corps_de(programme, texte);
        exiger(majuscules(corps).starts_with("\r\n" + texte));
        exiger(etiquettes[i].ligne <= numero);
        const CodeRelu relu = relire_fonction(programme, texte.substr(0, texte.size() - 1));
        for (const MouvementRelu& mouvement : relu.mouvements)
            exiger(mouvement.ligne <= numero && mouvement.regle != nullptr);
    }
    return 0;
}
