#include "config/lecteur_table.h"

#include "config/ligne.h"

#include <string>
#include <utility>

namespace {

using Nommer = std::function<void(std::string_view)>;

// A key of one or two characters as a number, so that a switch can dispatch on it.
constexpr int code(std::string_view cle) {
    if (cle.empty() || cle.size() > 2)
        return 0;
    const int premier = static_cast<unsigned char>(cle.front());
    return cle.size() == 1 ? premier : premier * 256 + static_cast<unsigned char>(cle.back());
}

class LecteurTable {
public:
    LecteurTable(AireDeJeu& etat, const Nommer& nommer) : e(etat), nommer_(nommer) {}

    void lire_ligne(std::string_view ligne) {
        Champs champs(ligne);
        const Cle cle = champs.cle();
        switch (code(cle.vue())) {
        case code("M"):
            return lire_nom(champs.reste());
        case code("L"):
        case code("O"):
        case code("V"):
        case code("T"):
        case code("U"):
        case code("W"):
            return ajouter_zone(cle.vue().front(), lire_boite(champs));
        case code("DC"):
            return ajouter(e.Blocs, e.NbBlocs, lire_boite(champs));
        case code("LE"):
            return ajouter(e.Ellipses, e.NbEllipses, lire_boite(champs));
        case code("LN"):
            return ajouter(e.Lignes, e.NbLignes, lire_ligne_droite(champs));
        case code("DR"):
            return ajouter(e.Blocs, e.NbBlocs, lire_disque(champs));
        case code("PB"):
        case code("PN"):
        case code("BJ"):
        case code("BB"):
        case code("X"):
        case code("Y"):
            return lire_pion(cle.vue(), champs);
        default:
            refuser_cle(cle.vue());
        }
    }

private:
    // The count grows only once the slot is there: a refused record leaves it at the capacity.
    template <typename T, int Dernier>
    static void ajouter(Tableau<T, Dernier>& table, Entier16& nombre, const T& valeur) {
        const Entier16 suivant = nombre + 1;
        table(suivant) = valeur;
        nombre = suivant;
    }

    void ajouter_zone(char type, const Quatre& q) {
        ajouter(e.Zones, e.NbZones, Zone{type, q.X1, q.Y1, q.X2, q.Y2});
    }

    void lire_nom(std::string_view texte) const {
        std::string nom(RetourLigne);
        for (const char c : texte) {
            if (c == ',')
                nom += RetourLigne;
            else
                nom += c;
        }
        nommer_(nom);
    }

    Quatre lire_quatre(Champs& champs) {
        Quatre q;
        q.X1 = champs.entier();
        q.Y1 = champs.entier();
        q.X2 = champs.entier();
        virgule4_ = champs.virgule();
        q.Y2 = champs.dernier_entier();
        return q;
    }

    Quatre lire_boite(Champs& champs) {
        Quatre q = lire_quatre(champs);
        if (q.X1 > q.X2)
            std::swap(q.X1, q.X2);
        if (q.Y1 > q.Y2)
            std::swap(q.Y1, q.Y2);
        etendre(q.X2, q.Y2);
        refuser_negatif(q.X1, q.Y1);
        return q;
    }

    Quatre lire_ligne_droite(Champs& champs) {
        const Quatre q = lire_quatre(champs);
        etendre(q.X1, q.Y1);
        etendre(q.X2, q.Y2);
        refuser_negatif(q.X1, q.Y1);
        refuser_negatif(q.X2, q.Y2);
        return q;
    }

    Quatre lire_disque(Champs& champs) {
        const Entier16 x = champs.entier();
        const Entier16 y = champs.entier();
        // Deliberate: the radius ends where the latest four-field record had its fourth comma, as
        // if that comma stood in this line.
        const std::ptrdiff_t longueur = virgule4_ - champs.virgule() - 1;
        if (longueur < 0)
            throw ErreurLecture("disque sans enregistrement à quatre champs avant lui");
        const auto texte = champs.reste().substr(0, static_cast<std::size_t>(longueur));
        const Quatre disque{x, y, lire_entier16(texte), marque_disque};
        etendre(x, y);
        refuser_negatif(x, y);
        return disque;
    }

    void lire_pion(std::string_view cle, Champs& champs) {
        const Entier16 x = champs.entier();
        const Entier16 y = champs.entier();
        const Entier16 taille = champs.dernier_entier();
        ajouter(e.Pions, e.NbPions, Pion{x, y, taille, std::string(cle)});
        const PointBalise balise{simple(x), simple(y), static_cast<double>(taille)};
        if (cle == "X")
            e.PointX = balise;
        else if (cle == "Y")
            e.PointY = balise;
    }

    void etendre(Entier16 x, Entier16 y) {
        if (x > e.XMax)
            e.XMax = x;
        if (y > e.YMax)
            e.YMax = y;
    }

    static void refuser_negatif(Entier16 x, Entier16 y) {
        if (x < 0 || y < 0)
            throw ErreurLecture("coordonnée négative");
    }

    AireDeJeu& e;
    const Nommer& nommer_;
    std::ptrdiff_t virgule4_ = -1; // none yet
};

} // namespace

void vider_table(AireDeJeu& e) {
    e.NbZones = e.NbPions = e.NbLignes = e.NbBlocs = e.NbEllipses = 0;
    e.XMax = e.YMax = 0;
    ++e.version_table;
}

void lire_table(std::string_view texte, AireDeJeu& e, const Nommer& nommer, Entier16& NoLigne) {
    ++e.version_table;
    LecteurTable lecteur(e, nommer);
    pour_chaque_ligne(texte, NoLigne, [&](std::string_view ligne) { lecteur.lire_ligne(ligne); });
    if (e.XMax < 1 || e.YMax < 1)
        throw ErreurLecture("la table n'a pas d'étendue");
}
