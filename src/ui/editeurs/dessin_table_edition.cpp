// What the table editor's commands and fields do to the drawing.
#include "ui/editeurs/dessin_table.h"

#include <QStatusBar>

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

std::string dessinTable::copier() const {
    return ::copier(historique_.doc(), historique_.selection());
}

void dessinTable::coller(const std::string& lignes) {
    DocumentTable d = historique_.doc();
    const Selection s = ::coller(d, lignes, vue_.grille());
    if (!s.empty())
        historique_.changer("Coller", std::move(d), s);
}

void dessinTable::tout_choisir() {
    historique_.choisir(vue_.prenables());
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
    ::aligner(d, historique_.selection(), bord);
    historique_.changer("Aligner", std::move(d), historique_.selection());
}

Mesures dessinTable::mesures() const {
    return mesures_de(historique_.doc(), historique_.selection().front(), mesures_);
}

void dessinTable::changer_nombre(std::size_t champ, double valeur) {
    const Selection& s = historique_.selection();
    const Grandeur g = grandeurs_.at(champ);
    if (s.size() == 1) {
        Mesures m = mesures();
        if (taper(m, g, valeur))
            return prendre_mesures(std::move(m));
    } else if (DocumentTable d = historique_.doc(); taper(d, s, g, valeur)) {
        return historique_.changer("Changer une mesure", std::move(d), s);
    }
    statusBar()->showMessage(s.size() == 1
                                 ? "Refusé : l'objet sortirait des coordonnées permises"
                                 : "Refusé : un des objets sortirait des coordonnées permises ou "
                                   "ne se verrait plus");
    montrer_proprietes();
}

void dessinTable::prendre_mesures(Mesures m) {
    if (en_attente(m)) {
        mesures_ = std::move(m);
        statusBar()->showMessage(en_suspens());
        return;
    }
    DocumentTable d = historique_.doc();
    const bool change = prendre(d, m);
    mesures_ = std::move(m);
    if (change)
        historique_.changer("Changer une mesure", std::move(d), historique_.selection());
    else
        montrer_proprietes();
}

QString dessinTable::en_suspens() const {
    if (historique_.selection().size() != 1 || !mesures_ || !en_attente(mesures()))
        return {};
    return "Un objet sans étendue ne se verrait pas : cette mesure n'est pas encore prise";
}

void dessinTable::changer_sorte(const std::string& cle) {
    const Selection& s = historique_.selection();
    DocumentTable d = historique_.doc();
    for (const std::size_t i : s)
        ::changer_sorte(d, i, cle);
    if (!d.memes_fiches(historique_.doc()))
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
    const DocumentTable& d = historique_.doc();
    const Choix reste = vue_.prenables();
    Selection s = historique_.selection();
    std::erase_if(s, [&](std::size_t i) { return d[i].cle != "M" && !choisi(reste, i); });
    historique_.choisir(s);
}
