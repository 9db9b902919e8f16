#include "base/verrou.h"

#include "base/erreurs.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

// Its last holder may have removed the file between its opening and its locking.
bool est_toujours_la(int numero, const char* chemin) {
    struct stat ouvert {};
    struct stat present {};
    return ::fstat(numero, &ouvert) == 0 && ::stat(chemin, &present) == 0 &&
           ouvert.st_ino == present.st_ino && ouvert.st_dev == present.st_dev;
}

} // namespace

std::optional<Verrou> Verrou::prendre(const std::filesystem::path& fichier) {
    for (;;) {
        const int numero = ::open(fichier.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0644);
        if (numero < 0)
            throw ErreurFichier(fichier, errno);
        Verrou verrou(fichier, numero);
        if (::flock(numero, LOCK_EX | LOCK_NB) != 0) {
            const int erreur = errno;
            ::close(std::exchange(verrou.numero_, -1)); // the holder's file stays
            if (erreur != EWOULDBLOCK)
                throw ErreurFichier(fichier, erreur);
            return std::nullopt;
        }
        if (est_toujours_la(numero, fichier.c_str()))
            return verrou;
        ::close(std::exchange(verrou.numero_, -1));
    }
}

Verrou::Verrou(Verrou&& autre) noexcept
    : fichier_(std::move(autre.fichier_)), numero_(std::exchange(autre.numero_, -1)) {}

Verrou& Verrou::operator=(Verrou&& autre) noexcept {
    if (this != &autre) {
        rendre();
        fichier_ = std::move(autre.fichier_);
        numero_ = std::exchange(autre.numero_, -1);
    }
    return *this;
}

Verrou::~Verrou() {
    rendre();
}

void Verrou::rendre() {
    if (numero_ < 0)
        return;
    struct stat etat {};
    // While it is held: nobody else's. A file that holds something was not made here.
    if (::fstat(numero_, &etat) == 0 && etat.st_size == 0)
        ::unlink(fichier_.c_str());
    ::close(std::exchange(numero_, -1));
}
