#include "config/lecteur_trajet.h"

#include "config/ligne_trajet.h"
#include "sim/actions.h"

void LecteurTrajet::lire(std::string_view texte, Entier16 n, Entier16& NoLigne) {
    e.TrajNbActions(n) = 0;
    lignes_.clear();
    const int avant = NoLigne;
    const auto lire_et_situer = [&](std::string_view ligne) {
        lire_ligne(ligne, n);
        if (e.TrajNbActions(n) > static_cast<int>(lignes_.size()))
            lignes_.push_back(NoLigne - avant);
    };
    pour_chaque_ligne(texte, NoLigne, lire_et_situer, compte_dans_un_trajet);
}

void LecteurTrajet::lire_ligne(std::string_view ligne, Entier16 n) {
    const LigneTrajet lue = lire_ligne_trajet(ligne);
    if (lue.code == actions::INIT) {
        e.XInit(n) = simple(lue.v[0]);
        e.YInit(n) = simple(lue.v[1]);
        e.CapInit(n) = simple(lue.v[2]);
        return;
    }
    if (lue.parametres > 0)
        parametre_ = lue.v[0];
    if (lue.parametres > 1)
        parametre2_ = lue.v[1];
    ajouter(lue.code, n);
}

void LecteurTrajet::ajouter(const Nom10& action, Entier16 n) {
    const Entier16 k = e.TrajNbActions(n) + 1;
    e.TrajAction(n, k) = action;
    e.TrajParam1(n, k) = parametre_;
    e.TrajParam2(n, k) = parametre2_;
    e.TrajNbActions(n) = k;
}
