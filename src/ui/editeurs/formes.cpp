#include "ui/editeurs/formes.h"

#include "config/fiche_table.h"
#include "draw/table.h"
#include "ui/commun/surface_qt.h"

#include <QString>

#include <algorithm>
#include <string>

namespace formes {

QRectF cadre(const Fiche& e) {
    const Bornes b = bornes(e);
    return {QPointF(b.gauche, b.bas), QPointF(b.droite, b.haut)};
}

QString nom(std::string_view cle) {
    struct Nom {
        std::string_view cle;
        const char* texte;
    };
    static constexpr Nom noms[] = {{"L", "Zone L (blanc)"},
                                   {"O", "Zone O (rouge)"},
                                   {"V", "Zone V (noir)"},
                                   {"T", "Zone T (vert)"},
                                   {"U", "Zone U (blanc)"},
                                   {"W", "Zone W (noir)"},
                                   {"PB", "Pièce PB (blanc)"},
                                   {"PN", "Pièce PN (noir)"},
                                   {"BJ", "Pièce BJ (jaune)"},
                                   {"BB", "Pièce BB (bleu)"},
                                   {"X", "Balise gauche X"},
                                   {"Y", "Balise droite Y"},
                                   {"LN", "Ligne"},
                                   {"DC", "Bloc rectangulaire"},
                                   {"DR", "Bloc disque"},
                                   {"LE", "Ellipse"},
                                   {"M", "Légende"}};
    for (const Nom& n : noms)
        if (n.cle == cle)
            return n.texte;
    return {};
}

QColor couleur(std::string_view cle) {
    const SorteTable* sorte = sorte_table(cle);
    if (sorte != nullptr && sorte->nom == "zones")
        return couleur_qt(couleur_zone(cle.front()));
    if (sorte != nullptr && sorte->nom == "pièces")
        return couleur_qt(couleur_pion(cle));
    return cle == "LE" ? Qt::white : Qt::black;
}

PanneauProprietes::Champ champ(const Document& document, const Choix& choix, Grandeur g) {
    static constexpr const char* noms[] = {"X1", "Y1",      "X2",      "Y2",    "X",
                                           "Y",  "Largeur", "Hauteur", "Rayon", "Incidence"};
    const QString nom = noms[static_cast<std::size_t>(g)];
    const std::optional<double> v = valeur(document, choix, g);
    if (g == Grandeur::incidence)
        return {nom, nom, "°", -180, 180, v, 1};
    const bool libre =
        g == Grandeur::rayon || std::all_of(choix.begin(), choix.end(), [&](std::size_t i) {
            const std::string& cle = document[i].cle;
            return cle == "R" || forme_table(cle) == FormeTable::pion;
        });
    return {nom, nom, " cm", libre ? -32768.0 : 0, libre ? 32767.0 : DocumentTable::coordonnee_max,
            v};
}

} // namespace formes
