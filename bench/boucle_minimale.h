#pragma once

#include "sim/etat.h"

#include <array>
#include <cstdint>
#include <vector>

/// The baseline of the match's benchmarks: exactly the engine's arithmetic with a fresh sine and
/// cosine everywhere, no checks, no text, no outlet.
class BoucleMinimale {
public:
    explicit BoucleMinimale(const Etat& e);

    /// Plays a whole match from the initial poses.
    void jouer();

    float x(int i) const { return robots_[static_cast<std::size_t>(i - 1)].x; }
    float y(int i) const { return robots_[static_cast<std::size_t>(i - 1)].y; }
    int carreaux() const { return carreaux_; }

    /// Predicts the arcs' tiles too. The walks that never end are noted by the first match, which
    /// walks them to their limit, and skipped by the next ones.
    bool avec_arcs = false;

private:
    enum class Code : std::uint8_t {
        fin,
        pause,
        avance,
        recule,
        droite,
        gauche,
        avdr,
        avga,
        ardr,
        arga,
        bd,
        bg,
        rien
    };
    struct Action {
        Code code;
        int p1, p2;
    };
    struct Robot {
        std::vector<Action> trajet;
        std::size_t num = 0;
        Action action{Code::rien, 0, 0};
        float progression = 0;
        float x = 0, y = 0, cap = 0, xm = 0, ym = 0, xextr = 0, yextr = 0;
        float x0 = 0, y0 = 0, cap0 = 0, xm0 = 0, ym0 = 0, xextr0 = 0, yextr0 = 0;
        float dist = 0, vlin = 0, vrot = 0, entraxe = 0;
    };

    static Code code_de(const Nom10& nom);
    void executer(Robot& r);
    void charger(Robot& r);
    void avancer(Robot& r, int distance);
    void tourner(Robot& r, int angle);
    void virer(Robot& r, int angle, int cote);
    void chercher(Robot& r, bool a_droite);
    void predire(const Robot& r);
    void marcher(float xd, float yd, float xf, float yf);
    void predire_arc(const Robot& r, int cote);
    void marcher_si_fini(float xd, float yd, float xf, float yf);

    std::vector<Robot> robots_;
    PointBalise point_x_, point_y_;
    int pas_temps_;
    float incidence_ = 0;
    int carreaux_ = 0;
    std::vector<bool> finis_;
    std::size_t prediction_ = 0;
};
