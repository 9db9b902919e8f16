#include "config/lecteur_robot.h"
#include "outils.h"

#include <cmath>
#include <memory>

// Two robots from one file, so that the reference point is carried over as well.
CIBLE(robot) {
    static const auto e = std::make_unique<Etat>();
    const std::string texte = texte_lu(octets, taille);
    LecteurRobot lecteur(*e);
    tenter([&] {
        for (int n = 1; n <= 2; ++n) {
            Entier16 NoLigne;
            lecteur.lire(texte, n, NoLigne);
            for (int k = 1; k <= e->NbPoints(n); ++k)
                exiger(std::isfinite(e->RobotDist(n, k)) && std::isfinite(e->RobotAngle(n, k)));
        }
    });
    return 0;
}
