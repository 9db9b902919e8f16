#include "config/document_robot.h"

#include "config/defauts.h"
#include "config/lecteur_robot.h"
#include "config/ligne.h"

#include <algorithm>
#include <memory>

namespace {

bool est_du_robot(std::string_view cle) {
    return cle.size() == 1 && std::string_view("RVAEI").find(cle) != std::string_view::npos;
}

std::optional<Fiche> analyser(std::string_view ligne) {
    try {
        Champs champs(ligne);
        Fiche e;
        e.cle = champs.cle().vue();
        if (!est_du_robot(e.cle))
            return std::nullopt;
        const std::size_t n = DocumentRobot::champs(e.cle);
        for (std::size_t i = 0; i + 1 < n; ++i)
            e.v[i] =
                e.cle == "A" && i == 0 ? lire_simple(champs.suivant()) : simple(champs.entier());
        e.v[n - 1] = simple(champs.dernier_entier());
        return e;
    } catch (const ErreurExecution&) {
        return std::nullopt; // not understood: the line is kept as it is
    }
}

std::unique_ptr<Etat> lu(std::string_view texte, Entier16& NoLigne) {
    auto e = std::make_unique<Etat>();
    LecteurRobot(*e).lire(texte, 1, NoLigne);
    return e;
}

} // namespace

std::size_t DocumentRobot::champs(std::string_view cle) {
    return cle == "R" ? 4 : cle == "V" ? 2 : 3;
}

DocumentRobot DocumentRobot::nouveau() {
    return depuis(robot_par_defaut("Nouveau", 1));
}

DocumentRobot DocumentRobot::depuis(std::string_view octets) {
    DocumentRobot d;
    d.lire(octets, analyser);
    return d;
}

DocumentRobot DocumentRobot::depuis_fige(std::string_view fige) {
    DocumentRobot d;
    d.relever(fige, [](Fiche f) {
        if (f.cle == "A")
            f.v[0] = 0; // any number that has a fraction
        return est_du_robot(f.cle) && en_16_bits(f);
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

std::string DocumentRobot::texte(bool sans_les_incomprises) const {
    return assembler([&](std::size_t r) {
        const Entree& e = entrees_[r];
        if (!e.objet)
            return sans_les_incomprises && e.compte ? std::string("#") : e.octets;
        return e.objet == e.lu ? e.octets : composer(e, champs(e.objet->cle));
    });
}

std::string DocumentRobot::ecrire() const {
    // The lines that are not understood are left out here: they stop the reader, whatever is
    // edited.
    const std::string essai = texte(true);
    if (const auto refus = relire(essai))
        throw ErreurExecution("Le robot ne pourrait pas être relu (ligne " +
                              std::to_string(refus->ligne) + ") : " + refus->raison);
    const DocumentRobot relu = depuis(essai);
    bool pareil = relu.nombre() == nombre();
    for (std::size_t i = 0; pareil && i < nombre(); ++i)
        pareil = relu[i] == (*this)[i];
    if (!pareil)
        throw ErreurExecution("Le robot ne serait pas relu tel qu'il est dessiné");
    return texte(false);
}

std::optional<RefusLecture> DocumentRobot::relire(std::string_view octets) {
    Entier16 NoLigne;
    try {
        lu(en_utf8(std::string(octets)), NoLigne);
        return std::nullopt;
    } catch (const ErreurExecution& erreur) {
        return RefusLecture{NoLigne, erreur.what()};
    }
}

void DocumentRobot::remplir(Etat& e) const {
    Entier16 NoLigne;
    try {
        LecteurRobot(e).lire(en_utf8(texte(true)), 1, NoLigne);
    } catch (const HorsTable&) { // more than 50 segments: the first 50 are drawn
        e.NbPoints(1) = points_max;
    }
    e.XRobot(1) = e.XInit(1);
    e.YRobot(1) = e.YInit(1);
    e.CapRobot(1) = e.CapInit(1);
}
