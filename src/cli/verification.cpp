#include "cli/verification.h"

#include "cli/simulation.h"
#include "draw/robot.h"
#include "draw/surface_vide.h"
#include "draw/table.h"
#include "sim/damier.h"
#include "sim/orientation.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>

namespace {

std::unique_ptr<Etat> copie_de(const Etat& e) {
    return std::make_unique<Etat>(e);
}

void poser(Etat& e, int i, float x, float y, float cap) {
    e.XInit(i) = e.XRobot(i) = x;
    e.YInit(i) = e.YRobot(i) = y;
    e.CapInit(i) = e.CapRobot(i) = cap;
}

// Of the poses none but robot n's is left; 0: none at all.
void garder_la_pose(Etat& e, int n) {
    for (int i = 1; i <= robots_des_fichiers; ++i) {
        if (i != n)
            poser(e, i, 0, 0, 0);
    }
}

void vider_les_objets(Etat& e) {
    e.NbZones = e.NbLignes = e.NbEllipses = e.NbBlocs = e.NbPions = 0;
}

void garder_le_contour(Etat& e, int n) {
    for (int i = 1; i <= robots_des_fichiers; ++i) {
        if (i != n)
            e.NbPoints(i) = 0;
    }
}

// A match that nobody sees; the engine's last words are kept.
class FenetresEssai final : public FenetresTerminal {
public:
    explicit FenetresEssai(Etat& etat) : FenetresTerminal(etat, std::cerr) {}

    void message(std::string_view texte, std::string_view explication) override {
        texte_ = texte;
        explication_ = explication;
    }
    const std::string& texte() const { return texte_; }
    const std::string& explication() const { return explication_; }

private:
    std::string texte_, explication_;
};

// How a match of the first `nb_robots` robots ended.
struct Essai {
    bool fini_par_une_erreur = false;
    std::string texte, explication; ///< the engine's last words
    std::string action;             ///< of the last robot: "action 2 (AVANCE)"
    std::int32_t temps = 0;
};

Essai jouer(const Etat& depart, int nb_robots) {
    const auto e = copie_de(depart);
    e->NbRobot = nb_robots;
    FenetresEssai fenetres(*e);
    Moteur moteur(*e, fenetres);
    initDamier(*e);
    moteur.Run_Jeu();
    while (fenetres.en_marche() && moteur.Timer_Timer()) {
    }
    return {fenetres.terminee(), fenetres.texte(), fenetres.explication(),
            "action " + std::to_string(e->NumAction(nb_robots)) + " (" +
                std::string(e->ActionEnCours(nb_robots).sans_blancs()) + ")",
            e->TempsEcoule};
}

class Verification {
public:
    Verification(const Projet& projet, Fenetres& fenetres) : projet_(projet), fenetres_(fenetres) {}

    void debout_puis_tournee(const Etat& lu) {
        const auto e = copie_de(lu);
        if (!essayer_dans_un_sens(*e) || !tourner(*e, horizontal))
            return;
        sens_ = " (table tournée)";
        if (essayer_dans_un_sens(*e))
            tourner(*e, vertical);
    }

private:
    // Runs `action` on a copy; a fault is told under the file's name. @returns true without one
    template <typename Action>
    bool essayer(const std::string& fichier, const std::string& quoi, const Etat& e,
                 Action action) {
        const auto copie = copie_de(e);
        try {
            action(*copie);
            return true;
        } catch (const ErreurExecution& erreur) {
            fenetres_.message("Le fichier " + fichier + " arrêterait le programme : " + quoi +
                                  sens_,
                              std::string("Raison : ") + erreur.what());
            return false;
        }
    }

    template <typename Action>
    static bool passe(const Etat& e, Action action) {
        try {
            action(*copie_de(e));
            return true;
        } catch (const ErreurExecution&) {
            return false;
        }
    }

    std::string table() const { return projet_.chemin_table().string(); }
    std::string robot(int n) const { return projet_.chemin_robot(n).string(); }
    std::string trajet(int n) const { return projet_.chemin_trajet(n).string(); }
    // A pose is the trajectory's "Init", else the robot's "I".
    std::string pose(int n) const { return robot(n) + " ou " + trajet(n); }

    bool essayer_dans_un_sens(const Etat& e) {
        const bool dessinee =
            essayer(table(), "la taille de la table", e, [](Etat& c) { disposer(c); }) &&
            essayer(table(), "le dessin de la table", e, [](Etat& c) {
                SurfaceVide vide;
                peindre_table(c, vide);
            });
        if (!dessinee)
            return false;
        bool robots_dessines = true;
        for (int n = 1; n <= robots_des_fichiers; ++n)
            robots_dessines = dessiner_robot(e, n) && robots_dessines;
        if (robots_dessines)
            essayer_les_matchs(e);
        return robots_dessines;
    }

    bool dessiner_robot(const Etat& e, int n) {
        const auto seul = copie_de(e);
        garder_le_contour(*seul, n);
        const auto dessin = [](Etat& c) {
            c.NbRobot = robots_des_fichiers;
            SurfaceVide vide;
            peindre_robots(c, vide);
        };
        const auto dessin_au_coin = [&](Etat& c) {
            garder_la_pose(c, 0);
            dessin(c);
        };
        const std::string qui = "le dessin du robot " + std::to_string(n);
        if (passe(*seul, dessin))
            return true;
        if (!passe(*seul, dessin_au_coin))
            return essayer(robot(n), qui, *seul, dessin_au_coin);
        return essayer(pose(n), qui + " à sa position de départ", *seul, dessin);
    }

    // Turns `e` itself when nothing is in the way.
    bool tourner(Etat& e, void (*sens)(Etat&)) {
        if (passe(e, sens)) {
            sens(e);
            return true;
        }
        essayer(table(), "le quart de tour de la table", e, [&](Etat& c) {
            garder_la_pose(c, 0);
            sens(c);
        });
        for (int n = 1; n <= robots_des_fichiers; ++n)
            essayer(pose(n), "le quart de tour du robot " + std::to_string(n), e, [&](Etat& c) {
                vider_les_objets(c);
                garder_la_pose(c, n);
                sens(c);
            });
        return false;
    }

    // With the settings' own options first, then with all robots.
    void essayer_les_matchs(const Etat& e) {
        const int voulus = std::clamp<int>(e.Options(3), 1, robots_des_fichiers);
        const auto regle = copie_de(e);
        regle->PasTemps = e.Options(2) == 1 ? 5 : 1;
        if (jouer(*regle, voulus).fini_par_une_erreur)
            return denoncer(*regle);
        if (jouer(e, robots_des_fichiers).fini_par_une_erreur)
            denoncer(e);
    }

    // The robot without which the match would go on.
    void denoncer(const Etat& e) {
        for (int n = 1; n <= robots_des_fichiers; ++n) {
            const Essai essai = jouer(e, n);
            if (!essai.fini_par_une_erreur)
                continue;
            const bool trajet_seul = essai.texte.find("Trajet.ini") != std::string::npos;
            fenetres_.message("Le fichier " + (trajet_seul ? trajet(n) : pose(n)) +
                                  " arrêterait le programme : robot " + std::to_string(n) + ", " +
                                  essai.action + ", " + std::to_string(essai.temps / 100) +
                                  " s après le départ" + sens_,
                              essai.explication);
            return;
        }
    }

    const Projet& projet_;
    Fenetres& fenetres_;
    std::string sens_;
};

} // namespace

void essayer_le_projet(const Etat& lu, const Projet& projet, Fenetres& fenetres) {
    Verification(projet, fenetres).debout_puis_tournee(lu);
}
