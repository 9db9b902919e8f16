#include "config/dossier.h"

#include "base/erreurs.h"
#include "base/systeme.h"

#include <algorithm>
#include <cstdlib>

namespace fs = std::filesystem;

namespace {

fs::path variable(const char* nom) {
    const char* valeur = std::getenv(nom);
    return valeur != nullptr ? fs::path(valeur) : fs::path();
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
    fs::path ici = systeme::programme().parent_path();
    if (!ici.empty() && systeme::peut_ecrire(ici.string().c_str()))
        return ici;
    return absolu(systeme::dossier_personnel() / "Tavolmex");
}

void entrer_dans_dossier(const fs::path& dossier) {
    std::error_code erreur;
    fs::create_directories(dossier, erreur);
    if (!erreur)
        fs::current_path(dossier, erreur);
    if (erreur)
        throw ErreurFichier(dossier, erreur.value());
}
