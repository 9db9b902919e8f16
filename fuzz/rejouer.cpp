// Replays the seed files of a fuzz target where libFuzzer is not there.

#include "base/fichiers.h"

#include <cstdint>
#include <cstdio>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille);

int main(int nombre, char** arguments) {
    int rejoues = 0;
    for (int i = 1; i < nombre; ++i) {
        for (const auto& entree : std::filesystem::recursive_directory_iterator(arguments[i])) {
            if (!entree.is_regular_file())
                continue;
            const std::string contenu = lire_octets(entree.path());
            const std::vector<std::uint8_t> octets(contenu.begin(), contenu.end());
            LLVMFuzzerTestOneInput(octets.data(), octets.size());
            ++rejoues;
        }
    }
    std::printf("%d seeds replayed\n", rejoues);
    return rejoues > 0 ? 0 : 1;
}
