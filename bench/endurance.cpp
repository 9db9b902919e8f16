// The windows for a long time: projects loaded one after the other, then matches at full speed.
// Prints what the program holds meanwhile, a line each; none of it may grow.
#include "outils/dossier_temporaire.h"
#include "ui/principale/application.h"
#include "ui/principale/sim1.h"

#include <QAction>
#include <QPushButton>
#include <QTimer>

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>

namespace {

namespace fs = std::filesystem;
using Horloge = std::chrono::steady_clock;

long resident_kio() {
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * (::sysconf(_SC_PAGESIZE) / 1024);
}

auto entrees(const char* dossier) {
    return std::distance(fs::directory_iterator(dossier), fs::directory_iterator());
}

void dire(const char* quoi, long fait) {
    std::printf("%-12s %8ld  %7ld Kio  tas %7zu Kio  %3td descripteurs  %2td fils\n", quoi, fait,
                resident_kio(), ::mallinfo2().uordblks / 1024, entrees("/proc/self/fd"),
                entrees("/proc/self/task"));
    std::fflush(stdout);
}

// In the event loop, a step at a time: what is to be deleted later goes meanwhile.
class Endurance final : public QObject {
public:
    Endurance(Sim1& sim, long chargements, std::chrono::seconds duree)
        : sim_(sim),
          demarrer_(*sim.findChild<QPushButton*>("Command1")),
          chargements_(chargements),
          duree_(duree) {
        dire("depart", 0);
        pas_.callOnTimeout(this, [this] { faits_ < chargements_ ? charger() : jouer(); });
        pas_.start(0);
    }

private:
    void charger() {
        sim_.seance().etat().NomProjet = ++faits_ % 2 == 0 ? "Defaut" : "Essai";
        sim_.seance().recharger();
        if (faits_ % (chargements_ / 10) == 0)
            dire("chargements", faits_);
        if (faits_ < chargements_)
            return;
        for (int i = 0; i < 20; ++i) // up to the highest speed
            sim_.findChild<QAction*>("menu_plus_vite")->trigger();
        debut_ = dite_ = Horloge::now();
        pas_.setInterval(1);
    }
    void jouer() {
        if (demarrer_.text() == "Démarrer") {
            demarrer_.click();
            ++matchs_;
        }
        if (Horloge::now() - dite_ >= duree_ / 10) {
            dite_ = Horloge::now();
            dire("matchs", matchs_);
        }
        if (Horloge::now() - debut_ >= duree_)
            std::_Exit(0);
    }

    Sim1& sim_;
    QPushButton& demarrer_;
    long chargements_;
    std::chrono::seconds duree_;
    QTimer pas_;
    long faits_ = 0, matchs_ = 0;
    Horloge::time_point debut_, dite_;
};

} // namespace

// endurance [LOADS [SECONDS]]
int main(int argc, char** argv) {
    const long chargements = argc > 1 ? std::atol(argv[1]) : 1000;
    const std::chrono::seconds duree(argc > 2 ? std::atol(argv[2]) : 300);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const DossierTemporaire dossier;
    ::setenv("XDG_CONFIG_HOME", dossier.chemin().c_str(), 1);
    int un = 1;
    std::unique_ptr<Endurance> endurance;
    return executer_application(un, argv, {.dossier = dossier.chemin()}, [&](Sim1& sim) {
        endurance = std::make_unique<Endurance>(sim, std::max(10L, chargements), duree);
    });
}
