#include "edition/objets_table.h"

#include "edition/presse_papiers.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

std::vector<Fiche> objets_de(const DocumentTable& table, const Choix& choix) {
    std::vector<Fiche> objets;
    for (const std::size_t i : choix)
        if (table[i].cle != "M")
            objets.push_back(table[i]);
    return objets;
}

bool presente(const DocumentTable& table, const Fiche& f) {
    for (std::size_t i = 0; i < table.nombre(); ++i)
        if (table[i] == f)
            return true;
    return false;
}

bool est_une_zone(const Fiche& f) {
    const SorteTable* sorte = sorte_table(f.cle);
    return sorte != nullptr && sorte->nom == "zones";
}

} // namespace

Choix objets(const DocumentTable& table, bool sans_zones) {
    Choix choix;
    for (std::size_t i = 0; i < table.nombre(); ++i)
        if (table[i].cle != "M" && !(sans_zones && est_une_zone(table[i])))
            choix.push_back(i);
    return choix;
}

Choix objets_dans(const DocumentTable& table, const Bornes& cadre, bool sans_zones) {
    Choix choix = objets(table, sans_zones);
    std::erase_if(choix,
                  [&](std::size_t i) { return !cadre.contiennent(formes::bornes(table[i])); });
    return choix;
}

std::optional<std::size_t> objet_sous(const DocumentTable& table, Vecteur cm, double tolerance,
                                      bool sans_zones) {
    const Choix choix = objets(table, sans_zones);
    const auto& sortes = sortes_table();
    for (std::size_t s = sortes.size(); s-- > 0;)
        for (auto i = choix.rbegin(); i != choix.rend(); ++i)
            if (sorte_table(table[*i].cle) == &sortes[s] &&
                formes::touchee(table[*i], cm, tolerance))
                return *i;
    return std::nullopt;
}

std::size_t creer(DocumentTable& table, Fiche objet) {
    objet = DocumentTable::normaliser(std::move(objet));
    if (formes::sans_etendue(objet))
        throw ErreurExecution("Un objet sans étendue ne se verrait pas : tracez-le plus grand");
    return table.ajouter(std::move(objet));
}

Choix dupliquer(DocumentTable& table, const Choix& choix, double ecart) {
    Choix copies;
    for (const Fiche& objet : objets_de(table, choix))
        joindre(copies, table.ajouter(formes::deplacee(objet, ecart, ecart)));
    return copies;
}

std::string copier(const DocumentTable& table, const Choix& choix) {
    std::string lignes;
    for (const Fiche& f : objets_de(table, choix))
        lignes.append(ligne_de(f, nombre_de_champs(f.cle))).append(RetourLigne);
    return lignes;
}

Choix coller(DocumentTable& table, std::string_view lignes, double ecart) {
    // A disc's radius ends with its own line, whatever line was copied before it.
    std::vector<Fiche> objets = lire_fiches(lignes, [](std::string_view ligne) {
        return GrammaireTable(std::ssize(ligne)).lire(ligne);
    });
    std::erase_if(objets, [](const Fiche& f) { return f.cle == "M"; });
    while (std::any_of(objets.begin(), objets.end(),
                       [&](const Fiche& f) { return presente(table, f); }))
        for (Fiche& f : objets)
            f = formes::deplacee(f, ecart, ecart);
    Choix nouveaux;
    for (Fiche& f : objets)
        joindre(nouveaux, table.ajouter(std::move(f)));
    return nouveaux;
}

bool deplacer(DocumentTable& table, const Choix& choix, Vecteur ecart) {
    ecart = formes::deplacement_permis(objets_de(table, choix), ecart);
    if (choix.empty() || ecart == Vecteur{})
        return false;
    for (const std::size_t i : choix)
        table.remplacer(i, formes::deplacee(table[i], ecart.x, ecart.y));
    return true;
}

bool redimensionner(DocumentTable& table, std::size_t i, std::size_t poignee, Vecteur cm) {
    const Fiche tiree = formes::tiree(table[i], poignee, cm);
    if (formes::sans_etendue(tiree))
        return false;
    table.remplacer(i, tiree);
    return true;
}

void changer_sorte(DocumentTable& table, std::size_t i, const std::string& cle) {
    Fiche f = table[i];
    f.cle = cle;
    table.remplacer(i, std::move(f));
}

Choix regler_legende(DocumentTable& table, Choix choix, const std::string& texte) {
    const Fiche legende{"M", {}, texte};
    for (std::size_t i = table.nombre(); i-- > 0;) {
        if (table[i].cle == "M") {
            table.remplacer(i, legende);
            return choix;
        }
    }
    const std::size_t place = table.ajouter(legende);
    for (std::size_t& i : choix)
        i += i >= place ? 1 : 0;
    return choix;
}
