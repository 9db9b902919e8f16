// The main window's tick and painting, on the screen in memory.
#include "comparer.h"

#include "draw/robot.h"
#include "draw/table.h"
#include "sim/fenetres_muettes.h"
#include "ui/principale/sim1.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <cstdlib>
#include <filesystem>
#include <memory>

namespace {

using std::filesystem::path;

/// A started simulator in the middle of a run, on the default project.
struct Banc {
    explicit Banc(int robots) {
        std::filesystem::create_directories(dossier);
        std::filesystem::current_path(dossier);
        sim.Form_Load();
        Seance& seance = sim.seance();
        dynamic_cast<FOption&>(*sim.findChild<QWidget*>("FOption")).choisir_robots(robots);
        seance.moteur().Run_Jeu();
        seance.fenetres().regler_Timer(32'000); // runs, but the benchmark is the clock
        seance.moteur().Timer_Timer();
        QApplication::processEvents();
    }
    ~Banc() {
        std::error_code ignoree;
        std::filesystem::remove_all(dossier, ignoree);
    }
    path dossier = std::filesystem::temp_directory_path() / "tavolmex-bench";
    Sim1 sim{dossier, [](int) {}};
    Etat& e = sim.seance().etat();
};

/// The same window and tick, with plain labels for the two lines.
class Etiquettes {
public:
    explicit Etiquettes(Etat& e) : e_(e) {
        auto* colonne = new QVBoxLayout(&fenetre_);
        colonne->setContentsMargins(0, 0, 0, 0);
        colonne->setSpacing(0);
        for (QWidget* w : std::initializer_list<QWidget*>{&Mess_, &Info_, &table_})
            colonne->addWidget(w);
        colonne->setStretch(2, 1);
        fenetre_.resize(360, 680);
        fenetre_.show();
        QApplication::processEvents();
    }
    void tick(const LigneMess& mess, const LigneInfo& info) {
        table_.Dessine_Table();
        table_.Dessine_Robot();
        Mess_.setText(texte_qt(mess.texte()));
        Info_.setText(texte_qt(info.texte()));
        QApplication::processEvents();
    }

private:
    Etat& e_;
    FenetresMuettes f_;
    QWidget fenetre_;
    QLabel Mess_, Info_;
    Table table_{e_, f_, &fenetre_};
};

struct Lignes {
    LigneMess mess;
    LigneInfo info;
};

/// The values that the two lines show at this moment; they change with every call.
Lignes valeurs(const Etat& e, int n) {
    Lignes l;
    l.mess.TempsEcoule = n;
    l.mess.NumAction = 12;
    l.mess.TrajNbActions = 33;
    l.mess.ActionEnCours = l.mess.action_pour_l_unite = Nom10("AVANCE");
    l.mess.Progression = static_cast<float>(n % 300);
    l.mess.ParamEnCours = 300;
    l.mess.Incidence = e.Incidence + static_cast<float>(n % 360) / 8;
    l.info.Xm = static_cast<float>(n % 200);
    l.info.Ym = static_cast<float>(n % 320);
    return l;
}

/// Moves every robot by a step and a degree. @returns what the lines show of it
Lignes bouger(Etat& e, int n) {
    for (int i = 1; i <= e.NbRobot; ++i) {
        e.XRobot(i) = static_cast<float>(100 + std::abs((n + 20 * i) % 120 - 60)); // to and fro
        e.CapRobot(i) = static_cast<float>(n % 360);
    }
    return valeurs(e, n);
}

/// A tick of the window, until its pixels are there.
void tick(Sim1& sim, int n) {
    const Lignes l = bouger(sim.seance().etat(), n);
    Fenetres& f = sim.seance().fenetres();
    f.Dessine_Table();
    f.Dessine_Robot();
    f.ecrire_Mess(l.mess);
    f.ecrire_Info(l.info);
    QApplication::processEvents();
}

/// The window's tick (robots' region, both lines) against the same with labels.
void tick_de_la_fenetre(benchmark::State& state) {
    Banc banc(static_cast<int>(state.range(0)));
    Etiquettes etiquettes(banc.e);
    int n = 0;
    comparer(
        state,
        [&] {
            const Lignes l = bouger(banc.e, ++n);
            etiquettes.tick(l.mess, l.info);
        },
        [&] { tick(banc.sim, ++n); });
}
BENCHMARK(tick_de_la_fenetre)->Arg(1)->Arg(9)->Iterations(2000)->Unit(benchmark::kMicrosecond);

/// 99th percentile of the window's tick, against its median.
void regularite_du_tick(benchmark::State& state) {
    Banc banc(1);
    std::vector<double> durees;
    int n = 0;
    while (state.KeepRunning()) {
        const auto debut = std::chrono::steady_clock::now();
        tick(banc.sim, ++n);
        durees.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - debut)
                .count());
    }
    std::sort(durees.begin(), durees.end());
    const double mediane = durees[durees.size() / 2];
    state.counters["mediane_us"] = mediane;
    state.counters["rapport"] = durees[durees.size() * 99 / 100] / mediane;
}
BENCHMARK(regularite_du_tick)->Iterations(5000)->Unit(benchmark::kMicrosecond);

/// Repainting a region of the window or all of it, against the same primitives painted straight on
/// a picture of its size.
void repeindre(benchmark::State& state) {
    Banc banc(9);
    auto& table = dynamic_cast<Table&>(*banc.sim.findChild<QWidget*>("Table"));
    const QRect region =
        state.range(0) != 0 ? table.rect() : QRect(table.rect().center(), QSize(60, 60));
    QImage image(table.size(), QImage::Format_RGB32);
    Contours contours;
    peindre_robots(banc.e, contours);
    comparer(
        state,
        [&] {
            QPainter peintre(&image);
            peintre.setClipRect(region);
            SurfaceQt s(peintre, image.size());
            s.coordonnees(-marge_table, banc.e.YMax + marge_table, banc.e.XMax + marge_table,
                          -marge_table);
            const Region avant = banc.e.ZoneRedessin;
            banc.e.ZoneRedessin = {0, banc.e.XMax, 0, banc.e.YMax};
            peindre_table(banc.e, s);
            banc.e.ZoneRedessin = avant;
            for (const Trait& t : contours.traits())
                s.ligne(t.a.x, t.a.y, t.b.x, t.b.y, couleurs::cyan);
        },
        [&] { table.repaint(region); });
}
BENCHMARK(repeindre)->ArgName("tout")->Arg(0)->Arg(1)->Iterations(1000);

} // namespace
