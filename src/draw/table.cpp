#include "draw/table.h"

#include <algorithm>
#include <cmath>

namespace {

void peindre_zones(const Etat& e, Surface& s) {
    const Region& r = e.ZoneRedessin;
    for (int i = 1; i <= e.NbZones; ++i) {
        const Zone& z = e.Zones(i);
        s.couleur_trait(couleur_zone(z.Type));
        if (z.X1 <= r.xmax && z.X2 >= r.xmin && z.Y2 >= r.ymin && z.Y1 <= r.ymax)
            s.boite_pleine(z.X1, z.Y1, z.X2, z.Y2);
    }
}

void peindre_bordure(const Etat& e, Surface& s) {
    const Entier16 droite = e.XMax + marge_table;
    const Entier16 haut = e.YMax + marge_table;
    s.couleur_trait(couleurs::rouge);
    s.boite_pleine(-marge_table, -marge_table, droite, 0);
    s.boite_pleine(-marge_table, e.YMax, droite, haut);
    s.boite_pleine(-marge_table, -marge_table, 0, haut);
    s.boite_pleine(e.XMax, -marge_table, droite, haut);
}

void peindre_blocs(const Etat& e, Surface& s) {
    s.trait_pointille(true);
    s.fond_plein(false);
    for (int i = 1; i <= e.NbBlocs; ++i) {
        const Quatre& b = e.Blocs(i);
        if (b.Y2 == marque_disque)
            s.cercle(b.X1, b.Y1, b.X2, couleurs::noir);
        else
            s.boite(b.X1, b.Y1, b.X2, b.Y2, couleurs::noir);
    }
}

void peindre_lignes(const Etat& e, Surface& s) {
    s.fond_plein(true);
    s.trait_pointille(false);
    for (int i = 1; i <= e.NbLignes; ++i) {
        const Quatre& l = e.Lignes(i);
        s.ligne(l.X1, l.Y1, l.X2, l.Y2, couleurs::noir);
    }
}

void peindre_ellipses(const Etat& e, Surface& s, Entier16 Echelle) {
    constexpr double presque_un_tour = 6.28; // deliberately a hair short of closed
    s.epaisseur(arrondir16(Echelle / 6.0));
    for (int i = 1; i <= e.NbEllipses; ++i) {
        const Quatre& q = e.Ellipses(i);
        const double rx = std::fabs(double(q.X1 - q.X2)) / 2;
        const double ry = std::fabs(double(q.Y1 - q.Y2)) / 2;
        s.arc((q.X1 + q.X2) / 2.0, (q.Y1 + q.Y2) / 2.0, std::max(rx, ry), couleurs::blanc, 0,
              presque_un_tour, diviser(ry, rx));
    }
}

void peindre_pions(const Etat& e, Surface& s) {
    s.epaisseur(1);
    for (int i = 1; i <= e.NbPions; ++i) {
        const Pion& p = e.Pions(i);
        s.couleur_fond(couleur_pion(p.Type));
        s.cercle(p.X, p.Y, p.Taille, couleurs::rouge);
    }
}

} // namespace

Couleur couleur_zone(char Type) {
    switch (Type) {
    case 'L':
    case 'U':
        return couleurs::blanc;
    case 'O':
        return couleurs::rouge;
    case 'V': // black by design
    case 'W':
        return couleurs::noir;
    case 'T':
        return couleurs::vert;
    default:
        return couleurs::bleu;
    }
}

Couleur couleur_pion(std::string_view Type) {
    if (Type == "PB")
        return couleurs::blanc;
    if (Type == "PN")
        return couleurs::noir;
    if (Type == "BJ")
        return couleurs::jaune;
    if (Type == "X")
        return couleurs::cyan_pale;
    if (Type == "Y")
        return couleurs::orange_clair;
    return couleurs::bleu;
}

void peindre_table(const Etat& e, Surface& s, Entier16 Echelle) {
    const Region& r = e.ZoneRedessin;
    s.couleur_trait(couleurs::vert);
    s.boite_pleine(r.xmin, r.ymin, r.xmax, r.ymax);
    peindre_zones(e, s);
    peindre_bordure(e, s);
    peindre_blocs(e, s);
    peindre_lignes(e, s);
    peindre_ellipses(e, s, Echelle);
    peindre_pions(e, s);
}

bool Dessine_Table(const Etat& e, Surface& s, Fenetres& f, Entier16 Echelle) {
    try {
        peindre_table(e, s, Echelle);
        return true;
    } catch (const ErreurExecution& erreur) {
        f.regler_Timer(0);
        f.message("Erreur majeure d'exécution : Vérifier le fichier de configuration Table.ini",
                  std::string("Raison : ") + erreur.what());
        f.fin_du_programme();
        return false;
    }
}
