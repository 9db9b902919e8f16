#include "config/document_trajet.h"
#include "outils.h"

namespace {

// The same lines are refused before and after.
void exiger_relu(const DocumentTrajet& d, std::string_view ecrit) {
    const DocumentTrajet relu = DocumentTrajet::depuis(ecrit);
    exiger(relu.nombre() == d.nombre() && relu.incomprises().size() == d.incomprises().size());
    for (std::size_t i = 0; i < d.nombre(); ++i)
        exiger(relu[i] == d[i]);
}

} // namespace

// What was not changed is written as it was read; whatever is inserted, moved, replaced or taken
// out is read back.
CIBLE(trajet_document) {
    const std::string texte(octets, octets + taille);
    DocumentTrajet d = DocumentTrajet::depuis(texte);
    tenter([&] {
        exiger(d.ecrire() == texte);
        const std::size_t n = d.nombre();
        d.inserer(n / 2, {"VIRAVDR", {90, 10, 0, 0}, ""});
        exiger_relu(d, d.ecrire());
        d.deplacer_vers(0, n);
        d.remplacer(n / 3, {"BALISE GAU", {}, ""});
        exiger_relu(d, d.ecrire());
        d.retirer(n);
        exiger_relu(d, d.ecrire());
    });
    return 0;
}
