#include "config/versions.h"

#include "base/fichiers.h"
#include "base/texte.h"

#include <algorithm>
#include <tuple>

namespace fs = std::filesystem;

namespace {

// "Trajet3" and "Trajet" give "3"; anything else nothing.
std::string numero_apres(const std::string& nom, std::string_view genre) {
    if (!nom.starts_with(genre))
        return {};
    std::string numero = nom.substr(genre.size());
    const bool chiffres = numero.find_first_not_of("0123456789") == std::string::npos;
    return chiffres ? numero : std::string();
}

// "2026-03-01_14h05m09" as "2026-03-01 14:05:09".
std::string date_lisible(std::string date) {
    for (char& c : date)
        c = c == '_' ? ' ' : c == 'h' || c == 'm' ? ':' : c;
    return date;
}

Version version_de(const fs::directory_entry& entree, NomDeVersion nom, std::string sorte,
                   const std::vector<fs::path>& dossiers) {
    std::error_code erreur;
    Version version{entree.path(),          std::move(nom.fichier),   std::move(sorte),
                    date_lisible(nom.date), entree.file_size(erreur), {}};
    if (erreur)
        version.taille = 0;
    for (const fs::path& dossier : dossiers) {
        if (version.original.empty() && cle_du_dossier(dossier / version.fichier) == nom.dossier)
            version.original = dossier / version.fichier;
    }
    return version;
}

} // namespace

std::string sorte_de_fichier(std::string_view nom, std::string_view NomProjet) {
    const std::string bas = minuscules(nom);
    const std::string debut = minuscules(NomProjet) + " ";
    constexpr std::string_view fin = ".ini";
    if (!bas.ends_with(fin))
        return "Programme PICBASIC"; // nothing else has copies
    if (!bas.starts_with(debut) || bas.size() < debut.size() + fin.size())
        return {};
    const std::string genre = bas.substr(debut.size(), bas.size() - debut.size() - fin.size());
    if (genre == "table")
        return "Table";
    if (const std::string n = numero_apres(genre, "robot"); !n.empty())
        return "Robot " + n;
    if (const std::string n = numero_apres(genre, "trajet"); !n.empty())
        return "Trajet du robot " + n;
    if (!numero_apres(genre, "pourgenerer").empty())
        return "Fichier de génération";
    return genre.starts_with("reprise") ? "Enregistrement non sauvegardé" : "";
}

std::vector<Version> lister_versions(const fs::path& dossier_configuration,
                                     std::string_view NomProjet, std::vector<fs::path> dossiers) {
    dossiers.insert(dossiers.begin(), dossier_configuration);
    std::vector<Version> versions;
    std::error_code erreur;
    for (fs::directory_iterator i(dossier_configuration / "Sauvegardes", erreur), fin;
         !erreur && i != fin; i.increment(erreur)) {
        auto nom = lire_nom_de_version(i->path().filename().string());
        if (!nom)
            continue;
        std::string sorte = sorte_de_fichier(nom->fichier, NomProjet);
        if (!sorte.empty())
            versions.push_back(version_de(*i, *std::move(nom), std::move(sorte), dossiers));
    }
    // Copies of one second differ in their number, which the name ends with.
    const auto cle = [](const Version& v) {
        return std::tuple(v.date, v.fichier,
                          lire_nom_de_version(v.copie.filename().string())->numero);
    };
    std::sort(versions.begin(), versions.end(),
              [&](const Version& a, const Version& b) { return cle(a) > cle(b); });
    return versions;
}
