#include "base/systeme.h"

#include <fcntl.h>
#include <pthread.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <utility>

#ifdef __linux__
#include <sys/signalfd.h>
#endif
#ifdef __APPLE__
#include <mach-o/dyld.h>

#include <array>
#endif

namespace systeme {

namespace {

Sorte sorte_de(mode_t mode) {
    if (S_ISDIR(mode))
        return Sorte::dossier;
    return S_ISREG(mode) ? Sorte::ordinaire : Sorte::autre;
}

Infos infos_de(const struct stat& s) {
#ifdef __APPLE__
    const timespec& changement = s.st_ctimespec;
#else
    const timespec& changement = s.st_ctim;
#endif
    Infos infos;
    infos.sorte = sorte_de(s.st_mode);
    infos.taille = static_cast<std::uintmax_t>(s.st_size);
    infos.liens = s.st_nlink;
    infos.volume = static_cast<std::int64_t>(s.st_dev);
    infos.numero = static_cast<std::int64_t>(s.st_ino);
    infos.modifie = s.st_mtime;
    infos.changement_s = changement.tv_sec;
    infos.changement_ns = changement.tv_nsec;
    return infos;
}

int drapeaux(Ouverture ouverture) {
    constexpr int lecture = O_RDONLY | O_NONBLOCK | O_CLOEXEC;
    switch (ouverture) {
    case Ouverture::lecture:
        return lecture;
    case Ouverture::lecture_sans_lien:
        return lecture | O_NOFOLLOW;
    case Ouverture::verrou:
        return O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW;
    case Ouverture::dossier:
        break;
    }
    return O_RDONLY | O_DIRECTORY | O_CLOEXEC;
}

mode_t droits_voulus(const char* modele) {
    struct stat s {};
    if (::stat(modele, &s) == 0)
        return s.st_mode & 07777U;
    const mode_t masque = ::umask(0);
    ::umask(masque);
    return static_cast<mode_t>(0666U & ~masque);
}

sigset_t signaux_de_fin() {
    sigset_t signaux;
    sigemptyset(&signaux);
    for (const int s : {SIGTERM, SIGHUP, SIGINT})
        sigaddset(&signaux, s);
    return signaux;
}

int numero_de(Flux flux) {
    if (flux == Flux::entree)
        return STDIN_FILENO;
    return flux == Flux::sortie ? STDOUT_FILENO : STDERR_FILENO;
}

} // namespace

std::optional<Infos> infos(const char* chemin) {
    struct stat s {};
    return ::stat(chemin, &s) == 0 ? std::optional(infos_de(s)) : std::nullopt;
}

bool peut_ecrire(const char* chemin) {
    return ::access(chemin, W_OK) == 0;
}

Descripteur::Descripteur(const char* chemin, Ouverture ouverture)
    : numero_(::open(chemin, drapeaux(ouverture), 0644)) {}

Descripteur Descripteur::creer_unique(std::string& modele) {
    return Descripteur(::mkostemp(modele.data(), O_CLOEXEC));
}

Descripteur::Descripteur(Descripteur&& autre) noexcept
    : numero_(std::exchange(autre.numero_, -1)) {}

Descripteur& Descripteur::operator=(Descripteur&& autre) noexcept {
    if (this != &autre) {
        fermer();
        numero_ = std::exchange(autre.numero_, -1);
    }
    return *this;
}

Descripteur Descripteur::doubler() const {
    return Descripteur(::fcntl(numero_, F_DUPFD_CLOEXEC, 0));
}

std::optional<Infos> Descripteur::infos() const {
    struct stat s {};
    return ::fstat(numero_, &s) == 0 ? std::optional(infos_de(s)) : std::nullopt;
}

std::ptrdiff_t Descripteur::lire(char* octets, std::size_t nombre) const {
    for (;;) {
        const ssize_t n = ::read(numero_, octets, nombre);
        if (n >= 0 || errno != EINTR)
            return n;
    }
}

bool Descripteur::ecrire_tout(std::string_view octets) const {
    while (!octets.empty()) {
        const ssize_t n = ::write(numero_, octets.data(), octets.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return false;
        octets.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

bool Descripteur::prendre_les_droits(const char* modele) const {
    return ::fchmod(numero_, droits_voulus(modele)) == 0;
}

bool Descripteur::vers_le_disque() const {
    return ::fsync(numero_) == 0;
}

bool Descripteur::verrouiller() const {
    return ::flock(numero_, LOCK_EX | LOCK_NB) == 0;
}

bool Descripteur::fermer() {
    const int numero = std::exchange(numero_, -1);
    return numero < 0 || ::close(numero) == 0;
}

bool renommer(const char* de, const char* vers) {
    return ::rename(de, vers) == 0;
}

bool supprimer(const char* chemin) {
    return ::unlink(chemin) == 0;
}

bool est_un_terminal(Flux flux) {
    return ::isatty(numero_de(flux)) == 1;
}

void preparer_le_processus() {
    std::signal(SIGXFSZ, SIG_IGN);
    for (const int numero : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free number is the one that opening takes.
        if (::fcntl(numero, F_GETFD) == -1 && errno == EBADF)
            ::open("/dev/null", numero == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

std::optional<std::tm> heure_locale(std::time_t instant) {
    std::tm champs{};
    return ::localtime_r(&instant, &champs) != nullptr ? std::optional(champs) : std::nullopt;
}

std::filesystem::path dossier_personnel() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
        return home;
    const passwd* compte = ::getpwuid(::geteuid());
    return compte != nullptr ? compte->pw_dir : "";
}

std::filesystem::path programme() {
    std::error_code erreur;
#ifdef __APPLE__
    std::array<char, 4096> chemin{};
    auto taille = static_cast<std::uint32_t>(chemin.size());
    if (::_NSGetExecutablePath(chemin.data(), &taille) != 0)
        return {};
    return std::filesystem::canonical(chemin.data(), erreur);
#else
    return std::filesystem::read_symlink("/proc/self/exe", erreur);
#endif
}

#ifdef __linux__

SignauxDeFin::SignauxDeFin() {
    const sigset_t signaux = signaux_de_fin();
    pthread_sigmask(SIG_BLOCK, &signaux, nullptr);
    numero_ = ::signalfd(-1, &signaux, SFD_CLOEXEC | SFD_NONBLOCK);
}

SignauxDeFin::~SignauxDeFin() {
    const sigset_t signaux = signaux_de_fin();
    ::close(numero_);
    pthread_sigmask(SIG_UNBLOCK, &signaux, nullptr);
}

int SignauxDeFin::lire() const {
    signalfd_siginfo recu{};
    return ::read(numero_, &recu, sizeof recu) == ssize_t(sizeof recu)
               ? static_cast<int>(recu.ssi_signo)
               : 0;
}

#else // they end the program as they do elsewhere

SignauxDeFin::SignauxDeFin() = default;
SignauxDeFin::~SignauxDeFin() = default;
int SignauxDeFin::lire() const {
    return 0;
}

#endif

void SignauxDeFin::finir(int signal) {
    const sigset_t signaux = signaux_de_fin();
    std::signal(signal, SIG_DFL);
    std::raise(signal); // pending until it is let through
    pthread_sigmask(SIG_UNBLOCK, &signaux, nullptr);
    std::_Exit(EXIT_FAILURE);
}

} // namespace systeme
