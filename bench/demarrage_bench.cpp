// From the start of the process to the first painting of both windows, on the screen in memory (or
// on the one that QT_QPA_PLATFORM names), and the peak of memory meanwhile.
#include "comparer.h"

#include "ui/principale/application.h"
#include "ui/principale/sim1.h"

#include <QEvent>
#include <QTimer>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr auto mode_enfant = "--enfant";

// Ends the program once the main window and the options window have been painted.
class FinAuPremierTrait final : public QObject {
public:
    explicit FinAuPremierTrait(Sim1& sim) {
        sim.findChild<QWidget*>("Table")->installEventFilter(this);
        sim.findChild<QWidget*>("Command1")->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* evenement) override {
        if (evenement->type() == QEvent::Paint && ++peints_ == 2)
            QTimer::singleShot(0, this, [] { std::_Exit(0); });
        return false;
    }

private:
    int peints_ = 0;
};

int enfant(int argc, char** argv) {
    std::unique_ptr<FinAuPremierTrait> fin;
    return executer_application(
        argc, argv, {.dossier = std::filesystem::path(argv[2])},
        [&fin](Sim1& sim) { fin = std::make_unique<FinAuPremierTrait>(sim); });
}

/// Runs a program to its end. @returns its peak of memory in kilobytes
long lancer(const std::string& programme, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), programme);
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (std::string& a : arguments)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    ::posix_spawn(&pid, programme.c_str(), nullptr, nullptr, argv.data(), environ);
    rusage usage{};
    int etat = 0;
    ::wait4(pid, &etat, 0, &usage);
    return usage.ru_maxrss;
}

void demarrage(benchmark::State& state) {
    const auto dossier = std::filesystem::temp_directory_path() / "tavolmex-bench";
    const std::string ici = std::filesystem::read_symlink("/proc/self/exe");
    const std::string minimale = std::filesystem::path(ici).parent_path() / "fenetre_minimale";
    lancer(ici, {mode_enfant, dossier}); // writes the project
    long memoire_base = 0;
    long memoire_notre = 0;
    comparer(
        state, [&] { memoire_base = std::max(memoire_base, lancer(minimale, {})); },
        [&] {
            memoire_notre = std::max(memoire_notre, lancer(ici, {mode_enfant, dossier}));
        });
    state.counters["rapport_memoire"] =
        static_cast<double>(memoire_notre) / static_cast<double>(memoire_base);
    std::filesystem::remove_all(dossier);
}
BENCHMARK(demarrage)->Iterations(40)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 3 && std::string(argv[1]) == mode_enfant)
        return enfant(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
