#pragma once

#include "base/erreurs.h"
#include "base/nombres.h"
#include "base/texte.h"
#include "config/fiche.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a file's reader would say of its text: the line that stops it and why.
struct RefusLecture {
    int ligne;
    std::string raison;
};
/// Reads a text to its end. @param lire  reads it; its line counter tells where it stops
std::optional<RefusLecture> refus_de(const std::function<void(Entier16&)>& lire);

/// What a line of a file says (UTF-8, without its comment).
using Grammaire = std::function<FicheLue(std::string_view)>;

/// A line of a file or of a text pasted into one that cannot be taken. what() is "Ligne 3 : " and
/// the reason.
class LigneRefusee : public ErreurExecution {
public:
    LigneRefusee(int ligne, const std::string& raison)
        : ErreurExecution("Ligne " + std::to_string(ligne) + " : " + raison), ligne_(ligne) {}
    int ligne() const { return ligne_; }

private:
    int ligne_;
};

/// A configuration file under edit: its records in order, and every other line (comments, blank
/// lines, lines that are not understood) in its place. A line whose record is not changed keeps its
/// bytes. A value: an earlier state is a copy of it.
class Document {
public:
    std::size_t nombre() const { return rangs_.size(); }
    const Fiche& operator[](std::size_t i) const { return *entrees_[rangs_[i]].objet; }
    /// Records whose key is one of `cles`.
    int compter(const std::vector<std::string_view>& cles) const;
    /// The line of a record, from 1.
    int ligne(std::size_t i) const { return static_cast<int>(rangs_[i]) + 1; }
    /// Lines that count but hold no record, by their number from 1.
    std::vector<int> incomprises() const;

    void remplacer(std::size_t i, Fiche e) { entrees_[rangs_[i]].objet = std::move(e); }
    void retirer(std::size_t i);
    /// Puts a record on a line of its own behind the last one with one of these keys, else at the
    /// end. @returns its index
    std::size_t ajouter(Fiche e, const std::vector<std::string_view>& cles);
    /// Takes a record with its line to where it is record `vers`.
    void deplacer_vers(std::size_t i, std::size_t vers);
    /// Swaps two records with their lines.
    void echanger(std::size_t i, std::size_t j);

    /// The other one has the same records in the same order.
    bool memes_fiches(const Document& autre) const;

    Encodage encodage() const { return encodage_; }

    /// The whole of it, also what could not be written to a file yet: for a recovery file.
    std::string figer() const;

protected:
    struct Entree {
        std::string octets;         ///< the line as it was read, without its end
        std::string fin;            ///< its end: CR LF, LF, CR, or none (last line)
        std::optional<Fiche> lu;    ///< the record that `octets` hold
        std::optional<Fiche> objet; ///< the record to write; none: the line as it was read
        bool compte = false;        ///< a line that a reader looks at
    };
    /// @param compte  tells whether a reader looks at a line
    void lire(std::string_view octets, const Grammaire& grammaire,
              bool (*compte)(std::string_view) = contient_capitale_ou_chiffre);
    /// Takes back what figer() gave. @throws ErreurExecution for other bytes, or when a record is
    /// not `possible`
    void relever(std::string_view fige, const std::function<bool(const Fiche&)>& possible);
    void renumeroter();
    /// The line in front of which a new record i goes.
    std::size_t rang_pour(std::size_t i) const;
    /// Puts a line that counts, with the file's usual end, in front of line r (from 0).
    void inserer_entree(std::size_t r, Entree nouvelle);
    /// The comment at the end of a line, with a blank before it; "" without one.
    static std::string commentaire(const Entree& e);
    /// The line of a changed record, with the comment that it had.
    /// @param champs  how many numbers the record has
    std::string composer(const Entree& e, std::size_t champs) const;
    /// The file's bytes, its lines made by `ecrire`.
    std::string assembler(const std::function<std::string(std::size_t)>& ecrire) const;
    /// Likewise, in UTF-8, without the lines that are not understood: they stop the reader,
    /// whatever is edited.
    std::string
    assembler_les_comprises(const std::function<std::string(std::size_t)>& ecrire) const;

    std::string prefixe_; ///< byte-order mark
    Encodage encodage_ = Encodage::utf8;
    std::string fin_usuelle_{RetourLigne};
    std::vector<Entree> entrees_;
    std::vector<std::size_t> rangs_; ///< of the entries that hold a record
};
