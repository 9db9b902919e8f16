#include "base/erreurs.h"

#include "base/raisons.h"
#include "base/visible.h"

#include <cerrno>
#include <utility>

// The system's own texts are English or follow the locale.
std::string raison_systeme(int numero) {
    static constexpr std::pair<int, const char*> connues[] = {
        {ENOENT, "le fichier n'existe pas"},
        {EACCES, "accès refusé"},
        {EPERM, "opération interdite"},
        {ENOSPC, "le disque est plein"},
        {EROFS, "le disque est en lecture seule"},
        {EISDIR, "c'est un dossier"},
        {ENOTDIR, "une partie du chemin n'est pas un dossier"},
        {ENAMETOOLONG, "le nom est trop long"},
        {EIO, "erreur du disque"},
        {EFBIG, "le fichier est trop grand"},
        {ELOOP, "trop de liens symboliques"},
        {EMFILE, "trop de fichiers ouverts"},
        {ENFILE, "trop de fichiers ouverts"},
        {EBADF, "fermé"},
        {EPIPE, "personne ne lit plus"},
        {EEXIST, "le fichier existe déjà"},
        {EINVAL, "nom ou opération refusés par le système"},
        {EBUSY, "le fichier est occupé"},
        {ETXTBSY, "le fichier est un programme en cours"},
        {ENOMEM, "la mémoire manque"},
        {ENXIO, "le périphérique ne répond pas"},
        {ENODEV, "le périphérique n'existe pas"},
        {EXDEV, "le fichier est sur un autre disque"},
        {EAGAIN, "le fichier est occupé"},
#ifdef EDQUOT // not on every system
        {EDQUOT, "l'espace disque accordé est épuisé"},
#endif
#ifdef ESTALE
        {ESTALE, "le disque du réseau ne répond plus"},
#endif
    };
    for (const auto& [n, texte] : connues) {
        if (n == numero)
            return texte;
    }
    return "erreur n° " + std::to_string(numero) + " du système";
}

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

std::string texte_erreur_execution(std::string_view raison) {
    return "Erreur d'exécution : " + std::string(raison);
}
