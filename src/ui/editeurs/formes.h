#pragma once

#include "config/document_table.h"

#include <QPointF>
#include <QRectF>

#include <vector>

class QColor;
class QString;

// The shapes of a table's records: where they lie, how the mouse takes and changes them (cm).
namespace formes {

/// The box around a record, its top being the smaller y.
QRectF cadre(const Fiche& e);
/// Moved as a whole; the caller keeps it within the table.
Fiche deplacee(Fiche e, double dx, double dy);
/// The furthest that records may be moved so that the reader still accepts them: `dx`, `dy` cut.
QPointF deplacement_permis(const std::vector<Fiche>& objets, QPointF d);
/// Where a shape can be taken to change it: corners and middles of a box, ends of a line, four
/// points of a circle.
std::vector<QPointF> poignees(const Fiche& e);
/// The shape after one of its handles was pulled to a point.
Fiche tiree(Fiche e, std::size_t poignee, QPointF cm);
/// True for a shape that would not be seen: a box without width or height, a line without length, a
/// circle without radius.
bool sans_etendue(const Fiche& e);
/// True when a click at this point takes the shape. Zones and pieces are full, the others lines.
bool touchee(const Fiche& e, QPointF cm, double tolerance);
/// "Zone L (blanc)"
QString nom(std::string_view cle);
QColor couleur(std::string_view cle);

} // namespace formes
