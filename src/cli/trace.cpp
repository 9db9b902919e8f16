#include "cli/trace.h"

Trace::Trace()
    : texte_("temps,robot,x,y,cap,xm,ym,xextr,yextr,action,num_action,nb_actions,parametre,"
             "parametre2,progression,incidence,nbre_carreaux\n") {}

void Trace::ajouter(const Etat& e) {
    const auto entier = [this](std::int32_t n) { texte_.append(texte_entier(n).vue()) += ','; };
    const auto decimal = [this](float x) { texte_.append(texte_simple(x).vue()) += ','; };
    for (int i = 1; i <= e.NbRobot; ++i) {
        entier(e.TempsEcoule);
        entier(i);
        for (const auto* colonne :
             {&e.XRobot, &e.YRobot, &e.CapRobot, &e.Xm, &e.Ym, &e.Xextr, &e.Yextr})
            decimal((*colonne)(i));
        texte_.append(e.ActionEnCours(i).sans_blancs()) += ',';
        entier(e.NumAction(i));
        entier(e.TrajNbActions(i));
        entier(e.ParamEnCours(i));
        entier(e.Param2EnCours(i));
        decimal(e.Progression(i));
        decimal(e.Incidence);
        texte_.append(texte_entier(e.NbreCarreaux).vue()) += '\n';
    }
}
