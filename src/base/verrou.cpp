#include "base/verrou.h"

#include "base/erreurs.h"

#include <cerrno>
#include <utility>

using systeme::Descripteur;

namespace {

// Its last holder may have removed the file between its opening and its locking.
bool est_toujours_la(const Descripteur& d, const char* chemin) {
    const auto ouvert = d.infos();
    const auto present = systeme::infos(chemin);
    return ouvert && present && ouvert->numero == present->numero &&
           ouvert->volume == present->volume;
}

} // namespace

std::optional<Verrou> Verrou::prendre(const std::filesystem::path& fichier) {
    const std::string chemin = fichier.string();
    for (;;) {
        Descripteur d(chemin.c_str(), systeme::Ouverture::verrou);
        if (!d.ouvert())
            throw ErreurFichier(fichier, errno);
        if (!d.verrouiller()) { // the holder's file stays
            const int erreur = errno;
            if (erreur != EWOULDBLOCK)
                throw ErreurFichier(fichier, erreur);
            return std::nullopt;
        }
        if (est_toujours_la(d, chemin.c_str()))
            return Verrou(fichier, std::move(d));
    }
}

Verrou& Verrou::operator=(Verrou&& autre) noexcept {
    if (this != &autre) {
        rendre();
        fichier_ = std::move(autre.fichier_);
        descripteur_ = std::move(autre.descripteur_);
    }
    return *this;
}

Verrou::~Verrou() {
    rendre();
}

void Verrou::rendre() {
    // While it is held: nobody else's. A file that holds something was not made here.
    if (const auto infos = descripteur_.infos(); infos && infos->taille == 0)
        systeme::supprimer(fichier_.string().c_str());
    descripteur_.fermer();
}
