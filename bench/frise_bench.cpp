// The analysis window on nine robots' whole match, on the screen in memory.
#include "comparer.h"

#include "analyse/analyse.h"
#include "config/projet.h"
#include "ui/principale/sim1.h"
#include "ui/verdict/fenetre_analyse.h"

#include <QApplication>
#include <QMouseEvent>

#include <filesystem>
#include <memory>

namespace {

/// The default project with nine robots, analysed and shown.
struct Banc {
    Banc() {
        std::filesystem::create_directories(dossier);
        std::filesystem::current_path(dossier);
        sim.Form_Load();
        dynamic_cast<FOption&>(*sim.findChild<QWidget*>("FOption"))
            .choisir_robots(robots_des_fichiers);
        e = std::make_unique<Etat>(sim.seance().etat());
        e->ZoneRedessin = {0, e->XMax, 0, e->YMax};
        fenetre.resize(1240, 680);
        fenetre.show();
        calculer();
        montrer();
    }
    ~Banc() {
        std::error_code ignoree;
        std::filesystem::remove_all(dossier, ignoree);
    }
    void calculer() { a = analyser(*e, {}); }
    void montrer() {
        fenetre.montrer("", *e, a, {});
        QApplication::processEvents();
    }
    /// All of the window, every layer anew.
    void repeindre() {
        fenetre.resize(1240, fenetre.height() == 680 ? 681 : 680);
        QApplication::processEvents();
    }
    void glisser_a(double part) {
        QWidget& frise = *fenetre.findChild<QWidget*>("frise");
        const QPointF ou(100 + part * (frise.width() - 120), 8);
        QMouseEvent evenement(QEvent::MouseMove, ou, frise.mapToGlobal(ou), Qt::NoButton,
                              Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&frise, &evenement);
        QApplication::processEvents();
    }
    void presser() {
        QWidget& frise = *fenetre.findChild<QWidget*>("frise");
        QMouseEvent evenement(QEvent::MouseButtonPress, QPointF(100, 8),
                              frise.mapToGlobal(QPointF(100, 8)), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(&frise, &evenement);
    }

    std::filesystem::path dossier = std::filesystem::temp_directory_path() / "tavolmex-bench";
    Sim1 sim{dossier, [](int) {}};
    std::unique_ptr<Etat> e;
    Analyse a;
    FenetreAnalyse fenetre{nullptr, [](Genre, bool) {}, [](int, int) {}};
};

/// One movement of the mouse on the time axis, until it is on the screen, against a full repaint.
/// To be under 4 ms.
void deplacer_le_curseur(benchmark::State& state) {
    Banc banc;
    banc.presser();
    int n = 0;
    comparer(
        state, [&] { banc.repeindre(); }, [&] { banc.glisser_a((++n * 37 % 100) / 100.0); });
}
BENCHMARK(deplacer_le_curseur)->Iterations(300)->Unit(benchmark::kMicrosecond);

/// A match computed with its findings, and shown, against computing and two full repaints: at
/// most 1.
void calculer_et_montrer(benchmark::State& state) {
    Banc banc;
    comparer(
        state,
        [&] {
            banc.calculer();
            banc.repeindre();
            banc.repeindre();
        },
        [&] {
            banc.calculer();
            banc.montrer();
        });
}
BENCHMARK(calculer_et_montrer)->Iterations(40)->Unit(benchmark::kMillisecond);

} // namespace
