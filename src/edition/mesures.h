#pragma once

#include "config/document_table.h"

#include <cstddef>
#include <optional>

/// The measures of one record of a table as they were typed: the document keeps its box the right
/// way round, a line its exact length while its angle is changed.
struct Mesures {
    std::size_t indice;   ///< of the record
    Fiche typees, prises; ///< what stands in the fields, what the document made of it
    double longueur;      ///< of a line, cm
};

/// Of record i; what was typed before counts as long as the document has it so.
Mesures mesures_de(const DocumentTable& table, std::size_t i, const std::optional<Mesures>& avant);
/// A number typed in a field: one of the record's, or, behind them, a line's angle (degrees).
/// @returns false when the line would leave the coordinates that are permitted
bool taper(Mesures& mesures, std::size_t champ, double valeur);
/// True as long as they would leave nothing to be seen: another number may follow.
bool en_attente(const Mesures& mesures);
/// Puts them into the table. @returns false when it had them so
bool prendre(DocumentTable& table, Mesures& mesures);
/// The angle of a line from its first end (degrees, anticlockwise, -180..180).
double incidence(const Fiche& ligne);
