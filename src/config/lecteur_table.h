#pragma once

#include "config/fiche.h"
#include "sim/etat.h"

#include <functional>
#include <string_view>

/// Empties the table's records and its extent. The slots keep their contents beyond the counts,
/// PointX and PointY keep their values.
void vider_table(AireDeJeu& e);

/// The table then reaches to the record: not to a disc's rim, not to pieces.
void etendre_la_table(const Fiche& f, AireDeJeu& e);
/// Adds a record to a table and extends the table to it; a caption is none of its records.
/// @throws HorsTable when its kind is full; the extent has grown then
void ajouter_a_la_table(const Fiche& f, AireDeJeu& e);

/// Adds a table file's records to an emptied table.
/// @param texte    the file's content, UTF-8
/// @param nommer   receives the caption of each "M" record, its commas as CR LF
/// @param NoLigne  counts the lines: the faulty one after an exception
/// @throws ErreurExecution on the first faulty line (the records before it stay), on a record
///         beyond its table's capacity (the count stays at the capacity), and at the end when the
///         extent is empty
void lire_table(std::string_view texte, AireDeJeu& e,
                const std::function<void(std::string_view)>& nommer, Entier16& NoLigne);
