#include "config/document_table.h"

#include "config/ecriture.h"
#include "config/lecteur_table.h"
#include "config/ligne.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

/// The reader takes this very disc from the line when the remembered fourth comma is `virgule4`.
bool se_relit(std::string_view ligne, const Fiche& disque, std::ptrdiff_t virgule4) {
    return eventuelle(GrammaireTable(virgule4).lire(sans_commentaire(ligne))) == disque;
}

/// Column of the last comma of a line's record.
std::ptrdiff_t derniere_virgule(std::string_view ligne) {
    return static_cast<std::ptrdiff_t>(sans_commentaire(ligne).rfind(','));
}

void ajouter_s_il_reste_de_la_place(const Fiche& f, AireDeJeu& e) {
    try {
        ajouter_a_la_table(f, e);
    } catch (const HorsTable&) { // NOLINT(bugprone-empty-catch)
        // What is drawn are the first ones; saving says that there are too many.
    }
}

std::string disque_serre(const Fiche& e) {
    const auto nombre = [&](std::size_t i) { return std::to_string(e.entier(i)); };
    return "DR," + nombre(0) + "," + nombre(1) + "," + nombre(2);
}

} // namespace

DocumentTable DocumentTable::nouveau() {
    Ecrivain texte;
    texte.entete("table.ini ")
        .ligne("#")
        .description("Fichier de description de l'aire de jeu", "Readme.txt")
        .ligne("M,,,Nouvelle table")
        .ligne()
        .ligne("U , 0, 0, 200, 320");
    return depuis(texte.texte());
}

DocumentTable DocumentTable::depuis(std::string_view octets) {
    DocumentTable d;
    GrammaireTable grammaire;
    d.lire(octets, [&](std::string_view ligne) { return grammaire.lire(ligne); });
    return d;
}

DocumentTable DocumentTable::depuis_fige(std::string_view fige) {
    DocumentTable d;
    d.relever(fige, [](const Fiche& f) {
        return f.cle == "M" || (sorte_table(f.cle) != nullptr && en_16_bits(f));
    });
    return d;
}

Fiche DocumentTable::normaliser(Fiche e) {
    const std::size_t n = nombre_de_champs(e.cle);
    const FormeTable forme = forme_table(e.cle);
    for (std::size_t i = 0; i < n; ++i) {
        // A disc's radius may be anything that 16 bits hold, and so may a piece's fields.
        const bool libre = forme == FormeTable::pion || (forme == FormeTable::disque && i == 2);
        e.v[i] = std::clamp(e.v[i], libre ? -32768.0F : 0.0F,
                            libre ? 32767.0F : static_cast<float>(coordonnee_max));
    }
    if (forme == FormeTable::boite)
        remettre_d_aplomb(e);
    if (e.cle == "LE" && e.v[0] == e.v[2]) { // an ellipse without width cannot be drawn
        if (e.v[0] > 0)
            e.v[0] -= 1;
        else
            e.v[2] += 1;
    }
    std::fill(e.v.begin() + static_cast<std::ptrdiff_t>(n), e.v.end(), 0.0F);
    std::replace(e.texte.begin(), e.texte.end(), ',', '\n'); // a comma breaks the line too
    std::erase_if(e.texte, [](char c) { return c == '#' || c == '\r' || c == '\0'; });
    return e;
}

std::size_t DocumentTable::ajouter(Fiche e) {
    const SorteTable* sorte = sorte_table(e.cle);
    if (sorte != nullptr && compter(sorte->cles) >= sorte->capacite)
        throw ErreurExecution("La table ne peut pas avoir plus de " +
                              std::to_string(sorte->capacite) + " " + std::string(sorte->nom));
    const auto cles = sorte != nullptr ? sorte->cles : std::vector<std::string_view>{"M"};
    return Document::ajouter(normaliser(std::move(e)), cles);
}

std::size_t DocumentTable::deplacer(std::size_t i, bool vers_l_avant) {
    const SorteTable* sorte = sorte_table((*this)[i].cle);
    if (sorte == nullptr)
        return i;
    const std::size_t n = nombre();
    for (std::size_t j = i; vers_l_avant ? ++j < n : j-- > 0;) {
        if (sorte_table((*this)[j].cle) == sorte) {
            echanger(i, j);
            return j;
        }
    }
    return i;
}

bool DocumentTable::a_quatre_champs(std::size_t r) const {
    return champs(r) == 4;
}

std::size_t DocumentTable::champs(std::size_t r) const {
    return entrees_[r].objet ? nombre_de_champs(entrees_[r].objet->cle) : 0;
}

bool DocumentTable::est_disque(std::size_t r) const {
    return entrees_[r].objet && entrees_[r].objet->cle == "DR";
}

// The first record with four fields that is no block goes before the first disc: it is the first of
// its kind all the same, so nothing is drawn in another order.
void DocumentTable::monter_un_quatre_champs() {
    std::size_t disque = 0;
    while (disque < entrees_.size() && !est_disque(disque) && !a_quatre_champs(disque))
        ++disque;
    if (disque == entrees_.size() || !est_disque(disque))
        return;
    std::size_t bloc = entrees_.size();
    std::size_t autre = entrees_.size();
    for (std::size_t r = entrees_.size(); r-- > disque;)
        if (a_quatre_champs(r))
            (entrees_[r].objet->cle == "DC" ? bloc : autre) = r;
    const std::size_t choisi = autre != entrees_.size() ? autre : bloc;
    if (choisi == entrees_.size())
        throw ErreurExecution("Un disque ne se relit qu'après un enregistrement à quatre champs : "
                              "ajoutez un rectangle, une ligne ou une ellipse à la table");
    if (entrees_[choisi].fin.empty()) {
        entrees_[choisi].fin = fin_usuelle_;
        entrees_[choisi - 1].fin.clear();
    }
    const auto debut = entrees_.begin();
    std::rotate(debut + static_cast<std::ptrdiff_t>(disque),
                debut + static_cast<std::ptrdiff_t>(choisi),
                debut + static_cast<std::ptrdiff_t>(choisi) + 1);
    renumeroter();
}

std::vector<std::string> DocumentTable::mettre_en_page() const {
    std::vector<std::string> lignes;
    std::size_t quatre = entrees_.size(); // the latest four-field record
    std::ptrdiff_t virgule4 = -1;         // its fourth comma
    std::ptrdiff_t voulue = -1; // where that must stand to give every disc after it its radius
    bool a_refaire = false;     // some disc is not read as it should be
    const auto elargir = [&] {
        if (a_refaire && quatre != entrees_.size() && voulue > virgule4)
            lignes[quatre].insert(static_cast<std::size_t>(virgule4),
                                  static_cast<std::size_t>(voulue - virgule4), ' ');
        voulue = -1;
        a_refaire = false;
    };
    for (std::size_t r = 0; r < entrees_.size(); ++r) {
        const Entree& e = entrees_[r];
        const bool telle_quelle = e.objet == e.lu;
        lignes.push_back(telle_quelle ? e.octets : composer(e, champs(r)));
        if (a_quatre_champs(r)) {
            elargir();
            quatre = r;
            virgule4 = derniere_virgule(lignes[r]);
        } else if (est_disque(r)) {
            voulue = std::max(voulue, std::ssize(disque_serre(*e.objet)));
            a_refaire = a_refaire || !se_relit(lignes[r], *e.objet, virgule4);
        }
    }
    elargir();
    // The fourth commas stand: each disc that is not read as it should be is written tightly.
    for (std::size_t r = 0; r < entrees_.size(); ++r) {
        const Entree& e = entrees_[r];
        if (a_quatre_champs(r))
            virgule4 = derniere_virgule(lignes[r]);
        else if (est_disque(r) && !se_relit(lignes[r], *e.objet, virgule4))
            lignes[r] = disque_serre(*e.objet) + commentaire(e);
    }
    return lignes;
}

std::string DocumentTable::ecrire() const {
    DocumentTable d = *this;
    d.monter_un_quatre_champs();
    const std::vector<std::string> lignes = d.mettre_en_page();
    const auto ecrire_ligne = [&](std::size_t r) { return lignes[r]; };
    if (const auto refus = relire(d.assembler_les_comprises(ecrire_ligne)))
        throw ErreurExecution("La table ne pourrait pas être relue (ligne " +
                              std::to_string(refus->ligne) + ") : " + refus->raison);
    std::string octets = d.assembler(ecrire_ligne);
    d.comparer(depuis(octets));
    return octets;
}

void DocumentTable::comparer(const DocumentTable& relu) const {
    // A disc that no four-field record preceded may have got one.
    if (relu.incomprises() != incomprises())
        throw ErreurExecution("Une ligne qui n'était pas comprise le deviendrait : corrigez-la "
                              "d'abord dans le fichier");
    for (std::size_t i = 0; i < std::min(nombre(), relu.nombre()); ++i) {
        const Fiche& f = (*this)[i];
        if (f.cle != "M" && relu[i] != f)
            throw ErreurExecution("L'objet " + std::to_string(i + 1) + " (" + f.cle +
                                  ") ne serait pas relu tel qu'il est dessiné");
    }
    if (relu.nombre() != nombre() || relu.legende() != legende())
        throw ErreurExecution(
            "La légende ou le nombre des objets ne seraient pas relus tels quels");
}

std::string DocumentTable::legende() const {
    for (std::size_t i = nombre(); i-- > 0;)
        if ((*this)[i].cle == "M")
            return (*this)[i].texte;
    return "";
}

std::optional<RefusLecture> DocumentTable::relire(std::string_view octets) {
    const auto e = std::make_unique<AireDeJeu>();
    vider_table(*e);
    return refus_de([&](Entier16& NoLigne) {
        lire_table(
            en_utf8(std::string(octets)), *e, [](std::string_view) {}, NoLigne);
    });
}

void DocumentTable::remplir(Etat& e) const {
    vider_table(e);
    for (std::size_t i = 0; i < nombre(); ++i) {
        const Fiche& f = (*this)[i];
        const bool indessinable = f.cle == "LE" && f.v[0] == f.v[2];
        if (indessinable) // one without width stops the simulator's drawing
            etendre_la_table(f, e);
        else
            ajouter_s_il_reste_de_la_place(f, e);
    }
    e.XMax = std::min<int>(e.XMax, coordonnee_max);
    e.YMax = std::min<int>(e.YMax, coordonnee_max);
    e.ZoneRedessin = {-5, e.XMax + 5, -5, e.YMax + 5};
}
