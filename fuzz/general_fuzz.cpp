#include "config/lecteur_general.h"
#include "outils.h"

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto e = std::make_unique<Etat>();
    Entier16 NoLigne;
    tenter([&] { lire_general(texte_lu(octets, taille), *e, NoLigne); });
    return 0;
}
