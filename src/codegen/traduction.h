#pragma once

#include "base/nombres.h"
#include "base/texte.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// How one kind of move becomes statements.
struct RegleTraduction {
    std::string_view mot;         ///< its first six characters decide; the value stands behind it
    std::string_view affectation; ///< stands before the value; empty: no value
    std::string_view sous_programme; ///< called after it; empty: none
};

/// Every kind, in the order in which a line is compared with them.
std::span<const RegleTraduction> regles_de_traduction();

/// One line of the generation input file.
struct Mouvement {
    std::size_t numero = 0; ///< line number, from 2
    std::string_view ligne;
    const RegleTraduction* regle = nullptr; ///< none: the line becomes a comment
    Entier16 valeur;                        ///< cm, degrees, 1/100 s or tiles; 0 without a value
};

/// Reads a generation input file (bytes), move by move; its first line is dropped unread.
class LecteurMouvements {
public:
    LecteurMouvements(std::string_view octets, std::filesystem::path fichier);

    /// The next move, or nothing at the end. @throws ErreurExecution naming file, line number and
    /// text when a value is missing, no number, or outside -32768..32767 once rounded
    std::optional<Mouvement> suivant();

private:
    std::string texte_;
    std::filesystem::path fichier_;
    Lignes lignes_;
    std::size_t numero_ = 1;
};

/// Appends the move's one or two statements, each behind a TAB.
void traduire(const Mouvement& mouvement, std::string_view fin, std::string& sortie);

/// A line that an ordinary header may have, empty or "#...": nobody takes it for a move.
bool est_une_ligne_d_entete(std::string_view ligne);

/// The lines of an input file, its first left out, that no rule translates.
struct LignesMuettes {
    std::size_t toutes = 0;      ///< each becomes a comment
    std::size_t inattendues = 0; ///< of these, neither empty nor "#..." as in a header
    std::size_t premiere = 0;    ///< line number of the first unexpected one
};

/// @param octets  a generation input file
LignesMuettes compter_les_muettes(std::string_view octets);
