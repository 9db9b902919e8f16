#include "cli/simulation.h"

#include "cli/progres.h"
#include "config/dossier.h"
#include "draw/disposition.h"
#include "sim/damier.h"
#include "sim/orientation.h"

#include <algorithm>

std::filesystem::path ouvrir_dossier(const std::optional<std::filesystem::path>& demande) {
    std::filesystem::path dossier = dossier_application(demande);
    entrer_dans_dossier(dossier);
    return dossier;
}

Simulation::Simulation(Etat& etat, FenetresTerminal& fenetres, const ChoixDeLigne& choix)
    : e(etat),
      f(fenetres),
      moteur_(etat, fenetres),
      projet_(etat, fenetres, ouvrir_dossier(choix.dossier)) {
    // Whatever no reader traps stops the start-up there, with its reason.
    try {
        demarrer(choix);
        demarree_ = true;
    } catch (const ErreurExecution& erreur) {
        f.message(std::string("Erreur d'exécution : ") + erreur.what());
    }
}

void Simulation::demarrer(const ChoixDeLigne& choix) {
    if (choix.projet)
        projet_.imposer_projet(*choix.projet);
    if (choix.avant_lecture)
        choix.avant_lecture(projet_);
    projet_.Installe();
    projet_.LoadGeneral();
    projet_.LoadTable();
    image_ = disposer(e);
    projet_.Init_Robot();
    projet_.Init_Jeu();
    initDamier(e);
    if (appliquer_reglages(e, choix))
        image_ = disposer(e);
    f.Dessine_Table();
    f.Dessine_Robot();
}

bool appliquer_reglages(Etat& e, const ChoixDeLigne& choix) {
    if (choix.allege)
        e.Options(2) = 1;
    if (choix.robots)
        e.Options(3) = *choix.robots;
    if (choix.horizontale)
        e.Options(4) = 1;
    e.AffichageLent = vrai16(e.Options(1) != 1);
    e.PasTemps = e.Options(2) == 1 ? 5 : 1;
    e.NbRobot = std::clamp<int>(e.Options(3), 1, robots_des_fichiers);
    if (e.Options(4) != 1)
        return false;
    horizontal(e);
    e.TableHorizontale = vrai16(true);
    return true;
}

Image disposer(Etat& e) {
    constexpr double largeur = 1280.0 * twips_par_pixel;
    constexpr double hauteur = 720.0 * twips_par_pixel;
    constexpr double ligne = 20.0 * twips_par_pixel;
    const Disposition d = Init_Table(e, {.largeur_ecran = largeur,
                                         .hauteur_ecran = hauteur,
                                         .cadre_vertical = 2 * ligne,
                                         .hauteur_Mess = ligne,
                                         .hauteur_Info = ligne});
    return {double(d.largeur_Table) / twips_par_pixel, double(d.hauteur_Table) / twips_par_pixel,
            d.Echelle};
}

void Simulation::jouer(std::int32_t duree) {
    moteur_.Run_Jeu();
    Progres progres("Simulation", std::min<std::int32_t>(duree, dernier_tick(e.PasTemps)));
    while (f.en_marche() && e.TempsEcoule < duree) {
        if (!moteur_.Timer_Timer())
            break;
        progres.avancer(e.TempsEcoule);
    }
}
