// Any bytes as a PICBASIC file: every label listed is found again and shows a body, in which no
// more is understood than there are lines.

#include "codegen/etiquettes.h"
#include "codegen/lexique.h"
#include "codegen/relecture.h"

#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::size_t essayees = 20; // a body reads the whole file

void verifier(bool condition) {
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    const Programme programme(std::string(octets, octets + taille));
    std::size_t numero = 0;
    for (LignesProgramme lignes = programme.lignes(); const auto ligne = lignes.suivante();) {
        verifier(ligne->numero == ++numero && ligne->debut <= ligne->fin);
        verifier(debut_de_commentaire(ligne->texte) <= ligne->texte.size());
        noms_declares(ligne->texte);
    }
    const std::vector<Etiquette> etiquettes = lister_etiquettes(programme);
    for (std::size_t i = 0; i < etiquettes.size() && i < essayees; ++i) {
        const std::string& texte = etiquettes[i].texte;
        const auto rang = chercher_etiquette(etiquettes, texte);
        verifier(rang && *rang <= i && etiquettes[*rang].texte == texte);
        const auto seule = chercher_etiquette(programme, texte); // without the list
        verifier(seule && seule->ligne == etiquettes[*rang].ligne);
        const std::string corps = corps_de(programme, texte);
        verifier(majuscules(corps).starts_with("\r\n" + texte));
        verifier(etiquettes[i].ligne <= numero);
        const CodeRelu relu = relire_fonction(programme, texte.substr(0, texte.size() - 1));
        for (const MouvementRelu& mouvement : relu.mouvements)
            verifier(mouvement.ligne <= numero && mouvement.regle != nullptr);
    }
    return 0;
}
