#pragma once

#include "config/fiche.h"

#include <optional>
#include <vector>

/// A place, or a way to go (cm).
struct Vecteur {
    double x = 0;
    double y = 0;
    bool operator==(const Vecteur&) const = default;
};

/// The box around a record (cm).
struct Bornes {
    double gauche, bas, droite, haut;

    Vecteur milieu() const { return {(gauche + droite) / 2, (bas + haut) / 2}; }
    Bornes elargies(double marge) const {
        return {gauche - marge, bas - marge, droite + marge, haut + marge};
    }
    bool contiennent(Vecteur p) const {
        return gauche <= p.x && p.x <= droite && bas <= p.y && p.y <= haut;
    }
    bool contiennent(const Bornes& b) const {
        return gauche <= b.gauche && b.droite <= droite && bas <= b.bas && b.haut <= haut;
    }
};

// The shapes of a table's and a robot's records: where they lie, how they are taken and changed.
namespace formes {

/// A disc or a piece: centre and radius.
bool circulaire(const Fiche& e);
Bornes bornes(const Fiche& e);
/// Moved as a whole, by whole centimetres; the caller keeps it within the table.
Fiche deplacee(Fiche e, double dx, double dy);
/// The furthest that records may be moved so that the reader still accepts them: `d` cut.
Vecteur deplacement_permis(const std::vector<Fiche>& objets, Vecteur d);
/// Where a shape can be taken to change it: corners and middles of a box, ends of a line, four
/// points of a circle.
std::vector<Vecteur> poignees(const Fiche& e);
/// The shape after one of its handles was pulled to a point.
Fiche tiree(Fiche e, std::size_t poignee, Vecteur cm);
/// A line of that length and angle (degrees) from its first end.
Fiche tournee(Fiche ligne, double longueur, double angle);
/// True for a shape that would not be seen: a box without width or height, a line without length, a
/// circle without radius.
bool sans_etendue(const Fiche& e);
/// True when a click at this point takes the shape. Zones and pieces are full, the others lines.
bool touchee(const Fiche& e, Vecteur cm, double tolerance);

} // namespace formes
