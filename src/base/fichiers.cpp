#include "base/fichiers.h"

#include "base/brouillon.h"
#include "base/systeme.h"
#include "base/texte.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace fs = std::filesystem;
using systeme::Descripteur;

namespace {

// The file that a rename must replace: the one a symbolic link points to, even if it is missing.
fs::path cible_reelle(const fs::path& chemin) {
    constexpr int liens_max = 40;
    std::error_code erreur;
    fs::path cible = chemin;
    for (int i = 0; fs::is_symlink(cible, erreur); ++i) {
        if (i == liens_max)
            throw ErreurFichier(chemin, ELOOP);
        cible = cible.parent_path() / fs::read_symlink(cible, erreur);
    }
    return cible;
}

void exiger_un_fichier(const fs::path& chemin, const systeme::Infos& infos) {
    if (infos.sorte == systeme::Sorte::dossier)
        throw ErreurFichier(chemin, EISDIR);
    if (infos.sorte != systeme::Sorte::ordinaire)
        throw ErreurFichier(chemin, "ce n'est pas un fichier ordinaire");
}

// A rename would replace a device or a write-protected file without asking.
void refuser_si_intouchable(const fs::path& chemin, const std::string& cible) {
    const auto infos = systeme::infos(cible.c_str());
    if (!infos)
        return;
    exiger_un_fichier(chemin, *infos);
    if (!systeme::peut_ecrire(cible.c_str()))
        throw ErreurFichier(chemin, errno);
}

void vider_dossier_sur_disque(const fs::path& dossier) {
    const std::string chemin = dossier.empty() ? "." : dossier.string();
    const Descripteur d(chemin.c_str(), systeme::Ouverture::dossier);
    d.vers_le_disque(); // best effort: the rename itself has succeeded
}

// Present local time as "2026-03-01_14h05m09": copies sort by date, and no character of it is
// special to a shell.
std::string date_et_heure() {
    const std::tm champs = systeme::heure_locale(std::time(nullptr)).value_or(std::tm{});
    std::array<char, 32> tampon{};
    const std::size_t n = std::strftime(tampon.data(), tampon.size(), "%Y-%m-%d_%Hh%Mm%S", &champs);
    return {tampon.data(), n};
}

bool tout_en(std::string_view texte, std::string_view permis) {
    return !texte.empty() && texte.find_first_not_of(permis) == std::string_view::npos;
}

// The part behind the last ".", taken off `reste`; empty when there is none.
std::string prendre_dernier(std::string& reste) {
    const std::size_t point = reste.rfind('.');
    if (point == std::string::npos)
        return {};
    std::string partie = reste.substr(point + 1);
    reste.resize(point);
    return partie;
}

enum class TropGrand { refuse, coupe };

// The versions of `chemin` in `dossier` with their numbers, newest first.
std::vector<std::pair<long, fs::path>> versions_numerotees(const fs::path& chemin,
                                                           const fs::path& dossier) {
    const std::string nom = chemin.filename().string();
    const std::string cle = cle_du_dossier(chemin);
    std::vector<std::pair<long, fs::path>> versions;
    std::error_code erreur;
    for (fs::directory_iterator i(dossier, erreur), fin; !erreur && i != fin; i.increment(erreur)) {
        const auto version = lire_nom_de_version(i->path().filename().string());
        if (version && version->fichier == nom && version->dossier == cle)
            versions.emplace_back(version->numero, i->path());
    }
    std::sort(versions.rbegin(), versions.rend());
    return versions;
}

std::string lire(const char* chemin, std::size_t maximum, TropGrand trop_grand) {
    const Descripteur d(chemin, systeme::Ouverture::lecture);
    const auto infos = d.ouvert() ? d.infos() : std::nullopt;
    if (!infos)
        throw ErreurFichier(chemin, errno);
    exiger_un_fichier(chemin, *infos);
    auto taille = static_cast<std::size_t>(infos->taille);
    if (taille > maximum && trop_grand == TropGrand::refuse)
        throw ErreurFichier(chemin, "le fichier est trop grand");
    taille = std::min(taille, maximum);
    std::string octets(taille, '\0');
    std::size_t lus = 0;
    while (lus < taille) {
        const std::ptrdiff_t n = d.lire(octets.data() + lus, taille - lus);
        if (n < 0)
            throw ErreurFichier(chemin, errno);
        if (n == 0)
            break;
        lus += static_cast<std::size_t>(n);
    }
    octets.resize(lus);
    return octets;
}

} // namespace

std::string lire_octets(const fs::path& chemin, std::size_t maximum) {
    return lire_octets_natif(chemin.string().c_str(), maximum);
}

std::string lire_octets_natif(const char* chemin, std::size_t maximum) {
    return lire(chemin, maximum, TropGrand::refuse);
}

std::string lire_debut(const fs::path& chemin, std::size_t maximum) {
    return lire(chemin.string().c_str(), maximum, TropGrand::coupe);
}

void remplacer_fichier(const fs::path& chemin, std::string_view octets) {
    const fs::path place = cible_reelle(chemin);
    const std::string cible = place.string();
    refuser_si_intouchable(chemin, cible);
    retirer_brouillons(place.parent_path());
    std::string brouillon;
    Descripteur d = creer_brouillon(place.parent_path(), brouillon);
    if (!d.ouvert())
        throw ErreurFichier(chemin, errno);
    // Keeps the draft locked, and so from being removed, between the closing and the renaming.
    const Descripteur verrou = d.doubler();
    const bool ecrit = d.ecrire_tout(octets) && d.prendre_les_droits(cible.c_str()) &&
                       d.vers_le_disque() && d.fermer() &&
                       systeme::renommer(brouillon.c_str(), cible.c_str());
    if (!ecrit) {
        const int erreur = errno;
        systeme::supprimer(brouillon.c_str());
        throw ErreurFichier(chemin, erreur);
    }
    vider_dossier_sur_disque(place.parent_path());
}

fs::path trouver_fichier(const fs::path& dossier, std::string_view nom) {
    // Put together as text: a name that begins with a separator stays below the directory.
    fs::path exact(dossier.string() + "/" + std::string(nom));
    std::error_code erreur;
    if (fs::exists(exact, erreur))
        return exact;
    const std::string cherche = minuscules(nom);
    fs::path trouve;
    for (fs::directory_iterator i(dossier, erreur), fin; !erreur && i != fin; i.increment(erreur)) {
        const std::string candidat = i->path().filename().string();
        if (minuscules(candidat) == cherche && (trouve.empty() || i->path() < trouve))
            trouve = i->path();
    }
    return trouve.empty() ? exact : trouve;
}

std::optional<NomDeVersion> lire_nom_de_version(std::string_view nom) {
    constexpr std::size_t longueur_date = 19;
    NomDeVersion version;
    version.fichier = nom;
    const std::string numero = prendre_dernier(version.fichier);
    version.dossier = prendre_dernier(version.fichier);
    version.date = prendre_dernier(version.fichier);
    if (numero.size() > 9 || !tout_en(numero, "0123456789") || version.dossier.size() != 8 ||
        !tout_en(version.dossier, "0123456789abcdef") || version.date.size() != longueur_date ||
        version.fichier.empty())
        return std::nullopt;
    version.numero = std::strtol(numero.c_str(), nullptr, 10);
    return version;
}

// Eight hexadecimal digits: FNV-1a of the folder's path.
std::string cle_du_dossier(const fs::path& chemin) {
    std::error_code erreur;
    const fs::path absolu = fs::weakly_canonical(fs::absolute(chemin, erreur), erreur);
    std::uint32_t cle = 2166136261U;
    for (const char c : absolu.parent_path().string())
        cle = (cle ^ static_cast<unsigned char>(c)) * 16777619U;
    std::array<char, 9> tampon{};
    std::snprintf(tampon.data(), tampon.size(), "%08x", static_cast<unsigned>(cle));
    return tampon.data();
}

fs::path sauvegarder_version(const fs::path& chemin, const fs::path& dossier) {
    std::error_code erreur;
    if (!fs::exists(chemin, erreur))
        return {};
    return garder_version(chemin, lire_octets(chemin), dossier);
}

fs::path garder_version(const fs::path& chemin, std::string_view octets, const fs::path& dossier) {
    constexpr std::size_t gardees = 10;
    std::error_code erreur;
    fs::create_directories(dossier, erreur);
    if (erreur)
        throw ErreurFichier(dossier, erreur.value());
    const auto versions = versions_numerotees(chemin, dossier);
    const long suivant = versions.empty() ? 1 : versions.front().first + 1;
    fs::path copie = dossier / (chemin.filename().string() + "." + date_et_heure() + "." +
                                cle_du_dossier(chemin) + "." + std::to_string(suivant));
    remplacer_fichier(copie, octets);
    for (std::size_t i = gardees - 1; i < versions.size(); ++i)
        fs::remove(versions[i].second, erreur);
    return copie;
}

std::vector<fs::path> versions_gardees(const fs::path& chemin, const fs::path& dossier) {
    std::vector<fs::path> chemins;
    for (const auto& [numero, version] : versions_numerotees(chemin, dossier))
        chemins.push_back(version);
    return chemins;
}

fs::path restaurer_version(const fs::path& version, const fs::path& chemin,
                           const fs::path& dossier) {
    // Read before the copy is made: that one may be the eleventh, which ends the oldest.
    const std::string octets = lire_octets(version);
    fs::path copie = sauvegarder_version(chemin, dossier);
    remplacer_fichier(chemin, octets);
    return copie;
}
