#include "base/texte.h"
#include "config/lecteur_table.h"

#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto e = std::make_unique<Etat>();
    const std::string texte = en_utf8(std::string(octets, octets + taille));
    Entier16 NoLigne;
    vider_table(*e);
    try {
        // A caption at most doubles its line.
        const auto nommer = [&](std::string_view nom) {
            if (nom.size() > 2 * texte.size())
                std::abort();
        };
        lire_table(texte, *e, nommer, NoLigne);
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The only way out that a reader may take besides its end.
    }
    if (e->NbZones > 100 || e->NbPions > 100 || e->NbBlocs > 10)
        std::abort();
    return 0;
}
