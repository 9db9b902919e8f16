#include "feuille/trace_csv.h"

#include "sim/fenetres_muettes.h"
#include "sim/moteur.h"

namespace {

class FenetresDeTrace final : public FenetresMuettes {
public:
    explicit FenetresDeTrace(const Etat& etat) : etat_(etat) {}
    void apres_actions() override { trace.ajouter(etat_); }
    void regler_Timer(Entier16 ms) override { en_marche = ms > 0; }
    void fin_du_programme() override { en_marche = false; }

    TraceCsv trace;
    bool en_marche = false;

private:
    const Etat& etat_;
};

} // namespace

TraceCsv::TraceCsv()
    : texte_("temps,robot,x,y,cap,xm,ym,xextr,yextr,action,num_action,nb_actions,parametre,"
             "parametre2,progression,incidence,nbre_carreaux\n") {}

void TraceCsv::ajouter(const Etat& e) {
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

std::string trace_csv(Etat& e) {
    FenetresDeTrace fenetres(e);
    Moteur moteur(e, fenetres);
    e.RobotTele = 0;
    moteur.Run_Jeu();
    while (fenetres.en_marche && moteur.Timer_Timer()) {
    }
    return fenetres.trace.texte();
}
