#include "edition/segments_robot.h"

#include "edition/presse_papiers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

float en_16_bits(double x) {
    return static_cast<float>(std::clamp(std::round(x), -32768.0, 32767.0));
}

Fiche deplace(Fiche segment, Vecteur ecart) {
    for (std::size_t k = 0; k < segment.v.size(); ++k)
        segment.v[k] = en_16_bits(segment.v[k] + (k % 2 == 0 ? ecart.x : ecart.y));
    return segment;
}

Fiche image(Fiche segment, double x_axe) {
    for (const std::size_t k : {0U, 2U})
        segment.v[k] = en_16_bits(2 * x_axe - segment.v[k]);
    return segment;
}

Choix ajouter(DocumentRobot& robot, const std::vector<Fiche>& nouveaux) {
    Choix choix;
    for (const Fiche& f : nouveaux)
        choix.push_back(robot.ajouter(f)); // each behind the one before
    return choix;
}

} // namespace

DocumentRobot robot_neuf(double largeur_table) {
    constexpr double pas = 5; // the grid of a table
    DocumentRobot robot = DocumentRobot::nouveau();
    double arriere = 0; // behind the reference point
    for (const std::size_t i : segments(robot))
        arriere = std::max(arriere, robot.valeurs("A")[1] - formes::bornes(robot[i]).bas);
    robot.regler(
        "I", {en_16_bits(largeur_table / 2), en_16_bits(std::ceil(arriere / pas) * pas), 90, 0});
    return robot;
}

Choix segments(const DocumentRobot& robot) {
    Choix choix;
    for (std::size_t i = 0; i < robot.nombre(); ++i)
        if (robot[i].cle == "R")
            choix.push_back(i);
    return choix;
}

Choix segments(const DocumentRobot& robot, const Choix& choix) {
    Choix restants;
    std::copy_if(choix.begin(), choix.end(), std::back_inserter(restants),
                 [&](std::size_t i) { return robot[i].cle == "R"; });
    return restants;
}

Choix segments_dans(const DocumentRobot& robot, const Bornes& cadre) {
    Choix choix = segments(robot);
    std::erase_if(choix,
                  [&](std::size_t i) { return !cadre.contiennent(formes::bornes(robot[i])); });
    return choix;
}

std::optional<std::size_t> segment_sous(const DocumentRobot& robot, Vecteur cm, double tolerance) {
    const Choix choix = segments(robot);
    const auto trouve = std::find_if(choix.rbegin(), choix.rend(), [&](std::size_t i) {
        return formes::touchee({"LN", robot[i].v, ""}, cm, tolerance);
    });
    return trouve == choix.rend() ? std::nullopt : std::optional(*trouve);
}

std::size_t creer(DocumentRobot& robot, Fiche ligne) {
    ligne.cle = std::string("R"); // g++ 12 misreads the assignment of a literal
    if (formes::sans_etendue(ligne))
        throw ErreurExecution("Un segment sans longueur ne se verrait pas : tracez-le plus grand");
    return robot.ajouter(std::move(ligne));
}

Choix dupliquer(DocumentRobot& robot, const Choix& choix, double ecart) {
    std::vector<Fiche> copies;
    for (const std::size_t i : segments(robot, choix))
        copies.push_back(deplace(robot[i], {ecart, ecart}));
    return ajouter(robot, copies);
}

std::string copier(const DocumentRobot& robot, const Choix& choix) {
    std::string lignes;
    for (const std::size_t i : segments(robot, choix))
        lignes.append(ligne_de(robot[i], champs_robot("R"))).append(RetourLigne);
    return lignes;
}

Choix coller(DocumentRobot& robot, std::string_view lignes, double ecart) {
    std::vector<Fiche> nouveaux = lire_fiches(lignes, fiche_robot);
    std::erase_if(nouveaux, [](const Fiche& f) { return f.cle != "R"; });
    const auto present = [&](const Fiche& f) {
        const Choix tous = segments(robot);
        return std::any_of(tous.begin(), tous.end(), [&](std::size_t i) { return robot[i] == f; });
    };
    while (std::any_of(nouveaux.begin(), nouveaux.end(), present))
        for (Fiche& f : nouveaux)
            f = deplace(f, {ecart, ecart});
    return ajouter(robot, nouveaux);
}

void deplacer(DocumentRobot& robot, const Choix& choix, Vecteur ecart) {
    for (const std::size_t i : segments(robot, choix))
        robot.remplacer(i, deplace(robot[i], ecart));
}

Choix copier_en_miroir(DocumentRobot& robot, const Choix& choix) {
    const Choix tous = segments(robot);
    const Choix choisis = segments(robot, choix);
    std::vector<std::array<float, 4>> presents; // in both directions
    for (const std::size_t i : tous) {
        const auto& v = robot[i].v;
        presents.push_back(v);
        presents.push_back({v[2], v[3], v[0], v[1]});
    }
    std::vector<Fiche> images;
    for (const std::size_t i : choisis.empty() ? tous : choisis) {
        const Fiche f = image(robot[i], robot.valeurs("A")[0]);
        if (std::find(presents.begin(), presents.end(), f.v) == presents.end())
            images.push_back(f);
    }
    return ajouter(robot, images);
}

bool changer_segments(DocumentRobot& robot, const Choix& choix, std::size_t champ, double valeur) {
    DocumentRobot essai = robot;
    for (const std::size_t i : segments(robot, choix)) {
        Fiche f = robot[i];
        f.v[champ] = static_cast<float>(valeur);
        if (formes::sans_etendue(f) && !formes::sans_etendue(robot[i]))
            return false;
        essai.remplacer(i, std::move(f));
    }
    robot = std::move(essai);
    return true;
}

bool tirer_bout(DocumentRobot& robot, std::size_t i, std::size_t bout, Vecteur cm) {
    Fiche f = robot[i];
    f.v[2 * bout] = en_16_bits(cm.x);
    f.v[2 * bout + 1] = en_16_bits(cm.y);
    if (formes::sans_etendue(f))
        return false;
    robot.remplacer(i, std::move(f));
    return true;
}

void placer_reference(DocumentRobot& robot, Vecteur cm) {
    robot.regler("A", {en_16_bits(cm.x), en_16_bits(cm.y), robot.valeurs("A")[2], 0});
}

void placer_extremite(DocumentRobot& robot, Vecteur cm) {
    robot.regler("E", {en_16_bits(cm.x), en_16_bits(cm.y), robot.valeurs("E")[2], 0});
}

void placer_roue(DocumentRobot& robot, double x) {
    const auto a = robot.valeurs("A");
    robot.regler("A", {a[0], a[1], en_16_bits(2 * std::fabs(x - a[0])), 0});
}

void regler_nombre(DocumentRobot& robot, std::string_view cle, std::size_t rang, double valeur) {
    auto v = robot.valeurs(cle);
    v[rang] = static_cast<float>(valeur);
    robot.regler(cle, v);
}
