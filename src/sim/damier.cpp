#include "sim/damier.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int cote = 30; ///< of a square, cm
constexpr int derniere_colonne = 6;
constexpr int derniere_rangee = 9;
constexpr int pas_maximum = 32767; ///< what a 16-bit step counter holds

// Where a coordinate lies among the squares' edges. Between two edges every point looks up the same
// column (or row); so do all those beyond the last edge, and all those below the first one.
struct Bande {
    int rang = 0;  ///< column or row; -1 on an edge or outside
    float bas = 0; ///< its bounds, infinite outside
    float haut = 0;
    bool operator==(const Bande&) const = default;
};

Bande bande_de(float v, int dernier) {
    constexpr float infini = std::numeric_limits<float>::infinity();
    const auto fin = static_cast<float>(cote * (dernier + 1));
    if (!(v > 0))
        return {-1, -infini, 0};
    if (v >= fin)
        return {-1, fin, infini};
    const int rang = static_cast<int>(v) / cote;
    const auto bas = static_cast<float>(cote * rang);
    if (v == bas)
        return {-1, bas, bas}; // on an edge: alone
    return {rang, bas, bas + cote};
}

struct Case {
    Bande colonne, rangee;
    bool operator==(const Case&) const = default;

    // A point on an edge or off the board ends in the last column, and the last column always reads
    // row 0: the sensor's own rule.
    int i() const { return colonne.rang < 0 ? derniere_colonne : colonne.rang; }
    int j() const {
        if (i() == derniere_colonne)
            return 0;
        return rangee.rang < 0 ? derniere_rangee : rangee.rang;
    }
};

// Point k of a walk: k cm from its start.
struct Marche {
    float xDebut, yDebut;
    double cosinus, sinus;

    float x(int k) const { return simple(xDebut + k * cosinus); }
    float y(int k) const { return simple(yDebut + k * sinus); }
    Case case_du_pas(int k) const {
        return {bande_de(x(k), derniere_colonne), bande_de(y(k), derniere_rangee)};
    }
    int dernier_pas_estime(const Case& c, int k) const;
    int nombre_de_pas(float xFin, float yFin) const;
};

// About how far the walk stays in the bands of step k, from the distance to their edges.
int Marche::dernier_pas_estime(const Case& c, int k) const {
    const auto pas = [](const Bande& b, float v, double vitesse) {
        const double reste = vitesse < 0 ? b.bas - v : b.haut - v;
        const bool loin = vitesse == 0 || !(std::fabs(reste) < std::fabs(vitesse) * pas_maximum);
        return loin ? pas_maximum : static_cast<int>(reste / vitesse);
    };
    return std::min(k + std::min(pas(c.colonne, x(k), cosinus), pas(c.rangee, y(k), sinus)),
                    pas_maximum);
}

// The first step at which x >= xFin and y >= yFin, -1 if none of the first 32767 is one.
int Marche::nombre_de_pas(float xFin, float yFin) const {
    const auto x_arrive = [&](int k) { return !(x(k) < xFin); };
    const auto y_arrive = [&](int k) { return !(y(k) < yFin); };
    // Each coordinate moves in one direction only. The growing ones arrive from some step on: find
    // it by halving; the falling ones must then be there still.
    const auto croissantes_arrivees = [&](int k) {
        return (cosinus < 0 || x_arrive(k)) && (sinus < 0 || y_arrive(k));
    };
    if (!croissantes_arrivees(pas_maximum))
        return -1;
    int avant = -1;
    int arrivee = pas_maximum;
    while (arrivee - avant > 1) {
        const int milieu = (avant + arrivee) / 2;
        (croissantes_arrivees(milieu) ? arrivee : avant) = milieu;
    }
    return x_arrive(arrivee) && y_arrive(arrivee) ? arrivee : -1;
}

// Counts the colour changes among the points 0..nb_pas - 1.
void compter(Etat& e, const Marche& marche, int nb_pas) {
    e.NouvelleCouleur = 0;
    Case c = marche.case_du_pas(0);
    Entier16 couleur = e.Damier(c.i(), c.j());
    for (int k = 0; k < nb_pas;) {
        detecterCouleur(e, static_cast<std::uint8_t>(c.i()), static_cast<std::uint8_t>(c.j()),
                        e.NouvelleCouleur, couleur);
        if (e.NouvelleCouleur) {
            e.NouvelleCouleur = 0;
            e.NbreCarreaux = e.NbreCarreaux + 1;
        }
        // Each coordinate moves in one direction only: when a later point lies in the same bands,
        // so do all those between.
        const int saut = std::min(marche.dernier_pas_estime(c, k), nb_pas);
        if (saut > k + 1 && marche.case_du_pas(saut) == c) {
            k = saut;
        } else {
            ++k;
            c = marche.case_du_pas(k);
        }
    }
}

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
    const int nb_pas = marche.nombre_de_pas(xFin, yFin);
    compter(e, marche, nb_pas < 0 ? pas_maximum + 1 : nb_pas);
    if (nb_pas < 0)
        lever_Debordement(pas_maximum + 1); // the step counter
}

bool predire_marche(Etat& e, float xDebut, float yDebut, float xFin, float yFin, double cosinus,
                    double sinus) {
    const Marche marche{xDebut, yDebut, cosinus, sinus};
    const int nb_pas = marche.nombre_de_pas(xFin, yFin);
    if (nb_pas < 0)
        return false;
    compter(e, marche, nb_pas);
    return true;
}
