#pragma once

#include "config/fiche.h"

#include <cstddef>
#include <string_view>
#include <vector>

class LectureFiche;

/// A kind of the table's records: what shares a capacity.
struct SorteTable {
    std::string_view nom;               ///< plural, for the user: "zones"
    std::vector<std::string_view> cles; ///< records of this kind
    int capacite;
};
/// Zones, pieces, lines, blocks, ellipses, in the order in which they are drawn.
const std::vector<SorteTable>& sortes_table();
/// The kind of a key; none for "M".
const SorteTable* sorte_table(std::string_view cle);

/// What a table record's numbers are.
enum class FormeTable {
    aucune, ///< unknown key, or the caption "M"
    boite,  ///< two opposite corners
    ligne,  ///< two ends
    disque, ///< centre and radius: "DR"
    pion    ///< centre and size
};
FormeTable forme_table(std::string_view cle);
/// How many numbers a table record of that key holds.
std::size_t nombre_de_champs(std::string_view cle);
/// X1 <= X2 and Y1 <= Y2.
void remettre_d_aplomb(Fiche& boite);

/// What the lines of one table file say, one after the other: a disc depends on the line before it.
class GrammaireTable {
public:
    GrammaireTable() = default;
    /// @param virgule4  column of the fourth comma that a disc's radius ends at
    explicit GrammaireTable(std::ptrdiff_t virgule4) : virgule4_(virgule4) {}

    /// The record of the next line; a box is the right way round.
    /// @param ligne  a line that counts, without its comment
    FicheLue lire(std::string_view ligne);
    /// Column of the fourth comma of the latest record taken that has four numbers, -1 before the
    /// first.
    std::ptrdiff_t virgule4() const { return virgule4_; }

private:
    std::string_view texte_du_rayon(LectureFiche& lecture) const;

    std::ptrdiff_t virgule4_ = -1;
};
