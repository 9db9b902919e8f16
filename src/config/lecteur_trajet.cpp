#include "config/lecteur_trajet.h"

#include "config/ligne.h"
#include "sim/actions.h"

void parcourir_trajet(std::string_view texte, Entier16& NoLigne,
                      const std::function<void(const LigneTrajet&)>& prendre) {
    int nombre = 0;
    const auto lire_ligne = [&](std::string_view ligne) {
        const LigneTrajet lue = lire_ligne_trajet(ligne);
        if (lue.code != actions::INIT && ++nombre > actions_max)
            lever_HorsTable(nombre, actions_max);
        prendre(lue);
    };
    pour_chaque_ligne(texte, NoLigne, lire_ligne, compte_dans_un_trajet);
}

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
