#include "config/fiche_robot.h"

#include "config/lecture_fiche.h"

std::size_t champs_robot(std::string_view cle) {
    if (cle.size() != 1)
        return 0;
    switch (cle.front()) {
    case 'R':
        return 4;
    case 'V':
        return 2;
    case 'A':
    case 'E':
    case 'I':
        return 3;
    default:
        return 0;
    }
}

FicheLue fiche_robot(std::string_view ligne) {
    LectureFiche lecture(ligne);
    const std::size_t n = champs_robot(lecture.cle());
    if (n == 0) {
        lecture.refuser(cle_inconnue(lecture.cle()));
        return lecture.lue();
    }
    const bool a_virgule = lecture.cle() == "A"; // its first number may have a fraction
    for (std::size_t i = 0; i + 1 < n; ++i) {
        if (a_virgule && i == 0)
            lecture.simple(i, lecture.suivant());
        else
            lecture.entier(i);
    }
    lecture.entier(n - 1, lecture.champs().reste());
    return lecture.lue();
}
