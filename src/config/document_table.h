#pragma once

#include "config/document.h"
#include "config/fiche_table.h"
#include "sim/etat.h"

/// A table file under edit. Boxes are normalised (X1 <= X2, Y1 <= Y2). A disc ("DR") is x, y,
/// radius.
class DocumentTable : public Document {
public:
    /// Largest coordinate of a record other than a piece (cm): the border still fits in 16 bits.
    static constexpr int coordonnee_max = 32762;

    /// An empty table of 200 x 320 cm: header and caption.
    static DocumentTable nouveau();
    /// Reads any bytes: what is no proper record is kept as it is.
    static DocumentTable depuis(std::string_view octets);
    /// What figer() gave. @throws ErreurExecution for other bytes
    static DocumentTable depuis_fige(std::string_view fige);

    /// The record, its numbers brought into the range that reader and drawing accept, its box the
    /// right way round.
    static Fiche normaliser(Fiche e);
    void remplacer(std::size_t i, Fiche e) { Document::remplacer(i, normaliser(std::move(e))); }
    /// Adds a record, drawn over those of its kind. @throws ErreurExecution, a sentence for the
    /// user, when its kind is full
    std::size_t ajouter(Fiche e);
    /// Moves a record one step within its kind: later ones are drawn over it.
    /// @returns its new index, `i` when it is the last (first) already
    std::size_t deplacer(std::size_t i, bool vers_l_avant);

    /// The file's bytes. A disc's radius is read up to the fourth comma of the four-field record
    /// before it: lines are laid out (that record padded, or one moved up) so that it is read
    /// whole.
    /// @throws ErreurExecution when the reader would not read back these very records
    std::string ecrire() const;
    /// What the simulator's reader makes of the file: lines that are not understood stop it.
    static std::optional<RefusLecture> relire(std::string_view octets);

    /// Fills the table's records, its extent and the region to repaint with what can be drawn.
    void remplir(Etat& e) const;

private:
    /// The caption that counts, the last one.
    std::string legende() const;
    std::size_t champs(std::size_t r) const;
    bool a_quatre_champs(std::size_t r) const;
    bool est_disque(std::size_t r) const;
    void monter_un_quatre_champs();
    std::vector<std::string> mettre_en_page() const;
    void comparer(const DocumentTable& relu) const;
};
