#include "cli/flux.h"

#include "base/raisons.h"

#include <cerrno>
#include <cstdio>
#include <iostream>

namespace {

ErreurFichier erreur_de_flux(const char* nom, int numero) {
    return {nom, numero == EBADF ? "elle est fermée" : raison_systeme(numero)};
}

} // namespace

std::optional<ErreurFichier> terminer_la_sortie() {
    const int avant = errno; // of a writing that failed earlier
    errno = 0;
    const bool ecrite = std::cout.flush().good() && std::fflush(stdout) == 0;
    if (ecrite && std::ferror(stdout) == 0)
        return std::nullopt;
    const int numero = errno != 0 ? errno : avant;
    return erreur_de_flux("sortie standard", numero != 0 ? numero : EIO);
}

std::optional<std::string> lire_ligne(std::size_t maximum) {
    std::string ligne;
    errno = 0;
    int c = std::getc(stdin);
    if (c == EOF && std::ferror(stdin) == 0)
        return std::nullopt;
    for (; c != EOF && c != '\n'; c = std::getc(stdin)) {
        if (ligne.size() == maximum)
            throw ErreurExecution("la ligne dépasse " + std::to_string(maximum) + " octets");
        ligne += static_cast<char>(c);
    }
    if (std::ferror(stdin) != 0)
        throw erreur_de_flux("entrée standard", errno);
    return ligne;
}
