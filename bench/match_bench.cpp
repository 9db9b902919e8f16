#include "banc_match.h"
#include "boucle_minimale.h"
#include "comparer.h"

#include "sim/actions.h"

namespace {

// Keeps the status texts' values of every tick, as a window that is not looked at does.
class FenetresGardant final : public FenetresBanc {
public:
    using FenetresBanc::FenetresBanc;
    void ecrire_Mess(const LigneMess& mess) override { mess_ = &mess; }
    void ecrire_Info(const LigneInfo& info) override { info_ = &info; }

private:
    const LigneMess* mess_ = nullptr;
    const LigneInfo* info_ = nullptr;
};

template <typename F>
void exiger_meme_fin(benchmark::State& state, Banc<F>& b, BoucleMinimale& base) {
    b.jouer();
    base.jouer();
    if (base.avec_arcs && base.carreaux() != b.e.NbreCarreaux)
        state.SkipWithError("the baseline counts other tiles");
    for (int i = 1; i <= b.e.NbRobot; ++i) {
        if (base.x(i) != b.e.XRobot(i) || base.y(i) != b.e.YRobot(i))
            state.SkipWithError("the baseline ends elsewhere");
    }
}

// The whole default match against the minimal loop: at most 1.0 with 1 robot, 0.8 with 9.
void match_par_defaut(benchmark::State& state) {
    Banc<> b;
    charger_defaut(b, static_cast<int>(state.range(0)));
    BoucleMinimale temoin(b.e); // arcs predicted too: the same tiles must come out
    temoin.avec_arcs = true;
    exiger_meme_fin(state, b, temoin);
    BoucleMinimale base(b.e);
    exiger_meme_fin(state, b, base);
    comparer(
        state, [&] { base.jouer(); }, [&] { b.jouer(); });
}
BENCHMARK(match_par_defaut)->Arg(1)->Arg(9)->Unit(benchmark::kMicrosecond);

// Keeping the texts available, unseen, against not keeping them: at most 1.05.
void textes_gardes(benchmark::State& state) {
    Banc<> sans;
    Banc<FenetresGardant> avec;
    charger_defaut(sans, static_cast<int>(state.range(0)));
    charger_defaut(avec, static_cast<int>(state.range(0)));
    comparer(
        state, [&] { sans.jouer(); }, [&] { avec.jouer(); });
}
BENCHMARK(textes_gardes)->Arg(1)->Arg(9)->Unit(benchmark::kMicrosecond);

void preparer(Etat& e) {
    for (int i = 1; i <= 9; ++i) {
        e.VitesseLin(i) = 1;
        e.VitesseRot(i) = 0.9F;
        e.Entraxe(i) = 10;
        e.XInit(i) = 100;
        e.YInit(i) = 100;
        e.XmInit(i) = 100;
        e.YmInit(i) = 100;
        e.DistExtr(i) = 20;
    }
    initDamier(e);
}

void ajouter(Etat& e, Nom10 action, int p1, int p2) {
    e.TrajNbActions(1) = e.TrajNbActions(1) + 1;
    e.TrajAction(1, e.TrajNbActions(1)) = action;
    e.TrajParam1(1, e.TrajNbActions(1)) = p1;
    e.TrajParam2(1, e.TrajNbActions(1)) = p2;
}

// Arcs, each with its prediction, against the minimal loop doing the same: at most 1.1.
void arcs_avec_prediction(benchmark::State& state) {
    Banc<> b;
    preparer(b.e);
    for (const Nom10& arc :
         {actions::VIRAVDR, actions::VIRAVGA, actions::VIRARDR, actions::VIRARGA}) {
        for (int n = 0; n < 25; ++n)
            ajouter(b.e, arc, 90 + 10 * n, 20 + 5 * n);
    }
    BoucleMinimale base(b.e);
    base.avec_arcs = true;
    exiger_meme_fin(state, b, base);
    comparer(
        state, [&] { base.jouer(); }, [&] { b.jouer(); });
}
BENCHMARK(arcs_avec_prediction)->Unit(benchmark::kMicrosecond);

// A search that never finds its beacon, a whole match long: at most 1.1.
void recherche_de_balise(benchmark::State& state) {
    Banc<> b;
    preparer(b.e);
    b.e.PointY = {105, 100, 0}; // closer than the sensor line is long
    ajouter(b.e, actions::BALISE_DRO, 0, 0);
    BoucleMinimale base(b.e);
    exiger_meme_fin(state, b, base);
    comparer(
        state, [&] { base.jouer(); }, [&] { b.jouer(); });
}
BENCHMARK(recherche_de_balise)->Unit(benchmark::kMicrosecond);

// The longest walk that ends, 32767 steps: under 1 ms.
void marche_la_plus_longue(benchmark::State& state) {
    Banc<> b;
    preparer(b.e);
    for ([[maybe_unused]] auto _ : state) {
        b.e.NbreCarreaux = 0;
        calculer_nbre_carreaux(b.e, 0, 15, 32767, 15);
    }
}
BENCHMARK(marche_la_plus_longue)->Unit(benchmark::kMicrosecond);

} // namespace
