// What the table editor's commands and fields do to the drawing.
#include "ui/editeurs/dessin_table.h"

#include "ui/editeurs/formes.h"

#include <QStatusBar>

#include <algorithm>
#include <cmath>

void dessinTable::refuser(const std::string& raison) {
    boites_.message(raison);
}

void dessinTable::retirer() {
    if (historique_.selection().empty())
        return;
    DocumentTable d = historique_.doc();
    Selection s = historique_.selection();
    for (std::size_t k = s.size(); k-- > 0;)
        d.retirer(s[k]);
    historique_.changer("Supprimer", std::move(d), {});
}

// Placed beside the originals, by one step of the grid, and chosen in their place.
void dessinTable::dupliquer() {
    DocumentTable d = historique_.doc();
    std::vector<Fiche> copies;
    for (const std::size_t i : historique_.selection())
        if (d[i].cle != "M")
            copies.push_back(formes::deplacee(d[i], vue_.grille(), vue_.grille()));
    if (copies.empty())
        return;
    Selection s;
    for (const Fiche& e : copies) {
        const std::size_t i = d.ajouter(e);
        for (std::size_t& j : s)
            j += j >= i ? 1 : 0;
        s.push_back(i);
    }
    std::sort(s.begin(), s.end());
    historique_.changer("Dupliquer", std::move(d), s);
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
    std::vector<Fiche> objets;
    for (const std::size_t i : historique_.selection())
        objets.push_back(d[i]);
    const QPointF ecart = formes::deplacement_permis(objets, {dx, dy});
    if (objets.empty() || ecart.isNull())
        return;
    for (const std::size_t i : historique_.selection())
        d.remplacer(i, formes::deplacee(d[i], ecart.x(), ecart.y()));
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

// On the edge (or the middle) of the box around everything that is chosen.
void dessinTable::aligner(Bord bord) {
    DocumentTable d = historique_.doc();
    QRectF tout;
    for (const std::size_t i : historique_.selection())
        if (d[i].cle != "M")
            tout = tout.isNull() ? formes::cadre(d[i]) : tout.united(formes::cadre(d[i]));
    if (historique_.selection().size() < 2)
        return refuser("Choisissez au moins deux objets à aligner");
    for (const std::size_t i : historique_.selection()) {
        const QRectF r = formes::cadre(d[i]);
        QPointF ecart;
        switch (bord) {
        case Bord::gauche:
            ecart.setX(tout.left() - r.left());
            break;
        case Bord::droite:
            ecart.setX(tout.right() - r.right());
            break;
        case Bord::haut: // y upwards
            ecart.setY(tout.bottom() - r.bottom());
            break;
        case Bord::bas:
            ecart.setY(tout.top() - r.top());
            break;
        case Bord::milieu_x:
            ecart.setX(tout.center().x() - r.center().x());
            break;
        case Bord::milieu_y:
            ecart.setY(tout.center().y() - r.center().y());
            break;
        }
        ecart = formes::deplacement_permis({d[i]}, ecart);
        if (d[i].cle != "M")
            d.remplacer(i, formes::deplacee(d[i], ecart.x(), ecart.y()));
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
    auto& v = m.typees.v;
    v[2] = static_cast<float>(std::round(v[0] + m.longueur * std::cos(radians(angle))));
    v[3] = static_cast<float>(std::round(v[1] + m.longueur * std::sin(radians(angle))));
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
    Fiche e = d[s.front()];
    e.cle = cle;
    d.remplacer(s.front(), e);
    historique_.changer("Changer de sorte", std::move(d), s);
}

void dessinTable::changer_legende() {
    DocumentTable d = historique_.doc();
    Selection s = historique_.selection();
    const Fiche e{"M", {}, legende_.toPlainText().toStdString()};
    std::size_t i = d.nombre();
    while (i-- > 0 && d[i].cle != "M") {
    }
    if (i < d.nombre()) {
        d.remplacer(i, e);
    } else {
        const std::size_t place = d.ajouter(e);
        for (std::size_t& j : s)
            j += j >= place ? 1 : 0;
    }
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
