#include "config/projets.h"

#include "base/texte.h"

#include <algorithm>

namespace fs = std::filesystem;

std::vector<std::string> lister_projets(const fs::path& dossier_configuration) {
    static const std::string fin = " table.ini";
    std::vector<std::string> noms;
    std::error_code erreur;
    for (fs::directory_iterator i(dossier_configuration, erreur), dernier; !erreur && i != dernier;
         i.increment(erreur)) {
        const std::string fichier = i->path().filename().string();
        if (!est_utf8(fichier)) // such a name would make the settings file unreadable
            continue;
        const std::string petit = minuscules(fichier); // of the same length
        if (petit.ends_with(fin))
            noms.emplace_back(rogner(std::string_view(fichier).substr(0, petit.find(fin))));
    }
    std::sort(noms.begin(), noms.end(), [](const std::string& a, const std::string& b) {
        const std::string x = minuscules(a);
        const std::string y = minuscules(b);
        return x != y ? x < y : a < b;
    });
    return noms;
}
