#include "sim/textes_etat.h"

#include "sim/actions.h"

#include <cmath>
#include <cstdlib>

TexteCourt LigneMess::texte() const {
    const auto partie_entiere = std::div(TempsEcoule / 100, 60);
    TexteCourt t;
    t.ajouter("     Durée : ");
    t.ajouter(texte_entier(partie_entiere.quot));
    t.ajouter(" mn ");
    t.ajouter(format_00(partie_entiere.rem));
    t.ajouter(" s     Action ");
    t.ajouter(texte_entier(NumAction));
    t.ajouter('/');
    t.ajouter(texte_entier(TrajNbActions));
    t.ajouter(" en cours : ");
    t.ajouter(ActionEnCours.vue());
    t.ajouter("  ");
    t.ajouter(format_0(std::fabs(static_cast<double>(Progression))));
    t.ajouter('/');
    t.ajouter(texte_entier(ParamEnCours));
    t.ajouter(' ');
    if (const actions::Action* const action = actions::trouver(action_pour_l_unite))
        t.ajouter(action->unite_etat);
    t.ajouter(" Incidence:");
    t.ajouter(texte_simple(Incidence));
    t.ajouter(" Nbre carreaux:");
    t.ajouter(texte_entier(NbreCarreaux));
    return t;
}

TexteCourt LigneInfo::texte() const {
    TexteCourt t;
    const auto champ = [&t](std::string_view nom, double valeur) {
        t.ajouter(nom);
        t.ajouter(format_00(valeur));
    };
    champ("Xm=", Xm);
    champ(" Ym=", Ym);
    champ(" Xextr=", Xextr);
    champ(" Yextr=", Yextr);
    if (avec_balise) {
        champ("d=", d); // deliberately no blank before it
        champ(" dmin=", dmin);
        champ(" d2=", d2);
    }
    return t;
}
