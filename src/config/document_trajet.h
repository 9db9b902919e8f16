#pragma once

#include "config/document.h"
#include "sim/etat.h"

#include <array>

/// The record of a trajectory file's line, short beacons included.
/// @param ligne  a line that counts, without its comment
FicheLue fiche_trajet(std::string_view ligne);

/// A trajectory file under edit: its actions and start poses ("INIT": x, y, heading) in order, keys
/// as the state has them ("AVANCE", "BALISE DRO", "FIN"). The beacons that the recorder writes
/// short ("BD", "BG") are records here, although the simulator's reader refuses them.
class DocumentTrajet : public Document {
public:
    /// A start pose and "FIN".
    static DocumentTrajet nouveau();
    /// Reads any bytes: what is no proper line is kept as it is.
    static DocumentTrajet depuis(std::string_view octets);
    /// What figer() gave. @throws ErreurExecution for other bytes
    static DocumentTrajet depuis_fige(std::string_view fige);
    /// Numbers that a record of that key holds, 0 for an unknown one.
    static std::size_t champs(std::string_view cle);

    /// Lines that the simulator's reader refuses, each with its reason, in order; the first one is
    /// where it stops.
    /// @param courtes  the short beacons too
    std::vector<RefusLecture> refus(bool courtes = true) const;
    int nb_actions() const;
    /// The start pose that counts, the last one: x, y (cm), heading (degrees).
    std::optional<std::array<int, 3>> depart() const;
    /// The line of record i as the file will have it, without its end.
    std::string texte_de(std::size_t i) const;

    /// The record, in the style of the lines beside it, as record i; the one past the last goes
    /// behind it.
    /// @throws ErreurExecution, a sentence for the user, for a record that no trajectory can hold
    ///         and beyond 1000 actions
    void inserer(std::size_t i, const Fiche& fiche);
    /// Takes lines of a trajectory file, comments and blank lines included, byte for byte.
    /// @param texte  UTF-8
    /// @returns how many records they hold
    /// @throws LigneRefusee for the first line that the reader refuses, ErreurExecution beyond 1000
    ///         actions: nothing is taken then
    std::size_t inserer_lignes(std::size_t i, std::string_view texte);
    /// @throws ErreurExecution likewise
    void remplacer(std::size_t i, Fiche fiche);

    /// The file's bytes. @throws ErreurExecution when the reader would not read back these very
    /// records
    std::string ecrire() const;
    static std::optional<RefusLecture> relire(std::string_view octets);
    /// The text (UTF-8) with what can be played alone: lines that are not understood are empty
    /// comments, short beacons are spelled out. It has as many lines.
    std::string texte_jouable() const;
    /// Robot n's trajectory and initial pose become these.
    void remplir(Etat& e, Entier16 n) const;

private:
    std::string ligne_ecrite(std::size_t r) const;
    std::string style_et_texte(std::size_t i, const Fiche& fiche) const;
    void exiger_place(int actions) const;
    void comparer(const DocumentTrajet& relu) const;
};

/// The key that plays as this one: the short beacons are spelled out.
std::string cle_jouee(std::string_view cle);
