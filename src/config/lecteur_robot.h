#pragma once

#include "config/fiche.h"
#include "sim/etat.h"

#include <string_view>

/// Reads robot files into the state, one after the other; one object for one reading of a project's
/// robots, because the reference point carries over to a file without an "A" record ((0, 0) before
/// the first).
class LecteurRobot {
public:
    /// @param course  takes the working copies of the sensor line
    LecteurRobot(ModelesDeRobots& modeles, Course& course) : modeles_(modeles), course_(course) {}
    explicit LecteurRobot(Etat& etat) : LecteurRobot(etat, etat) {}

    /// Reads robot n's file and turns its segments into outline points in polar form.
    /// @param texte    the file's content, UTF-8
    /// @param NoLigne  counts the lines: the faulty one after an exception, the last one when the
    ///                 outline as a whole is refused (more than 50 segments)
    /// @throws ErreurExecution; what was read before stays
    void lire(std::string_view texte, Entier16 n, Entier16& NoLigne);

private:
    using Segments = Tableau<Quatre, points_max>;

    void appliquer(const Fiche& f, Entier16 n, Segments& segments);
    void convertir_contour(Entier16 n, const Segments& segments);
    void placer_point(Entier16 n, int k, Entier16 x, Entier16 y);

    ModelesDeRobots& modeles_;
    Course& course_;
    float ax_ = 0; ///< reference point of the outline (cm)
    float ay_ = 0;
};
