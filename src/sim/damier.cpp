#include "sim/damier.h"

#include <cmath>

namespace {

constexpr int cote = 30; ///< of a square, cm
constexpr int derniere_colonne = 6;
constexpr int derniere_rangee = 9;
constexpr int pas_maximum = 32767; ///< what a 16-bit step counter holds

struct Case {
    int i = 0;
    int j = 0;
};

bool dans_colonne(const Etat& e, int i, float x) {
    const auto bord = static_cast<float>(e.DamierX(i));
    return bord < x && x < bord + cote;
}

bool dans_rangee(const Etat& e, int j, float y) {
    const auto bord = static_cast<float>(e.DamierY(j));
    return bord < y && y < bord + cote;
}

// A point on an edge or off the board ends in the last column, and the last column always reads
// row 0: the sensor's own rule.
Case chercher_case(const Etat& e, float x, float y) {
    Case c;
    while (!dans_colonne(e, c.i, x) && c.i < derniere_colonne)
        ++c.i;
    while (!dans_rangee(e, c.j, y) && c.i < derniere_colonne && c.j < derniere_rangee)
        ++c.j;
    return c;
}

// Point k of a walk: k cm from its start.
struct Marche {
    float xDebut, yDebut;
    double cosinus, sinus;

    float x(int k) const { return simple(xDebut + k * cosinus); }
    float y(int k) const { return simple(yDebut + k * sinus); }
};

} // namespace

void initDamier(Etat& e) {
    for (int i = 0; i <= derniere_colonne; ++i)
        e.DamierX(i) = cote * i;
    for (int j = 0; j <= derniere_rangee; ++j)
        e.DamierY(j) = cote * j;
    for (int i = 0; i <= derniere_colonne; ++i) {
        for (int j = 0; j <= derniere_rangee; ++j)
            e.Damier(i, j) = vrai16((i + j) % 2 == 0);
    }
}

void detecterCouleur(const Etat& e, std::uint8_t I, std::uint8_t j,
                     Entier16& nouvelleCouleurDetectee, Entier16& Couleur) {
    nouvelleCouleurDetectee = vrai16(e.Damier(I, j) != Couleur);
    Couleur = e.Damier(I, j);
}

void calculer_nbre_carreaux(Etat& e, float xDebut, float yDebut, float xFin, float yFin) {
    // Incidence does not change on the way, so its cosine and sine are taken once.
    Marche marche{xDebut, yDebut, 0, 0};
    ::sincos(radians(e.Incidence), &marche.sinus, &marche.cosinus);

    e.NouvelleCouleur = 0;
    float x = xDebut;
    float y = yDebut;
    Entier16 k = 0;
    Case c = chercher_case(e, x, y);
    Entier16 couleur = e.Damier(c.i, c.j);
    while (x < xFin || y < yFin) {
        // Most steps stay in the square they were in.
        if (!dans_colonne(e, c.i, x) || !dans_rangee(e, c.j, y))
            c = chercher_case(e, x, y);
        detecterCouleur(e, static_cast<std::uint8_t>(c.i), static_cast<std::uint8_t>(c.j),
                        e.NouvelleCouleur, couleur);
        if (e.NouvelleCouleur) {
            e.NouvelleCouleur = 0;
            e.NbreCarreaux = e.NbreCarreaux + 1;
        }
        k = k + 1;
        x = marche.x(k);
        y = marche.y(k);
    }
}

bool marche_se_termine(float xDebut, float yDebut, float xFin, float yFin, double cosinus,
                       double sinus) {
    const Marche marche{xDebut, yDebut, cosinus, sinus};
    const auto x_arrive = [&](int k) { return !(marche.x(k) < xFin); };
    const auto y_arrive = [&](int k) { return !(marche.y(k) < yFin); };
    // Each coordinate moves in one direction only. The growing ones arrive from some step on: find
    // it by halving; the falling ones must then be there still.
    const auto croissantes_arrivees = [&](int k) {
        return (cosinus < 0 || x_arrive(k)) && (sinus < 0 || y_arrive(k));
    };
    if (!croissantes_arrivees(pas_maximum))
        return false;
    int avant = -1;
    int arrivee = pas_maximum;
    while (arrivee - avant > 1) {
        const int milieu = (avant + arrivee) / 2;
        (croissantes_arrivees(milieu) ? arrivee : avant) = milieu;
    }
    return x_arrive(arrivee) && y_arrive(arrivee);
}
