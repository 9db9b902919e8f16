#include "config/lecteur_trajet.h"

void LecteurTrajet::lire(std::string_view texte, Entier16 n, Entier16& NoLigne) {
    etat_.TrajNbActions(n) = 0;
    lignes_.clear();
    const int avant = NoLigne;
    parcourir_trajet(texte, NoLigne, [&](const LigneTrajet& lue) {
        if (lue.code == actions::INIT)
            return prendre_depart(lue, n);
        ajouter(lue, n);
        lignes_.push_back(NoLigne - avant);
    });
}

void LecteurTrajet::prendre_depart(const LigneTrajet& lue, Entier16 n) {
    etat_.XInit(n) = simple(lue.v[0]);
    etat_.YInit(n) = simple(lue.v[1]);
    etat_.CapInit(n) = simple(lue.v[2]);
}

void LecteurTrajet::ajouter(const LigneTrajet& lue, Entier16 n) {
    if (lue.parametres > 0)
        parametre_ = lue.v[0];
    if (lue.parametres > 1)
        parametre2_ = lue.v[1];
    const Entier16 k = etat_.TrajNbActions(n) + 1;
    etat_.TrajAction(n, k) = lue.code;
    etat_.TrajParam1(n, k) = parametre_;
    etat_.TrajParam2(n, k) = parametre2_;
    etat_.TrajNbActions(n) = k;
}
