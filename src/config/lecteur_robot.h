#pragma once

#include "sim/etat.h"

#include <string_view>

/// Reads robot files into the state, one after the other; one object for one reading of a project's
/// robots, because the reference point carries over to a file without an "A" record ((0, 0) before
/// the first).
class LecteurRobot {
public:
    explicit LecteurRobot(Etat& etat) : e(etat) {}

    /// Reads robot n's file and turns its segments into outline points in polar form.
    /// @param texte    the file's content, UTF-8
    /// @param NoLigne  counts the lines: the faulty one after an exception, the last one when the
    ///                 outline as a whole is refused (more than 50 segments)
    /// @throws ErreurExecution; what was read before stays
    void lire(std::string_view texte, Entier16 n, Entier16& NoLigne);

private:
    using Segments = Tableau<Quatre, points_max>;

    void lire_ligne(std::string_view ligne, Entier16 n, Segments& segments);
    void convertir_contour(Entier16 n, const Segments& segments);
    void placer_point(Entier16 n, int k, Entier16 x, Entier16 y);

    Etat& e;
    float ax_ = 0; ///< reference point of the outline (cm)
    float ay_ = 0;
};
