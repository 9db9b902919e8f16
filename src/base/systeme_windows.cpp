#include "base/systeme.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <utility>

namespace systeme {

namespace {

std::wstring large(const char* chemin) {
    return std::filesystem::u8path(chemin).wstring();
}

int errno_de(DWORD erreur) {
    switch (erreur) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
        return ENOENT;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return EEXIST;
    case ERROR_LOCK_VIOLATION:
    case ERROR_IO_PENDING:
        return EWOULDBLOCK;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ENOSPC;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return EACCES;
    default:
        return EIO;
    }
}

bool noter(BOOL reussi) {
    if (reussi == 0)
        errno = errno_de(::GetLastError());
    return reussi != 0;
}

HANDLE poignee(int numero) {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(numero));
}

// Seconds since 1970 of a count of 100 ns since 1601, and what is left in ns.
std::pair<std::int64_t, std::int64_t> instant(const FILETIME& temps) {
    constexpr std::int64_t par_seconde = 10'000'000;
    constexpr std::int64_t de_1601_a_1970_s = 11'644'473'600;
    const auto total = static_cast<std::int64_t>(
        (static_cast<std::uint64_t>(temps.dwHighDateTime) << 32U) | temps.dwLowDateTime);
    return {total / par_seconde - de_1601_a_1970_s, total % par_seconde * 100};
}

std::uint64_t joindre(DWORD haut, DWORD bas) {
    return (static_cast<std::uint64_t>(haut) << 32U) | bas;
}

Sorte sorte_de(HANDLE fichier, DWORD attributs) {
    if ((attributs & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return Sorte::dossier;
    return ::GetFileType(fichier) == FILE_TYPE_DISK ? Sorte::ordinaire : Sorte::autre;
}

std::optional<Infos> infos_de(HANDLE fichier) {
    BY_HANDLE_FILE_INFORMATION lues{};
    if (!noter(::GetFileInformationByHandle(fichier, &lues)))
        return std::nullopt;
    Infos infos;
    infos.sorte = sorte_de(fichier, lues.dwFileAttributes);
    infos.taille = joindre(lues.nFileSizeHigh, lues.nFileSizeLow);
    infos.liens = lues.nNumberOfLinks;
    infos.volume = static_cast<std::int64_t>(lues.dwVolumeSerialNumber);
    infos.numero = static_cast<std::int64_t>(joindre(lues.nFileIndexHigh, lues.nFileIndexLow));
    const auto [secondes, reste] = instant(lues.ftLastWriteTime);
    infos.modifie = secondes;
    infos.changement_s = secondes;
    infos.changement_ns = reste;
    return infos;
}

// Others may rename and remove the file while it is open, as elsewhere.
HANDLE ouvrir(const std::wstring& chemin, DWORD acces, DWORD creation, DWORD drapeaux) {
    const HANDLE fichier =
        ::CreateFileW(chemin.c_str(), acces, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, creation, drapeaux, nullptr);
    if (fichier == INVALID_HANDLE_VALUE)
        errno = errno_de(::GetLastError());
    return fichier;
}

int numero_de(HANDLE fichier) {
    constexpr int mode = _O_BINARY | _O_NOINHERIT;
    return fichier == INVALID_HANDLE_VALUE
               ? -1
               : ::_open_osfhandle(reinterpret_cast<std::intptr_t>(fichier), mode);
}

int numero_ouvert(const char* chemin, Ouverture ouverture) {
    const bool verrou = ouverture == Ouverture::verrou;
    // Directories open with these "backup semantics" only.
    DWORD drapeaux = FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS;
    if (verrou || ouverture == Ouverture::lecture_sans_lien)
        drapeaux |= FILE_FLAG_OPEN_REPARSE_POINT;
    return numero_de(ouvrir(large(chemin), GENERIC_READ | (verrou ? GENERIC_WRITE | DELETE : 0U),
                            verrou ? OPEN_ALWAYS : OPEN_EXISTING, drapeaux));
}

unsigned tranche(std::size_t nombre) {
    return static_cast<unsigned>(
        std::min<std::size_t>(nombre, std::numeric_limits<int>::max() / 2));
}

} // namespace

std::optional<Infos> infos(const char* chemin) {
    const HANDLE fichier = ouvrir(large(chemin), 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (fichier == INVALID_HANDLE_VALUE)
        return std::nullopt;
    const auto lues = infos_de(fichier);
    ::CloseHandle(fichier);
    return lues;
}

bool peut_ecrire(const char* chemin) {
    const auto presentes = infos(chemin);
    if (!presentes)
        return false;
    // A directory lets itself be opened for adding a file, or not.
    const DWORD acces =
        presentes->sorte == Sorte::dossier ? DWORD{FILE_ADD_FILE} : DWORD{GENERIC_WRITE};
    const HANDLE fichier = ouvrir(large(chemin), acces, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (fichier == INVALID_HANDLE_VALUE)
        return false;
    ::CloseHandle(fichier);
    return true;
}

Descripteur::Descripteur(const char* chemin, Ouverture ouverture)
    : numero_(numero_ouvert(chemin, ouverture)) {}

Descripteur Descripteur::creer_unique(std::string& modele) {
    constexpr std::string_view signes = "abcdefghijklmnopqrstuvwxyz0123456789";
    constexpr std::size_t places = 6;
    std::random_device hasard;
    for (int essai = 0; essai < 100; ++essai) {
        for (std::size_t i = modele.size() - places; i < modele.size(); ++i)
            modele[i] = signes[hasard() % signes.size()];
        const int numero =
            numero_de(ouvrir(large(modele.c_str()), GENERIC_READ | GENERIC_WRITE | DELETE,
                             CREATE_NEW, FILE_ATTRIBUTE_NORMAL));
        if (numero >= 0 || errno != EEXIST)
            return Descripteur(numero);
    }
    return {};
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
    return Descripteur(::_dup(numero_));
}

std::optional<Infos> Descripteur::infos() const {
    return ouvert() ? infos_de(poignee(numero_)) : std::nullopt;
}

std::ptrdiff_t Descripteur::lire(char* octets, std::size_t nombre) const {
    return ::_read(numero_, octets, tranche(nombre));
}

bool Descripteur::ecrire_tout(std::string_view octets) const {
    while (!octets.empty()) {
        const int n = ::_write(numero_, octets.data(), tranche(octets.size()));
        if (n < 0)
            return false;
        octets.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

// Access rights are the directory's here.
bool Descripteur::prendre_les_droits(const char*) const {
    return true;
}

bool Descripteur::vers_le_disque() const {
    return ouvert() && noter(::FlushFileBuffers(poignee(numero_)));
}

// Far behind the end: what is locked cannot be read by others.
bool Descripteur::verrouiller() const {
    OVERLAPPED place{};
    place.OffsetHigh = 0x7FFFFFFF;
    return noter(::LockFileEx(poignee(numero_), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY,
                              0, 1, 0, &place));
}

bool Descripteur::fermer() {
    const int numero = std::exchange(numero_, -1);
    return numero < 0 || ::_close(numero) == 0;
}

bool renommer(const char* de, const char* vers) {
    return noter(::MoveFileExW(large(de).c_str(), large(vers).c_str(),
                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

bool supprimer(const char* chemin) {
    return noter(::DeleteFileW(large(chemin).c_str()));
}

bool est_un_terminal(Flux flux) {
    return ::_isatty(flux == Flux::entree ? 0 : flux == Flux::sortie ? 1 : 2) != 0;
}

void preparer_le_processus() {
    ::SetConsoleOutputCP(CP_UTF8);
    ::SetConsoleCP(CP_UTF8);
}

std::optional<std::tm> heure_locale(std::time_t instant) {
    std::tm champs{};
    return ::localtime_s(&champs, &instant) == 0 ? std::optional(champs) : std::nullopt;
}

std::filesystem::path dossier_personnel() {
    const wchar_t* profil = ::_wgetenv(L"USERPROFILE");
    return profil != nullptr ? profil : L"";
}

std::filesystem::path programme() {
    std::wstring chemin(32768, L'\0');
    chemin.resize(::GetModuleFileNameW(nullptr, chemin.data(), static_cast<DWORD>(chemin.size())));
    return chemin;
}

// They end the program as they do elsewhere.
SignauxDeFin::SignauxDeFin() = default;
SignauxDeFin::~SignauxDeFin() = default;
int SignauxDeFin::lire() const {
    return 0;
}

void SignauxDeFin::finir(int signal) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    std::_Exit(EXIT_FAILURE);
}

} // namespace systeme
