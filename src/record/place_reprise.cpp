#include "record/place_reprise.h"

#include "base/erreurs.h"
#include "config/nom_projet.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int places_max = 99;
constexpr std::string_view debut_reprise = " Reprise";
constexpr std::string_view fin_reprise = ".ini";
constexpr std::string_view debut_verrou = " Verrou";

std::string numero(int place) {
    return place == 1 ? "" : std::to_string(place);
}
std::string suffixe_reprise(int place) {
    return std::string(debut_reprise).append(numero(place)).append(fin_reprise);
}
std::string suffixe_verrou(int place) {
    return std::string(debut_verrou).append(numero(place));
}

struct NomLu {
    std::string projet;
    int place = 1;
};

// "Finale Reprise2.ini" is the project Finale's, place 2; nothing for any other name.
std::optional<NomLu> lire_nom(std::string nom, std::string_view debut, std::string_view fin) {
    if (!nom.ends_with(fin))
        return std::nullopt;
    nom.resize(nom.size() - fin.size());
    const std::size_t chiffres = nom.size() - (nom.find_last_not_of("0123456789") + 1);
    const std::string place = nom.substr(nom.size() - chiffres);
    nom.resize(nom.size() - chiffres);
    if (!nom.ends_with(debut) || place.size() > 2 || place.starts_with('0') || place == "1")
        return std::nullopt;
    nom.resize(nom.size() - debut.size());
    if (!raison_projet_impossible(nom).empty())
        return std::nullopt;
    return NomLu{nom, place.empty() ? 1 : std::stoi(place)};
}

// The files of that form, in the order of their projects, then of their places.
std::vector<NomLu> lister(const fs::path& dossier, std::string_view debut, std::string_view fin) {
    std::vector<NomLu> noms;
    std::error_code erreur;
    for (fs::directory_iterator i(dossier, erreur), dernier; !erreur && i != dernier;
         i.increment(erreur)) {
        if (auto lu = lire_nom(i->path().filename().string(), debut, fin))
            noms.push_back(std::move(*lu));
    }
    std::sort(noms.begin(), noms.end(), [](const NomLu& a, const NomLu& b) {
        return a.projet != b.projet ? a.projet < b.projet : a.place < b.place;
    });
    return noms;
}

} // namespace

fs::path PlaceReprise::chemin(const std::string& projet, int place) const {
    return chemin_de_projet(configuration_, projet, suffixe_reprise(place));
}

fs::path PlaceReprise::fichier(const std::string& projet) const {
    return chemin(projet, projet == projet_ ? place_ : 1);
}

bool PlaceReprise::prendre(const std::string& projet, bool vierge) {
    if (!verrou_ || projet != projet_) {
        verrou_.reset();
        projet_ = projet;
        int place = 1;
        while (place < places_max && !essayer(projet, place, vierge))
            ++place;
        place_ = place;
    }
    return un_autre_tient(projet);
}

// @returns true when the place is this program's, or when it cannot be told: a directory that
// nothing can be written into, a file system without locks.
bool PlaceReprise::essayer(const std::string& projet, int place, bool vierge) {
    std::error_code absente;
    try {
        if (vierge && fs::exists(chemin(projet, place), absente))
            return false;
        verrou_ = Verrou::prendre(chemin_de_projet(configuration_, projet, suffixe_verrou(place)));
        return verrou_.has_value();
    } catch (const ErreurExecution&) {
        return true;
    }
}

// Looks at the locks of all projects: one whose program was killed goes when it is let loose.
bool PlaceReprise::un_autre_tient(const std::string& projet) const {
    bool tenu = false;
    for (const NomLu& lu : lister(configuration_, debut_verrou, "")) {
        if (lu.projet == projet_ && lu.place == place_)
            continue;
        try {
            const auto libre = Verrou::prendre(
                chemin_de_projet(configuration_, lu.projet, suffixe_verrou(lu.place)));
            tenu = tenu || (!libre && lu.projet == projet);
        } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
            // Not a lock of ours.
        }
    }
    return tenu;
}

void PlaceReprise::adopter(RepriseEnAttente attente) {
    if (attente.projet == projet_ && attente.place == place_)
        return;
    verrou_ = std::move(attente.verrou);
    projet_ = std::move(attente.projet);
    place_ = attente.place;
}

std::optional<RepriseEnAttente> PlaceReprise::en_attente(const std::string& projet,
                                                         bool tous) const {
    std::vector<NomLu> noms = lister(configuration_, debut_reprise, fin_reprise);
    std::stable_partition(noms.begin(), noms.end(),
                          [&](const NomLu& lu) { return lu.projet == projet; });
    for (const NomLu& lu : noms) {
        if (lu.projet != projet && !tous)
            break;
        RepriseEnAttente attente{lu.projet, lu.place, chemin(lu.projet, lu.place), std::nullopt};
        if (attente.fichier == fichier(projet))
            return attente;
        try {
            attente.verrou = Verrou::prendre(
                chemin_de_projet(configuration_, lu.projet, suffixe_verrou(lu.place)));
        } catch (const ErreurExecution&) {
            return attente; // no locks here
        }
        if (attente.verrou)
            return attente;
    }
    return std::nullopt;
}
