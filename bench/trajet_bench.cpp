// The trajectory editor on a full trajectory among nine robots, on the screen in memory.
#include "comparer.h"

#include "analyse/analyse.h"
#include "config/projet.h"
#include "ui/editeurs/dessin_trajet.h"
#include "ui/principale/sim1.h"

#include <QApplication>
#include <QKeyEvent>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace {

/// As many actions as a trajectory can have; the match has time for nearly all of them.
std::string trajet_plein() {
    constexpr const char* pas[] = {"Avance,3", "Droite,4", "Recule,2", "Gauche,5", "Pause,2"};
    std::string texte = "# trajet plein\r\nInit,100,100,90\r\n";
    for (int i = 0; i < actions_max - 1; ++i)
        texte.append(pas[i % 5]).append("\r\n");
    return texte + "FIN\r\n";
}

/// The editor on robot 1's full trajectory in the default project, nine robots on the table.
struct Banc {
    Banc() {
        std::filesystem::remove_all(dossier); // an interrupted run leaves questions
        std::filesystem::create_directories(dossier);
        std::filesystem::current_path(dossier);
        sim.Form_Load();
        std::ofstream(dossier / "Configuration" / "Defaut Trajet1.ini", std::ios::binary)
            << trajet_plein();
        sim.seance().relire_tout();
        dynamic_cast<FOption&>(*sim.findChild<QWidget*>("FOption"))
            .choisir_robots(robots_des_fichiers);
        sim.findChild<QAction*>("menu_trajet")->trigger();
        QApplication::processEvents();
        e = std::make_unique<Etat>(sim.seance().etat());
        taper();
    }
    ~Banc() {
        std::error_code ignoree;
        std::filesystem::remove_all(dossier, ignoree);
    }
    /// Opens a cell in the middle of the trajectory: the length of a straight move.
    void taper() {
        auto& table = *sim.findChild<QTableView*>("tableActions");
        const QModelIndex ou = table.model()->index(1 + actions_max / 2, ModeleActions::valeur1);
        table.setCurrentIndex(ou);
        table.edit(ou);
        ligne = table.viewport()->findChild<QLineEdit*>();
        ligne->selectAll();
        touche('4'); // another length than the saved one
    }
    /// One key, until everything that it changes is on the screen.
    void touche(char c) {
        for (const QEvent::Type genre : {QEvent::KeyPress, QEvent::KeyRelease}) {
            const bool efface = c == '\b';
            QKeyEvent evenement(genre, efface ? Qt::Key_Backspace : Qt::Key_0 + (c - '0'),
                                Qt::NoModifier, efface ? QString() : QString(c));
            QApplication::sendEvent(ligne, &evenement);
        }
        QApplication::processEvents();
    }

    std::filesystem::path dossier = std::filesystem::temp_directory_path() / "tavolmex-bench";
    Sim1 sim{dossier, [](int) {}};
    QLineEdit* ligne = nullptr;
    std::unique_ptr<Etat> e;
};

/// One key typed in a cell of 1000 actions, until path, times and findings are on the screen,
/// against computing the match of the nine robots with its findings. To be under 16 ms.
void taper_une_touche(benchmark::State& state) {
    Banc banc;
    bool longue = false;
    comparer(
        state, [&] { benchmark::DoNotOptimize(analyser(*banc.e, {})); },
        [&] {
            banc.touche(longue ? '\b' : '1');
            longue = !longue;
        });
}
BENCHMARK(taper_une_touche)->Iterations(200)->Unit(benchmark::kMillisecond);

} // namespace
