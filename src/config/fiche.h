#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// One record of a table, robot or trajectory file: what a line says.
struct Fiche {
    std::string cle;          ///< upper case: "L", "PB", "R", "AVANCE"...
    std::array<float, 4> v{}; ///< numbers in the record's own order (cm, degrees, hundredths);
                              ///< whole ones except the first of "A"; those it lacks are 0
    std::string texte;        ///< "M" only: the caption, lines separated by "\n"
    bool operator==(const Fiche&) const = default;

    int entier(std::size_t i) const { return static_cast<int>(v[i]); }
};

/// What a line says: its record, or why the line is refused.
struct FicheLue {
    Fiche fiche;
    std::string refus; ///< a sentence; empty when the line is taken
};
/// @throws ErreurLecture with the reason when the line is refused
Fiche exiger(FicheLue lue);
/// Nothing when the line is refused.
std::optional<Fiche> eventuelle(FicheLue lue);

/// Every number fits in 16 bits.
bool en_16_bits(const Fiche& f);

/// The line of a table or robot record: "L , 0, 19, 200, 21". A caption's lines are parted by
/// commas.
/// @param champs  how many numbers the record has
std::string ligne_de(const Fiche& f, std::size_t champs);
