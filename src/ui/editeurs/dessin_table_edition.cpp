// What the table editor's commands and fields do to the drawing.
#include "ui/editeurs/dessin_table.h"

#include "ui/editeurs/formes.h"

#include <QStatusBar>

#include <cmath>

void dessinTable::refuser(const std::string& raison) {
    boites_.message(raison);
}

void dessinTable::retirer() {
    if (historique_.selection().empty())
        return;
    DocumentTable d = historique_.doc();
    ::retirer(d, historique_.selection());
    historique_.changer("Supprimer", std::move(d), {});
}

// Placed beside the originals, by one step of the grid, and chosen in their place.
void dessinTable::dupliquer() {
    DocumentTable d = historique_.doc();
    const Selection copies = ::dupliquer(d, historique_.selection(), vue_.grille());
    if (!copies.empty())
        historique_.changer("Dupliquer", std::move(d), copies);
}

void dessinTable::tout_choisir() {
    Selection s;
    for (std::size_t i = 0; i < historique_.doc().nombre(); ++i)
        if (historique_.doc()[i].cle != "M" && !vue_.verrouille(historique_.doc()[i]))
            s.push_back(i);
    historique_.choisir(s);
}

void dessinTable::deplacer(double dx, double dy) {
    DocumentTable d = historique_.doc();
    if (::deplacer(d, historique_.selection(), {dx, dy}))
        historique_.changer("Déplacer", std::move(d), historique_.selection(), fusion_des_pas);
}

void dessinTable::changer_plan(bool vers_l_avant) {
    const Selection& s = historique_.selection();
    if (s.size() != 1)
        return refuser("Choisissez un seul objet pour changer son plan");
    DocumentTable d = historique_.doc();
    const std::size_t i = d.deplacer(s.front(), vers_l_avant);
    if (i != s.front())
        historique_.changer(vers_l_avant ? "Vers l'avant" : "Vers l'arrière", std::move(d), {i});
}

void dessinTable::aligner(Bord bord) {
    DocumentTable d = historique_.doc();
    try {
        ::aligner(d, historique_.selection(), bord);
    } catch (const ErreurExecution& erreur) {
        return refuser(erreur.what());
    }
    historique_.changer("Aligner", std::move(d), historique_.selection());
}

// What was typed counts as long as the document has it so.
dessinTable::Mesures dessinTable::mesures() const {
    const std::size_t i = historique_.selection().front();
    const Fiche& e = historique_.doc()[i];
    if (mesures_ && mesures_->indice == i && mesures_->prises == e)
        return *mesures_;
    return {i, e, e, std::hypot(e.v[2] - e.v[0], e.v[3] - e.v[1])};
}

void dessinTable::changer_nombre(std::size_t champ, double valeur) {
    if (historique_.selection().size() != 1)
        return;
    Mesures m = mesures();
    if (champ < 4 && champ < nombre_de_champs(m.typees.cle)) {
        m.typees.v[champ] = static_cast<float>(valeur);
        m.longueur = std::hypot(m.typees.v[2] - m.typees.v[0], m.typees.v[3] - m.typees.v[1]);
    } else if (!tourner(m, valeur)) {
        statusBar()->showMessage(
            "Refusé : à cet angle, la ligne sortirait des coordonnées permises");
        return montrer_proprietes();
    }
    prendre_mesures(std::move(m));
}

// The line turns about its first end and keeps its length. @returns false when it would not
bool dessinTable::tourner(Mesures& m, double angle) {
    m.typees = formes::tournee(m.typees, m.longueur, angle);
    return DocumentTable::normaliser(m.typees) == m.typees;
}

void dessinTable::prendre_mesures(Mesures m) {
    DocumentTable d = historique_.doc();
    if (formes::sans_etendue(m.typees) && !formes::sans_etendue(m.prises)) {
        mesures_ = std::move(m); // the other number may follow
        statusBar()->showMessage(en_suspens());
        return;
    }
    m.prises = DocumentTable::normaliser(m.typees);
    const bool pareil = m.prises == d[m.indice];
    d.remplacer(m.indice, m.prises);
    mesures_ = std::move(m);
    if (pareil)
        return montrer_proprietes();
    historique_.changer("Changer une mesure", std::move(d), historique_.selection());
}

QString dessinTable::en_suspens() const {
    if (historique_.selection().size() != 1 || !mesures_)
        return {};
    const Mesures m = mesures();
    if (!formes::sans_etendue(m.typees) || formes::sans_etendue(m.prises))
        return {};
    return "Un objet sans étendue ne se verrait pas : cette mesure n'est pas encore prise";
}

void dessinTable::changer_sorte(const std::string& cle) {
    const Selection& s = historique_.selection();
    if (s.size() != 1 || historique_.doc()[s.front()].cle == cle)
        return;
    DocumentTable d = historique_.doc();
    ::changer_sorte(d, s.front(), cle);
    historique_.changer("Changer de sorte", std::move(d), s);
}

void dessinTable::changer_legende() {
    DocumentTable d = historique_.doc();
    const Selection s =
        regler_legende(d, historique_.selection(), legende_.toPlainText().toStdString());
    historique_.changer("Changer la légende", std::move(d), s, fusion_des_frappes);
}

void dessinTable::verrouiller_les_zones(bool oui) {
    vue_.verrouiller_les_zones(oui);
    Selection s;
    for (const std::size_t i : historique_.selection())
        if (!vue_.verrouille(historique_.doc()[i]))
            s.push_back(i);
    historique_.choisir(s);
}
