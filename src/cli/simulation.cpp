#include "cli/simulation.h"

#include "cli/progres.h"
#include "config/dossier.h"
#include "draw/disposition.h"
#include "sim/orientation.h"

#include <algorithm>
#include <utility>

std::filesystem::path ouvrir_dossier(const std::optional<std::filesystem::path>& demande) {
    std::filesystem::path dossier = dossier_application(demande);
    entrer_dans_dossier(dossier);
    return dossier;
}

Simulation::Simulation(Etat& etat, FenetresTerminal& fenetres, ChoixDeLigne choix)
    : etat_(etat),
      fenetres_(fenetres),
      choix_(std::move(choix)),
      seance_(etat, fenetres, *this, ouvrir_dossier(choix_.dossier)) {
    if (choix_.projet)
        seance_.projet().imposer_projet(*choix_.projet);
    if (choix_.avant_lecture)
        choix_.avant_lecture(seance_.projet());
    demarree_ = seance_.demarrer();
}

void Simulation::appliquer_reglages() {
    if (::appliquer_reglages(etat_, choix_))
        Init_Table();
}

void Simulation::redessiner() {
    fenetres_.Dessine_Table();
    fenetres_.Dessine_Robot();
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
    moteur().Run_Jeu();
    Progres progres("Simulation", std::min<std::int32_t>(duree, dernier_tick(etat_.PasTemps)));
    while (fenetres_.en_marche() && etat_.TempsEcoule < duree) {
        if (!moteur().Timer_Timer())
            break;
        progres.avancer(etat_.TempsEcoule);
    }
}
