// The windows for a long time: projects loaded one after the other, then matches at full speed.
// Prints what the program holds meanwhile, a line each; none of it may grow.
#include "outils/dossier_temporaire.h"
#include "ui/principale/application.h"
#include "ui/principale/sim1.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>

#include <malloc.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

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

void charger(Sim1& sim, long nombre) {
    for (long n = 1; n <= nombre; ++n) {
        sim.seance().etat().NomProjet = n % 2 == 0 ? "Defaut" : "Essai";
        sim.seance().recharger();
        QApplication::processEvents();
        if (n % (nombre / 10) == 0)
            dire("chargements", n);
    }
}

void jouer(Sim1& sim, std::chrono::seconds duree) {
    auto& demarrer = *sim.findChild<QPushButton*>("Command1");
    for (int i = 0; i < 20; ++i) // up to the highest speed
        sim.findChild<QAction*>("menu_plus_vite")->trigger();
    long matchs = 0;
    const auto debut = Horloge::now();
    for (auto dite = debut; Horloge::now() - debut < duree;) {
        if (demarrer.text() == "Démarrer") {
            demarrer.click();
            ++matchs;
        }
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (Horloge::now() - dite >= duree / 10) {
            dite = Horloge::now();
            dire("matchs", matchs);
        }
    }
}

} // namespace

// endurance [LOADS [SECONDS]]
int main(int argc, char** argv) {
    const long chargements = argc > 1 ? std::atol(argv[1]) : 1000;
    const std::chrono::seconds duree(argc > 2 ? std::atol(argv[2]) : 300);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const DossierTemporaire dossier;
    ::setenv("XDG_CONFIG_HOME", dossier.chemin().c_str(), 1);
    int un = 1;
    return executer_application(un, argv, dossier.chemin(), [&](Sim1& sim) {
        dire("depart", 0);
        charger(sim, chargements);
        jouer(sim, duree);
        std::_Exit(0);
    });
}
