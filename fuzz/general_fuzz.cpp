#include "base/texte.h"
#include "config/lecteur_general.h"

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto e = std::make_unique<Etat>();
    Entier16 NoLigne;
    try {
        lire_general(en_utf8(std::string(octets, octets + taille)), *e, NoLigne);
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The only way out that a reader may take besides its end.
    }
    return 0;
}
