#include "analyse/verdict.h"
#include "config/lecteur_robot.h"
#include "config/lecteur_table.h"
#include "config/lecteur_trajet.h"
#include "outils.h"
#include "sim/damier.h"
#include "sim/orientation.h"
#include "sim/secours.h"

#include <memory>

namespace {

// The files of a project in one input: settings, then table, robots and trajectories, a line "%%"
// between two.
std::string_view fichier_suivant(std::string_view& reste) {
    const std::size_t fin = reste.find("\n%%\n");
    const std::string_view fichier = reste.substr(0, fin);
    reste = fin == std::string_view::npos ? std::string_view() : reste.substr(fin + 4);
    return fichier;
}

void lire_projet(std::string_view reste, Etat& e) {
    constexpr int robots = 3;
    const std::string_view reglages = fichier_suivant(reste);
    const auto coche = [&](char c) { return reglages.find(c) != std::string_view::npos; };
    e.NbRobot = robots;
    e.PasTemps = coche('a') ? 5 : 1;
    e.utiliDamier = coche('d');
    initDamier(e);
    Entier16 ligne;
    tenter([&] {
        lire_table(
            fichier_suivant(reste), e, [](std::string_view) {}, ligne);
    });
    if (e.XMax < 1 || e.YMax < 1)
        Init_Table_Old(e);
    Init_Robot_Old(e);
    LecteurRobot lecteur_robot(e);
    for (int i = 1; i <= robots; ++i)
        tenter([&] { lecteur_robot.lire(fichier_suivant(reste), i, ligne); });
    LecteurTrajet lecteur_trajet(e);
    for (int i = 1; i <= robots; ++i)
        tenter([&] { lecteur_trajet.lire(fichier_suivant(reste), i, ligne); });
    if (coche('h'))
        tenter([&] { horizontal(e); });
}

} // namespace

CIBLE(analyse) {
    const auto e = std::make_unique<Etat>();
    lire_projet(texte_lu(octets, taille), *e);
    const Analyse a = analyser(*e, {});
    exiger(!en_json(a).empty() && !verdict(a).empty());
    for (const Constat& c : a.constats)
        exiger(!c.texte.empty() &&
               (!c.temps || (*c.temps >= 0 && *c.temps <= dernier_tick(e->PasTemps))));
    return 0;
}
