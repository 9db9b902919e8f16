// Any bytes as a project: a byte of choices, then a table, robot 1 and its trajectory, robot 2
// and its own, with "%" between. What the readers leave, refused or not, is laid out, turned,
// drawn and played: a fault shows its message and asks for the end of the program, and nothing
// else gets out.

#include "cli/fenetres_terminal.h"
#include "config/lecteur_robot.h"
#include "config/lecteur_table.h"
#include "config/lecteur_trajet.h"
#include "draw/disposition.h"
#include "draw/robot.h"
#include "draw/surface_vide.h"
#include "draw/table.h"
#include "outils.h"
#include "sim/damier.h"
#include "sim/moteur.h"
#include "sim/orientation.h"
#include "sim/secours.h"

#include <memory>
#include <sstream>

namespace {

constexpr int ticks_max = 300;

void lire(Etat& e, std::string_view texte) {
    const auto morceau = [&texte] {
        const std::size_t fin = std::min(texte.find('%'), texte.size());
        std::string m = en_utf8(std::string(texte.substr(0, fin)));
        texte.remove_prefix(std::min(fin + 1, texte.size()));
        return m;
    };
    Entier16 NoLigne;
    if (!tenter([&] {
            lire_table(
                morceau(), e, [](std::string_view) {}, NoLigne);
        }))
        Init_Table_Old(e);
    LecteurRobot robots(e);
    LecteurTrajet trajets(e);
    for (const int n : {1, 2}) {
        if (!tenter([&] { robots.lire(morceau(), n, NoLigne = 0); }))
            Init_Robot_Old(e, n);
        tenter([&] { trajets.lire(morceau(), n, NoLigne = 0); });
        e.XRobot(n) = e.XInit(n);
        e.YRobot(n) = e.YInit(n);
        e.CapRobot(n) = e.CapInit(n);
    }
}

void jouer(Etat& e) {
    std::ostringstream messages;
    FenetresTerminal f(e, messages);
    Moteur moteur(e, f);
    f.Dessine_Table();
    f.Dessine_Robot();
    if (!f.terminee())
        moteur.Run_Jeu();
    for (int i = 0; i < ticks_max && f.en_marche(); ++i)
        exiger(moteur.Timer_Timer() || f.terminee());
    exiger(f.terminee() == (messages.str().find("Erreur majeure") != std::string::npos));
    // What the unseen drawing skips must be what could be drawn.
    SurfaceVide vide;
    exiger(f.terminee() || tenter([&] {
               peindre_table(e, vide);
               peindre_robots(e, vide);
           }));
}

} // namespace

CIBLE(match) {
    static const auto depart = [] {
        auto e = std::make_unique<Etat>();
        Init_Robot_Old(*e);
        Init_Jeu_Old(*e);
        initDamier(*e);
        return e;
    }();
    static const auto e = std::make_unique<Etat>();
    if (taille == 0)
        return 0;
    *e = *depart;
    e->NbRobot = (octets[0] & 1U) != 0 ? 2 : 1;
    e->PasTemps = (octets[0] & 2U) != 0 ? 5 : 1;
    lire(*e, {reinterpret_cast<const char*>(octets) + 1, taille - 1});
    const bool prete = tenter([&] {
        Init_Table(*e, {.largeur_ecran = 19200, .hauteur_ecran = 10800});
        if ((octets[0] & 4U) != 0)
            horizontal(*e);
    });
    if (prete)
        jouer(*e);
    return 0;
}
