#pragma once

#include "analyse/analyse.h"
#include "draw/geometrie.h"
#include "outils/textes.h"
#include "outils/trajet_essai.h"
#include "sim/actions.h"
#include "sim/damier.h"

#include <cmath>
#include <initializer_list>
#include <memory>
#include <random>

/// A project made by hand: a table of 200 x 320 cm and robots that move by 1 cm and 1 degree a
/// tick.
struct BancAnalyse {
    std::unique_ptr<Etat> etat = std::make_unique<Etat>();
    Etat& e = *etat;

    BancAnalyse() {
        preparer_essai(e);
        initDamier(e);
    }

    // Each returns itself: a scene is one sentence.
    BancAnalyse& ajouter(int i, Nom10 action, int p1 = 0, int p2 = 0) {
        ajouter_action(e, i, action, p1, p2);
        return *this;
    }
    BancAnalyse& poser(int i, double x, double y, double cap = 0) {
        e.XInit(i) = simple(x);
        e.YInit(i) = simple(y);
        e.CapInit(i) = simple(cap);
        return *this;
    }
    /// One field of the state.
    template <typename Champ, typename Valeur>
    BancAnalyse& regler(Champ champ, Valeur valeur) {
        e.*champ = valeur;
        return *this;
    }
    BancAnalyse& vitesse(int i, double lineaire, double rotation = 1) {
        e.VitesseLin(i) = simple(lineaire);
        e.VitesseRot(i) = simple(rotation);
        return *this;
    }
    /// The right beacon and the middle of robot i's sensor line.
    BancAnalyse& balise(int i, PointBalise droite, double xm, double ym, double ligne = 0) {
        e.PointY = droite;
        e.XmInit(i) = simple(xm);
        e.YmInit(i) = simple(ym);
        e.DistExtr(i) = simple(ligne);
        return *this;
    }
    BancAnalyse& bloc(Quatre q) {
        e.NbBlocs = e.NbBlocs + 1;
        e.Blocs(e.NbBlocs) = q;
        return *this;
    }
    /// The outline in the robot's frame: x ahead, y to the left, the reference point at (0, 0).
    BancAnalyse& contour(int i, std::initializer_list<Segment> segments) {
        e.NbPoints(i) = 0;
        for (const Segment& s : segments) {
            for (const Point p : {s.a, s.b}) {
                e.NbPoints(i) = e.NbPoints(i) + 1;
                e.RobotDist(i, e.NbPoints(i)) = simple(std::hypot(p.x, p.y));
                e.RobotAngle(i, e.NbPoints(i)) = simple(std::atan2(p.y, p.x));
            }
        }
        return *this;
    }
    BancAnalyse& carre(int i, double demi) {
        return contour(i, {{{-demi, -demi}, {demi, -demi}},
                           {{demi, -demi}, {demi, demi}},
                           {{demi, demi}, {-demi, demi}},
                           {{-demi, demi}, {-demi, -demi}}});
    }
    Analyse analyser() const { return ::analyser(e, {}); }
    const Constat* constat(const Analyse& a, Genre genre, int robot = 0) const {
        for (const Constat& c : a.constats) {
            if (c.genre == genre && (robot == 0 || c.robot == robot))
                return &c;
        }
        return nullptr;
    }
};

/// A project that no one would write: any action, any speed, any outline, both time steps.
class ProjetAuHasard {
public:
    explicit ProjetAuHasard(unsigned graine) : hasard_(graine) {}

    void remplir(BancAnalyse& b) {
        b.e.NbRobot = entier(1, 4);
        b.e.PasTemps = entier(0, 1) == 0 ? 1 : 5;
        b.e.utiliDamier = entier(0, 1) == 0;
        b.e.PointX = {simple(entier(-50, 250)), simple(entier(0, 320)), 0};
        b.e.PointY = {simple(entier(-50, 250)), simple(entier(0, 320)), 0};
        b.e.NbBlocs = entier(0, 3);
        for (int n = 1; n <= b.e.NbBlocs; ++n) {
            const int x = entier(0, 180);
            const int y = entier(0, 300);
            b.e.Blocs(n) = entier(0, 1) == 0 ? Quatre{x, y, entier(1, 20), marque_disque}
                                             : Quatre{x, y, x + entier(0, 20), y + entier(0, 20)};
        }
        for (int i = 1; i <= b.e.NbRobot; ++i)
            robot(b, i);
    }

    int entier(int bas, int haut) { return std::uniform_int_distribution(bas, haut)(hasard_); }

private:
    void robot(BancAnalyse& b, int i) {
        b.e.VitesseLin(i) = simple(entier(-20, 400) / 100.0);
        b.e.VitesseRot(i) = simple(entier(-20, 400) / 100.0);
        b.e.Entraxe(i) = simple(entier(1, 30));
        b.e.DistExtr(i) = simple(entier(0, 30));
        b.e.XmInit(i) = simple(entier(0, 200));
        b.e.YmInit(i) = simple(entier(0, 320));
        b.poser(i, entier(20, 180), entier(20, 300), entier(-400, 400));
        b.e.NbPoints(i) = 2 * entier(1, 6);
        for (int k = 1; k <= b.e.NbPoints(i); ++k) {
            b.e.RobotDist(i, k) = simple(entier(0, 300) / 10.0);
            b.e.RobotAngle(i, k) = simple(entier(-314, 314) / 100.0);
        }
        constexpr Nom10 choix[] = {actions::PAUSE,      actions::AVANCE,    actions::RECULE,
                                   actions::DROITE,     actions::GAUCHE,    actions::VIRAVDR,
                                   actions::VIRAVGA,    actions::VIRARDR,   actions::VIRARGA,
                                   actions::BALISE_DRO, actions::BALISE_GAU};
        for (int n = entier(0, 25); n > 0; --n)
            b.ajouter(i, choix[entier(0, 10)], entier(-5, 120), entier(0, 60));
        if (entier(0, 3) > 0)
            b.ajouter(i, actions::FIN);
    }

    std::mt19937 hasard_;
};
