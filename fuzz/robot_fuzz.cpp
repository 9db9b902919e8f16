#include "base/texte.h"
#include "config/lecteur_robot.h"

#include <cmath>
#include <cstdlib>
#include <memory>

// Two robots from one file, so that the reference point is carried over as well.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto e = std::make_unique<Etat>();
    const std::string texte = en_utf8(std::string(octets, octets + taille));
    LecteurRobot lecteur(*e);
    try {
        for (int n = 1; n <= 2; ++n) {
            Entier16 NoLigne;
            lecteur.lire(texte, n, NoLigne);
            for (int k = 1; k <= e->NbPoints(n); ++k)
                if (!std::isfinite(e->RobotDist(n, k)) || !std::isfinite(e->RobotAngle(n, k)))
                    std::abort();
        }
    } catch (const ErreurExecution&) { // NOLINT(bugprone-empty-catch)
        // The only way out that a reader may take besides its end.
    }
    return 0;
}
