#include "sim/secours.h"

#include "sim/actions.h"

#include <array>

void Init_Table_Old(Etat& e) {
    e.XMax = 200;
    e.YMax = 320;
    e.NbZones = 0;
    ++e.version_table;
}

void Init_Robot_Old(Etat& e, Entier16 premier) {
    struct Polaire {
        float distance, direction;
    };
    constexpr std::array<Polaire, 8> contour{{{22.4F, -2.68F},
                                              {22.4F, -0.46F},
                                              {22.4F, 2.68F},
                                              {22.4F, 0.46F},
                                              {18.0F, -2.55F},
                                              {18.0F, 2.55F},
                                              {18.0F, -0.59F},
                                              {18.0F, 0.59F}}};
    for (int i = premier; i <= robots_des_fichiers; ++i) {
        e.NbPoints(i) = static_cast<int>(contour.size());
        int k = 0;
        for (const Polaire& point : contour) {
            ++k;
            e.RobotDist(i, k) = point.distance;
            e.RobotAngle(i, k) = point.direction;
        }
        e.CapInit(i) = 180;
        e.XInit(i) = 100;
        e.YInit(i) = 22;
        e.VitesseRot(i) = 1;
        e.VitesseLin(i) = 1;
        e.Entraxe(i) = 10;
    }
}

void Init_Jeu_Old(Etat& e) {
    for (int i = 1; i <= robots_des_fichiers; ++i) {
        e.TrajNbActions(i) = 1;
        e.TrajAction(i, 1) = actions::FIN;
        e.TrajParam1(i, 1) = 0;
    }
}
