#include "config/dossier.h"

#include "base/erreurs.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

namespace fs = std::filesystem;

namespace {

fs::path variable(const char* nom) {
    const char* valeur = std::getenv(nom);
    return valeur != nullptr ? fs::path(valeur) : fs::path();
}

fs::path dossier_personnel() {
    fs::path home = variable("HOME");
    if (!home.empty())
        return home;
    const passwd* compte = ::getpwuid(::geteuid());
    return compte != nullptr ? fs::path(compte->pw_dir) : fs::path();
}

fs::path dossier_executable() {
    std::error_code erreur;
    return fs::read_symlink("/proc/self/exe", erreur).parent_path();
}

// Absolute; "." and double separators go, ".." stays as it is (it may lie behind a link).
fs::path absolu(const fs::path& chemin) {
    std::error_code erreur;
    fs::path complet = fs::absolute(chemin, erreur);
    if (erreur)
        throw ErreurFichier(chemin, erreur.value());
    if (std::find(complet.begin(), complet.end(), "..") == complet.end())
        complet = complet.lexically_normal();
    return complet.has_filename() || !complet.has_relative_path() ? complet : complet.parent_path();
}

} // namespace

fs::path dossier_application(const std::optional<fs::path>& demande) {
    if (demande && !demande->empty())
        return absolu(*demande);
    if (const fs::path voulu = variable("TAVOLMEX_DOSSIER"); !voulu.empty())
        return absolu(voulu);
    if (fs::path ici = dossier_executable(); !ici.empty() && ::access(ici.c_str(), W_OK) == 0)
        return ici;
    return absolu(dossier_personnel() / "Tavolmex");
}

void entrer_dans_dossier(const fs::path& dossier) {
    std::error_code erreur;
    fs::create_directories(dossier, erreur);
    if (!erreur)
        fs::current_path(dossier, erreur);
    if (erreur)
        throw ErreurFichier(dossier, erreur.value());
}
