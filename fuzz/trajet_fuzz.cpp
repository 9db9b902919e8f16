#include "base/texte.h"
#include "config/lecteur_trajet.h"

#include <memory>

// Two robots from one file: the parameters and the line counter are carried over.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto e = std::make_unique<Etat>();
    const std::string texte = en_utf8(std::string(octets, octets + taille));
    LecteurTrajet lecteur(*e);
    Entier16 NoLigne;
    try {
        for (int n = 1; n <= 2; ++n)
            lecteur.lire(texte, n, NoLigne);
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The only way out that a reader may take besides its end.
    }
    return 0;
}
