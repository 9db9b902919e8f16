#include "config/document_robot.h"

#include "config/defauts.h"
#include "config/lecteur_robot.h"
#include <memory>

DocumentRobot DocumentRobot::nouveau() {
    return depuis(robot_par_defaut("Nouveau", 1));
}

DocumentRobot DocumentRobot::depuis(std::string_view octets) {
    DocumentRobot d;
    d.lire(octets, fiche_robot);
    return d;
}

DocumentRobot DocumentRobot::depuis_fige(std::string_view fige) {
    DocumentRobot d;
    d.relever(fige, [](Fiche f) {
        if (f.cle == "A")
            f.v[0] = 0; // any number that has a fraction
        return champs_robot(f.cle) > 0 && en_16_bits(f);
    });
    return d;
}

std::size_t DocumentRobot::ajouter(Fiche e) {
    if (e.cle == "R" && compter({"R"}) >= segments_max)
        throw ErreurExecution("Le robot ne peut pas avoir plus de 50 segments");
    const std::string cle = e.cle;
    return Document::ajouter(std::move(e), {cle});
}

std::optional<std::size_t> DocumentRobot::trouver(std::string_view cle) const {
    for (std::size_t i = nombre(); i-- > 0;)
        if ((*this)[i].cle == cle)
            return i;
    return std::nullopt;
}

std::array<float, 4> DocumentRobot::valeurs(std::string_view cle) const {
    const auto i = trouver(cle);
    return i ? (*this)[*i].v : std::array<float, 4>{};
}

void DocumentRobot::regler(std::string_view cle, const std::array<float, 4>& v) {
    const Fiche e{std::string(cle), v, ""};
    if (const auto i = trouver(cle))
        remplacer(*i, e);
    else
        Document::ajouter(e, {cle});
}

std::string DocumentRobot::ligne_ecrite(std::size_t r) const {
    const Entree& e = entrees_[r];
    return e.objet == e.lu ? e.octets : composer(e, champs_robot(e.objet->cle));
}

std::string DocumentRobot::texte_compris() const {
    return assembler_les_comprises([this](std::size_t r) { return ligne_ecrite(r); });
}

std::string DocumentRobot::ecrire() const {
    const std::string essai = texte_compris();
    if (const auto refus = relire(essai))
        throw ErreurExecution("Le robot ne pourrait pas être relu (ligne " +
                              std::to_string(refus->ligne) + ") : " + refus->raison);
    if (!memes_fiches(depuis(essai)))
        throw ErreurExecution("Le robot ne serait pas relu tel qu'il est dessiné");
    return assembler([this](std::size_t r) { return ligne_ecrite(r); });
}

std::optional<RefusLecture> DocumentRobot::relire(std::string_view octets) {
    const auto modeles = std::make_unique<ModelesDeRobots>();
    Course course;
    return refus_de([&](Entier16& NoLigne) {
        LecteurRobot(*modeles, course).lire(en_utf8(std::string(octets)), 1, NoLigne);
    });
}

void DocumentRobot::remplir(Etat& e) const {
    Entier16 NoLigne;
    try {
        LecteurRobot(e).lire(texte_compris(), 1, NoLigne);
    } catch (const HorsTable&) { // more than 50 segments: the first 50 are drawn
        e.NbPoints(1) = points_max;
    }
    e.XRobot(1) = e.XInit(1);
    e.YRobot(1) = e.YInit(1);
    e.CapRobot(1) = e.CapInit(1);
}
