#include "base/erreurs.h"

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace {

// The system's own texts follow the locale; these are the ones a student meets before a contest.
std::string raison_systeme(int numero) {
    constexpr std::array<std::pair<int, const char*>, 13> connues{{
        {ENOENT, "le fichier n'existe pas"},
        {EACCES, "accès refusé"},
        {EPERM, "opération interdite"},
        {ENOSPC, "le disque est plein"},
        {EDQUOT, "l'espace disque accordé est épuisé"},
        {EROFS, "le disque est en lecture seule"},
        {EISDIR, "c'est un dossier"},
        {ENOTDIR, "une partie du chemin n'est pas un dossier"},
        {ENAMETOOLONG, "le nom est trop long"},
        {EIO, "erreur du disque"},
        {EFBIG, "le fichier est trop grand"},
        {ELOOP, "trop de liens symboliques"},
        {EMFILE, "trop de fichiers ouverts"},
    }};
    for (const auto& [n, texte] : connues) {
        if (n == numero)
            return texte;
    }
    return std::generic_category().message(numero);
}

std::string abrege(std::string_view texte) {
    constexpr std::size_t maximum = 80;
    if (texte.size() <= maximum)
        return std::string(texte);
    std::size_t fin = maximum;
    while (fin > 0 && (static_cast<unsigned char>(texte[fin]) & 0xC0U) == 0x80U)
        --fin;
    return std::string(texte.substr(0, fin)) + "…";
}

} // namespace

ErreurConversion::ErreurConversion(std::string_view texte, std::string_view attendu)
    : ErreurExecution("« " + abrege(texte) + " » n'est pas " + std::string(attendu)) {}

HorsTable::HorsTable(long long indice, long long dernier)
    : ErreurExecution("indice " + std::to_string(indice) + " hors de la table (0 à " +
                      std::to_string(dernier) + ")") {}

Debordement::Debordement(long long valeur)
    : ErreurExecution(std::to_string(valeur) + " dépasse les bornes -32768 à 32767") {}

ErreurFichier::ErreurFichier(const std::filesystem::path& chemin, std::string_view raison)
    : ErreurExecution(chemin.string() + " : " + std::string(raison)),
      chemin_(chemin),
      raison_(raison) {}

ErreurFichier::ErreurFichier(const std::filesystem::path& chemin, int numero_erreur)
    : ErreurFichier(chemin, raison_systeme(numero_erreur)) {}
