#include "config/document_robot.h"
#include "config/document_table.h"
#include "outils.h"

namespace {

/// What was not changed is written as it was read; after one change the rest still is.
template <typename Doc>
void essayer(std::string_view octets) {
    Doc d = Doc::depuis(octets);
    const std::vector<int> incomprises = d.incomprises();
    tenter([&] { // a file that the simulator's reader would refuse is not written
        exiger(d.ecrire() == octets);
        if (d.nombre() == 0)
            return;
        d.remplacer(0, d[d.nombre() / 2]);
        const std::string ecrit = d.ecrire();
        const Doc relu = Doc::depuis(ecrit);
        exiger(relu.nombre() == d.nombre() && relu.incomprises().size() == incomprises.size());
    });
}

} // namespace

CIBLE(document) {
    const std::string texte(octets, octets + taille);
    essayer<DocumentTable>(texte);
    essayer<DocumentRobot>(texte);
    return 0;
}
