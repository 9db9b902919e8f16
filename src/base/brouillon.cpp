#include "base/brouillon.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string_view>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view prefixe = ".tavolmex-";
constexpr std::string_view variable = "XXXXXX"; // becomes as many letters and digits

bool est_un_brouillon(const std::string& nom) {
    return nom.starts_with(prefixe) && nom.size() == prefixe.size() + variable.size();
}

// Somebody who found it before it was locked has removed it, or is about to.
bool est_retire(int numero) {
    struct stat etat {};
    return ::flock(numero, LOCK_EX | LOCK_NB) != 0
               ? errno == EWOULDBLOCK // where locks do not exist, nobody removes anything
               : ::fstat(numero, &etat) == 0 && etat.st_nlink == 0;
}

void retirer_si_abandonne(const char* chemin) {
    const int numero = ::open(chemin, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (numero < 0)
        return;
    struct stat etat {};
    if (::fstat(numero, &etat) == 0 && S_ISREG(etat.st_mode) &&
        ::flock(numero, LOCK_EX | LOCK_NB) == 0)
        ::unlink(chemin);
    ::close(numero);
}

} // namespace

int creer_brouillon(const fs::path& dossier, std::string& chemin) {
    for (;;) {
        chemin = (dossier / std::string(prefixe).append(variable)).string();
        const int numero = ::mkostemp(chemin.data(), O_CLOEXEC);
        if (numero < 0 || !est_retire(numero))
            return numero;
        ::close(numero);
    }
}

void retirer_brouillons(const fs::path& dossier) {
    std::error_code erreur;
    for (fs::directory_iterator i(dossier.empty() ? "." : dossier, erreur), fin;
         !erreur && i != fin; i.increment(erreur)) {
        if (est_un_brouillon(i->path().filename().string()))
            retirer_si_abandonne(i->path().c_str());
    }
}
