// Replays the seed files of a fuzz target where libFuzzer is not there.

#include "base/fichiers.h"
#include "outils.h"

#include <cstdio>
#include <map>

// CIBLES is FAIRE(general) FAIRE(table)... for every target.
#define FAIRE(nom) CIBLE(nom);
CIBLES
#undef FAIRE

namespace {

int rejouer(int (*essai)(const std::uint8_t*, std::size_t), const char* dossier) {
    int rejoues = 0;
    for (const auto& entree : std::filesystem::recursive_directory_iterator(dossier)) {
        if (!entree.is_regular_file())
            continue;
        const std::string contenu = lire_octets(entree.path());
        essai(reinterpret_cast<const std::uint8_t*>(contenu.data()), contenu.size());
        ++rejoues;
    }
    return rejoues;
}

} // namespace

// corpus TARGET FOLDER
int main(int nombre, char** arguments) {
#define FAIRE(nom) {#nom, essai_##nom},
    const std::map<std::string_view, int (*)(const std::uint8_t*, std::size_t)> essais{CIBLES};
    if (nombre != 3 || !essais.contains(arguments[1]))
        return 2;
    const int rejoues = rejouer(essais.at(arguments[1]), arguments[2]);
    std::printf("%d seeds replayed\n", rejoues);
    return rejoues > 0 ? 0 : 1;
}
