#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// What the program asks of the operating system beyond the standard library; systeme_posix.cpp
/// answers on Linux and macOS, systeme_windows.cpp on Windows, and no other file includes a
/// system's header. What fails sets errno. Paths are UTF-8.
namespace systeme {

enum class Sorte { ordinaire, dossier, autre };

/// What lies at a path or behind a descriptor.
struct Infos {
    Sorte sorte = Sorte::autre;
    std::uintmax_t taille = 0;
    std::uintmax_t liens = 0; ///< names that it has: 0 once it is removed
    std::int64_t volume = 0;  ///< with `numero`: tells one file from another
    std::int64_t numero = 0;  ///< on its volume
    std::time_t modifie = 0;  ///< its content, last
    std::int64_t changement_s = 0, changement_ns = 0; ///< anything about it, last
};

/// Symbolic links are followed.
std::optional<Infos> infos(const char* chemin);
bool peut_ecrire(const char* chemin);

enum class Ouverture {
    lecture,           ///< a FIFO does not hold the program up
    lecture_sans_lien, ///< a symbolic link is refused
    verrou,            ///< made when it is missing, a symbolic link is refused
    dossier            ///< to be flushed
};

/// An open file that closes itself.
class Descripteur {
public:
    Descripteur() = default;
    Descripteur(const char* chemin, Ouverture ouverture);
    /// Makes a file of a new name: `modele` ends with "XXXXXX", which become letters and digits.
    static Descripteur creer_unique(std::string& modele);
    Descripteur(Descripteur&& autre) noexcept;
    Descripteur& operator=(Descripteur&& autre) noexcept;
    ~Descripteur() { fermer(); }

    bool ouvert() const { return numero_ >= 0; }
    /// One more descriptor of the same open file: its lock lasts until the last one is closed.
    Descripteur doubler() const;
    std::optional<Infos> infos() const;
    /// @returns bytes read, 0 at the end, -1 on an error
    std::ptrdiff_t lire(char* octets, std::size_t nombre) const;
    bool ecrire_tout(std::string_view octets) const;
    /// Permissions of the file `modele`, or those of a new file when there is none.
    bool prendre_les_droits(const char* modele) const;
    bool vers_le_disque() const;
    /// An advisory lock, without waiting; errno EWOULDBLOCK when somebody else has it.
    bool verrouiller() const;
    /// @returns what closing says; true when it was not open
    bool fermer();

private:
    explicit Descripteur(int numero) : numero_(numero) {}
    int numero_ = -1;
};

/// Puts a file in the place of another, at once and as a whole.
bool renommer(const char* de, const char* vers);
bool supprimer(const char* chemin);

enum class Flux { entree, sortie, erreurs };
bool est_un_terminal(Flux flux);

/// To be called first in main(): a file that grows past its limit is an error and not the end; a
/// standard stream that is closed gets something in its place against which every reading and
/// writing fails, else the first file that is opened would receive what is meant for the terminal.
void preparer_le_processus();

std::optional<std::tm> heure_locale(std::time_t instant);
std::filesystem::path dossier_personnel(); ///< empty: unknown
std::filesystem::path programme();         ///< the executable's file; empty: unknown

/// The signals that end a program from outside (a session ends, a terminal closes, Ctrl+C), as
/// something to be read instead. Made before any thread: they inherit what they do not take.
class SignauxDeFin {
public:
    SignauxDeFin();
    SignauxDeFin(const SignauxDeFin&) = delete;
    SignauxDeFin& operator=(const SignauxDeFin&) = delete;
    ~SignauxDeFin();

    int descripteur() const {
        return numero_;
    }                 ///< readable when one has come; -1: not on this system
    int lire() const; ///< the signal that has come, 0 for none

    /// Ends the program at once as that signal does: nothing else of it runs.
    [[noreturn]] static void finir(int signal);

private:
    int numero_ = -1;
};

} // namespace systeme
