#include "config/document_table.h"

#include "config/ecriture.h"
#include "config/lecteur_table.h"
#include "config/ligne.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

bool est_boite(std::string_view cle) {
    return cle != "LN" && nombre_de_champs(cle) == 4;
}

bool est_pion(std::string_view cle) {
    return cle != "DR" && nombre_de_champs(cle) == 3;
}

void remettre_d_aplomb(Fiche& e) {
    if (e.v[0] > e.v[2])
        std::swap(e.v[0], e.v[2]);
    if (e.v[1] > e.v[3])
        std::swap(e.v[1], e.v[3]);
}

/// Parses the records of one file, line after line: a disc depends on the lines before it.
class AnalyseTable {
public:
    std::optional<Fiche> operator()(std::string_view ligne) {
        try {
            return analyser(ligne);
        } catch (const ErreurExecution&) {
            return std::nullopt; // not understood: the line is kept as it is
        }
    }

private:
    std::optional<Fiche> analyser(std::string_view ligne) {
        Champs champs(ligne);
        Fiche e;
        e.cle = champs.cle().vue();
        if (e.cle == "M") {
            e.texte = champs.reste();
            std::replace(e.texte.begin(), e.texte.end(), ',', '\n');
            return e;
        }
        if (sorte_table(e.cle) == nullptr)
            return std::nullopt;
        if (e.cle == "DR")
            lire_disque(champs, e);
        else
            lire_nombres(champs, e);
        return e;
    }

    void lire_nombres(Champs& champs, Fiche& e) {
        const std::size_t n = nombre_de_champs(e.cle);
        for (std::size_t i = 0; i + 1 < n; ++i)
            e.v[i] = simple(champs.entier());
        e.v[n - 1] = simple(champs.dernier_entier());
        if (est_boite(e.cle))
            remettre_d_aplomb(e);
        if (n < 4)
            return;
        refuser_negatifs(e, n);
        virgule4_ = champs.virgule();
    }

    void lire_disque(Champs& champs, Fiche& e) const {
        e.v[0] = simple(champs.entier());
        e.v[1] = simple(champs.entier());
        const std::ptrdiff_t longueur = virgule4_ - champs.virgule() - 1;
        if (longueur < 0)
            throw ErreurLecture("disque sans enregistrement à quatre champs avant lui");
        e.v[2] =
            simple(lire_entier16(champs.reste().substr(0, static_cast<std::size_t>(longueur))));
        refuser_negatifs(e, 2);
    }

    static void refuser_negatifs(const Fiche& e, std::size_t n) {
        if (std::any_of(e.v.begin(), e.v.begin() + static_cast<std::ptrdiff_t>(n),
                        [](float x) { return x < 0; }))
            throw ErreurLecture("coordonnée négative");
    }

    std::ptrdiff_t virgule4_ = -1;
};

/// Column of the last comma of a line's record.
std::ptrdiff_t derniere_virgule(std::string_view ligne) {
    return static_cast<std::ptrdiff_t>(sans_commentaire(ligne).rfind(','));
}

/// A disc line's third comma, and the text behind it.
std::pair<std::ptrdiff_t, std::string_view> rayon_de(std::string_view ligne) {
    Champs champs(sans_commentaire(ligne));
    for (int i = 0; i < 3; ++i)
        champs.suivant();
    return {champs.virgule(), champs.reste()};
}

/// What the reader takes as the radius when the remembered fourth comma is `virgule4`.
std::optional<int> rayon_lu(std::string_view ligne, std::ptrdiff_t virgule4) {
    const auto [virgule, reste] = rayon_de(ligne);
    if (virgule4 <= virgule)
        return std::nullopt;
    try {
        return lire_entier16(reste.substr(0, static_cast<std::size_t>(virgule4 - virgule - 1)));
    } catch (const ErreurExecution&) {
        return std::nullopt;
    }
}

std::string disque_serre(const Fiche& e) {
    const auto nombre = [&](std::size_t i) { return std::to_string(e.entier(i)); };
    return "DR," + nombre(0) + "," + nombre(1) + "," + nombre(2);
}

} // namespace

const std::vector<SorteTable>& sortes_table() {
    static const std::vector<SorteTable> sortes{
        {"zones", {"L", "O", "V", "T", "U", "W"}, 100},
        {"blocs", {"DC", "DR"}, 10},
        {"lignes", {"LN"}, 100},
        {"ellipses", {"LE"}, 10},
        {"pièces", {"PB", "PN", "BJ", "BB", "X", "Y"}, 100},
    };
    return sortes;
}

std::size_t nombre_de_champs(std::string_view cle) {
    const SorteTable* sorte = sorte_table(cle);
    if (sorte == nullptr)
        return 0;
    return cle == "DR" || sorte->nom == "pièces" ? 3 : 4;
}

const SorteTable* sorte_table(std::string_view cle) {
    for (const SorteTable& s : sortes_table())
        if (std::find(s.cles.begin(), s.cles.end(), cle) != s.cles.end())
            return &s;
    return nullptr;
}

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
    d.lire(octets, AnalyseTable{});
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
    const bool pion = est_pion(e.cle);
    for (std::size_t i = 0; i < n; ++i) {
        // A disc's radius may be anything that 16 bits hold, and so may a piece's fields.
        const bool libre = pion || (e.cle == "DR" && i == 2);
        e.v[i] = std::clamp(e.v[i], libre ? -32768.0F : 0.0F,
                            libre ? 32767.0F : static_cast<float>(coordonnee_max));
    }
    if (est_boite(e.cle))
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
            a_refaire = a_refaire || rayon_lu(lignes[r], virgule4) != e.objet->entier(2);
        }
    }
    elargir();
    // The fourth commas stand: each disc that is not read as it should be is written tightly.
    for (std::size_t r = 0; r < entrees_.size(); ++r) {
        const Entree& e = entrees_[r];
        if (a_quatre_champs(r))
            virgule4 = derniere_virgule(lignes[r]);
        else if (est_disque(r) && rayon_lu(lignes[r], virgule4) != e.objet->entier(2))
            lignes[r] = disque_serre(*e.objet) + commentaire(e);
    }
    return lignes;
}

std::string DocumentTable::ecrire() const {
    DocumentTable d = *this;
    d.monter_un_quatre_champs();
    const std::vector<std::string> lignes = d.mettre_en_page();
    d.verifier(lignes);
    std::string octets = d.assembler([&](std::size_t r) { return lignes[r]; });
    // A disc that no four-field record preceded may have got one.
    if (depuis(octets).incomprises() != d.incomprises())
        throw ErreurExecution("Une ligne qui n'était pas comprise le deviendrait : corrigez-la "
                              "d'abord dans le fichier");
    return octets;
}

namespace {

/// What a table reader gave, key by key, in the order of the document's records.
class Relecture {
public:
    Relecture(const AireDeJeu& e, std::string nom) : e_(e), nom_(std::move(nom)) {}

    bool rend(const Fiche& o) {
        const SorteTable* sorte = sorte_table(o.cle);
        if (sorte == nullptr)
            return true; // the caption: only the last one counts
        if (sorte->nom == "zones")
            return zone(o, e_.Zones(++zones_));
        if (sorte->nom == "pièces")
            return pion(o, e_.Pions(++pions_));
        if (sorte->nom == "lignes")
            return memes(o, e_.Lignes(++lignes_));
        if (sorte->nom == "ellipses")
            return memes(o, e_.Ellipses(++ellipses_));
        return bloc(o, e_.Blocs(++blocs_));
    }
    bool complete() const {
        return zones_ == e_.NbZones && pions_ == e_.NbPions && lignes_ == e_.NbLignes &&
               ellipses_ == e_.NbEllipses && blocs_ == e_.NbBlocs;
    }
    const std::string& nom() const { return nom_; }

private:
    static bool memes(const Fiche& o, const auto& q) {
        return o.entier(0) == q.X1 && o.entier(1) == q.Y1 && o.entier(2) == q.X2 &&
               o.entier(3) == q.Y2;
    }
    static bool zone(const Fiche& o, const Zone& z) {
        return o.cle == std::string(1, z.Type) && memes(o, z);
    }
    static bool pion(const Fiche& o, const Pion& p) {
        return o.cle == p.Type && o.entier(0) == p.X && o.entier(1) == p.Y &&
               o.entier(2) == p.Taille;
    }
    static bool bloc(const Fiche& o, const Quatre& q) {
        if (o.cle == "DC")
            return memes(o, q);
        return q.Y2 == marque_disque && o.entier(0) == q.X1 && o.entier(1) == q.Y1 &&
               o.entier(2) == q.X2;
    }

    const AireDeJeu& e_;
    std::string nom_;
    int zones_ = 0, pions_ = 0, lignes_ = 0, ellipses_ = 0, blocs_ = 0;
};

std::string nom_attendu(const Fiche& o) {
    std::string nom(RetourLigne);
    for (const char c : o.texte)
        c == '\n' ? nom.append(RetourLigne) : nom.append(1, c);
    return nom;
}

} // namespace

void DocumentTable::verifier(const std::vector<std::string>& lignes) const {
    // The lines that are not understood are left out here: they stop the reader, whatever is
    // edited.
    const std::string texte = en_utf8(assembler([&](std::size_t r) {
        return entrees_[r].compte && !entrees_[r].objet ? std::string("#") : lignes[r];
    }));
    const auto e = std::make_unique<AireDeJeu>();
    std::string nom;
    Entier16 NoLigne;
    vider_table(*e);
    try {
        lire_table(
            texte, *e, [&](std::string_view n) { nom = n; }, NoLigne);
    } catch (const ErreurExecution& erreur) {
        throw ErreurExecution("La table ne pourrait pas être relue (ligne " +
                              std::to_string(NoLigne) + ") : " + erreur.what());
    }
    Relecture relecture(*e, nom);
    for (std::size_t i = 0; i < nombre(); ++i) {
        const Fiche& o = (*this)[i];
        if (!relecture.rend(o))
            throw ErreurExecution("L'objet " + std::to_string(i + 1) + " (" + o.cle +
                                  ") ne serait pas relu tel qu'il est dessiné");
        if (o.cle == "M")
            nom = nom_attendu(o);
    }
    if (!relecture.complete() || relecture.nom() != nom)
        throw ErreurExecution(
            "La légende ou le nombre des objets ne seraient pas relus tels quels");
}

std::optional<RefusLecture> DocumentTable::relire(std::string_view octets) {
    const auto e = std::make_unique<AireDeJeu>();
    Entier16 NoLigne;
    vider_table(*e);
    try {
        lire_table(
            en_utf8(std::string(octets)), *e, [](std::string_view) {}, NoLigne);
        return std::nullopt;
    } catch (const ErreurExecution& erreur) {
        return RefusLecture{NoLigne, erreur.what()};
    }
}

namespace {

template <typename T, int Dernier>
void ranger(Tableau<T, Dernier>& table, Entier16& nombre, const T& valeur) {
    if (nombre < Dernier) {
        nombre = nombre + 1;
        table(nombre) = valeur;
    }
}

void etendre(AireDeJeu& e, const Fiche& o) {
    const bool quatre = nombre_de_champs(o.cle) == 4;
    for (std::size_t i = 0; i < (quatre ? 4U : 2U); ++i) {
        Entier16& etendue = i % 2 == 0 ? e.XMax : e.YMax;
        etendue = std::clamp<int>(o.entier(i), etendue, DocumentTable::coordonnee_max);
    }
}

void ranger_objet(AireDeJeu& e, const Fiche& o) {
    if (est_pion(o.cle))
        return ranger(e.Pions, e.NbPions, Pion{o.entier(0), o.entier(1), o.entier(2), o.cle});
    etendre(e, o);
    if (o.cle == "DR")
        return ranger(e.Blocs, e.NbBlocs,
                      Quatre{o.entier(0), o.entier(1), o.entier(2), marque_disque});
    const Quatre q{o.entier(0), o.entier(1), o.entier(2), o.entier(3)};
    if (o.cle == "DC")
        ranger(e.Blocs, e.NbBlocs, q);
    else if (o.cle == "LN")
        ranger(e.Lignes, e.NbLignes, q);
    else if (o.cle != "LE")
        ranger(e.Zones, e.NbZones, Zone{o.cle.front(), q.X1, q.Y1, q.X2, q.Y2});
    else if (q.X1 != q.X2) // one without width stops the simulator's drawing
        ranger(e.Ellipses, e.NbEllipses, q);
}

} // namespace

void DocumentTable::remplir(Etat& e) const {
    vider_table(e);
    for (std::size_t i = 0; i < nombre(); ++i)
        if ((*this)[i].cle != "M")
            ranger_objet(e, (*this)[i]);
    e.ZoneRedessin = {-5, e.XMax + 5, -5, e.YMax + 5};
}
