#pragma once

#include "config/document_table.h"
#include "edition/choix.h"

#include <cstddef>
#include <optional>
#include <vector>

/// A number that a field shows of records: corners or ends, the lower left corner or the centre.
enum class Grandeur { x1, y1, x2, y2, x, y, largeur, hauteur, rayon, incidence };

/// Those of a record. @param coins  a box is told by its corners
std::vector<Grandeur> grandeurs(const Fiche& f, bool coins);
/// Those that all the chosen records have, captions left out.
std::vector<Grandeur> grandeurs(const Document& document, const Choix& choix, bool coins);
/// cm, degrees.
double valeur(const Fiche& f, Grandeur g);
/// The same of all of them, none when they differ.
std::optional<double> valeur(const Document& document, const Choix& choix, Grandeur g);

/// The measures of one record of a table as they were typed: the document keeps its box the right
/// way round, a line its exact length while its angle is changed.
struct Mesures {
    std::size_t indice;   ///< of the record
    Fiche typees, prises; ///< what stands in the fields, what the document made of it
    double longueur;      ///< of a line, cm
};

/// Of record i; what was typed before counts as long as the document has it so.
Mesures mesures_de(const DocumentTable& table, std::size_t i, const std::optional<Mesures>& avant);
/// A number typed in a field.
/// @returns false when the record would leave the coordinates that are permitted
bool taper(Mesures& mesures, Grandeur g, double valeur);
/// True as long as they would leave nothing to be seen: another number may follow.
bool en_attente(const Mesures& mesures);
/// Puts them into the table. @returns false when it had them so
bool prendre(DocumentTable& table, Mesures& mesures);
/// Likewise of several records at once.
/// @returns false, the table as it was, when one of them would not take it or would not be seen
bool taper(DocumentTable& table, const Choix& choix, Grandeur g, double valeur);
/// The angle of a line from its first end (degrees, anticlockwise, -180..180).
double incidence(const Fiche& ligne);
