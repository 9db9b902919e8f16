#include "base/brouillon.h"

#include <cerrno>
#include <string_view>

namespace fs = std::filesystem;
using systeme::Descripteur;

namespace {

constexpr std::string_view prefixe = ".tavolmex-";
constexpr std::string_view variable = "XXXXXX"; // becomes as many letters and digits

bool est_un_brouillon(const std::string& nom) {
    return nom.starts_with(prefixe) && nom.size() == prefixe.size() + variable.size();
}

// Somebody who found it before it was locked has removed it, or is about to.
bool est_retire(const Descripteur& d) {
    if (!d.verrouiller())
        return errno == EWOULDBLOCK; // where locks do not exist, nobody removes anything
    const auto infos = d.infos();
    return infos && infos->liens == 0;
}

void retirer_si_abandonne(const std::string& chemin) {
    const Descripteur d(chemin.c_str(), systeme::Ouverture::lecture_sans_lien);
    const auto infos = d.infos();
    if (infos && infos->sorte == systeme::Sorte::ordinaire && d.verrouiller())
        systeme::supprimer(chemin.c_str());
}

} // namespace

Descripteur creer_brouillon(const fs::path& dossier, std::string& chemin) {
    for (;;) {
        chemin = (dossier / std::string(prefixe).append(variable)).string();
        Descripteur d = Descripteur::creer_unique(chemin);
        if (!d.ouvert() || !est_retire(d))
            return d;
    }
}

void retirer_brouillons(const fs::path& dossier) {
    std::error_code erreur;
    for (fs::directory_iterator i(dossier.empty() ? "." : dossier, erreur), fin;
         !erreur && i != fin; i.increment(erreur)) {
        if (est_un_brouillon(i->path().filename().string()))
            retirer_si_abandonne(i->path().string());
    }
}
