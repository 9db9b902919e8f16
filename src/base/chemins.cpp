#include "base/chemins.h"

#include <system_error>

namespace fs = std::filesystem;

bool meme_fichier(const fs::path& a, const fs::path& b) {
    std::error_code erreur;
    if (fs::equivalent(a, b, erreur))
        return true;
    const fs::path place = fs::weakly_canonical(fs::absolute(a, erreur), erreur);
    return !place.empty() && place == fs::weakly_canonical(fs::absolute(b, erreur), erreur);
}
