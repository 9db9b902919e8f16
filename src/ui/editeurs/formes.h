#pragma once

#include "edition/formes.h"
#include "edition/mesures.h"
#include "ui/commun/panneau_proprietes.h"

#include <QPointF>
#include <QRectF>

class QColor;
class QString;

inline Vecteur en_vecteur(QPointF p) {
    return {p.x(), p.y()};
}
inline QPointF en_point(Vecteur v) {
    return {v.x, v.y};
}

// How the windows show a table's records.
namespace formes {

/// The box around a record, its top being the smaller y.
QRectF cadre(const Fiche& e);
/// "Zone L (blanc)"
QString nom(std::string_view cle);
QColor couleur(std::string_view cle);
/// The field of a measure of these records: its range is what the simulator reads.
PanneauProprietes::Champ champ(const Document& document, const Choix& choix, Grandeur g);

} // namespace formes
