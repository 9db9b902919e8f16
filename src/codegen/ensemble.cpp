#include "codegen/ensemble.h"

#include "base/erreurs.h"
#include "base/texte.h"
#include "codegen/apercu.h"
#include "codegen/avertissements.h"
#include "codegen/composition.h"

#include <algorithm>

namespace {

void exiger_des_noms(std::span<const FonctionAEcrire> fonctions) {
    std::vector<std::string> noms;
    for (const FonctionAEcrire& f : fonctions) {
        if (const std::string refus = refus_du_nom(f.nom); !refus.empty())
            throw ErreurExecution(refus);
        noms.push_back(minuscules(f.nom));
        if (std::ranges::count(noms, noms.back()) > 1)
            throw ErreurExecution("deux fonctions ne peuvent pas s'appeler « " + f.nom + " »");
    }
}

void ajouter(Ensemble& e, const std::filesystem::path& programme, const FonctionAEcrire& f) {
    const Demande demande{.depart = programme,
                          .entree = f.nom,
                          .cible = programme.string(),
                          .fonction = f.nom,
                          .menu = false,
                          .CheminCourant = {}};
    const Programme avant(e.octets);
    Composition c = composer(demande, avant, f.entree, [](std::string_view) { return true; });
    if (!c.erreur.empty())
        throw ErreurExecution(c.erreur);
    const Apercu apercu = preparer_apercu(demande, avant, f.entree, true);
    e.apercu += texte_apercu(apercu);
    if (apercu.ecrase)
        e.remplacees.push_back(f.nom);
    for (const std::string& phrase : apercu.avertissements)
        if (std::ranges::find(e.avertissements, phrase) == e.avertissements.end())
            e.avertissements.push_back(phrase);
    e.octets = std::move(c.cible);
}

} // namespace

Ensemble ecrire_fonctions(const std::filesystem::path& programme, std::string_view octets,
                          std::span<const FonctionAEcrire> fonctions) {
    exiger_des_noms(fonctions);
    Ensemble e;
    e.octets = octets;
    for (const FonctionAEcrire& f : fonctions)
        ajouter(e, programme, f);
    return e;
}
