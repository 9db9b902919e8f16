#pragma once

#include "base/verrou.h"
#include "config/nom_projet.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// A drawing that is not saved, as its recovery file keeps it.
struct DessinGarde {
    std::filesystem::path fichier; ///< the file it belongs to; empty: never saved
    std::string sur_le_disque;     ///< that file's bytes when it was read or written last
    std::string document;          ///< Document::figer()
};

std::string texte_dessin(const DessinGarde& dessin);
/// @throws ErreurExecution for anything that texte_dessin() has not made
DessinGarde lire_dessin(std::string_view octets);

/// The recovery files of an editor's drawings, "Configuration/Dessin table 1.reprise", replaced as
/// a whole while the user draws. A program owns the one that it writes for as long as it runs; what
/// an earlier program left belongs to nobody and is offered.
class RepriseDessin {
public:
    RepriseDessin(std::filesystem::path configuration, GenreFichier genre)
        : configuration_(std::move(configuration)), genre_(genre) {}

    /// True when some editor's file lies there, anybody's.
    static bool en_attente(const std::filesystem::path& configuration);

    /// Takes hold of the next file that belongs to nobody. @returns its path; none after the last
    std::optional<std::filesystem::path> prendre_la_suivante();
    // What becomes of the file held:
    DessinGarde lire() const; ///< @throws ErreurExecution
    void ranger();            ///< among the backups
    void mettre_de_cote();    ///< unreadable

    /// Writes the file held, or a new one. @throws ErreurFichier
    void ecrire(const DessinGarde& dessin);
    /// Nothing is left to recover.
    void effacer();

private:
    std::filesystem::path chemin(int rang, const char* suffixe) const;
    bool prendre(int rang);

    std::filesystem::path configuration_;
    GenreFichier genre_;
    std::optional<Verrou> verrou_;
    int rang_ = 0;         ///< of the file held, 0: none
    int derniere_vue_ = 0; ///< offered so far
};
